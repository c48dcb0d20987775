#include "report/mock_up.h"

#include "platform/forms/decoration.h"
#include "platform/forms/look_style_draw.h"

namespace zv::report {

using namespace forms;

namespace {

constexpr double Factor = 0.407; ///< of the screen's size
constexpr QColor Ground{0xE9, 0xE9, 0xEC}, FrameGround{0xE4, 0xE4, 0xE8}, BoxGround{0xDC, 0xDC, 0xE1};
constexpr QColor Words{0x00, 0x00, 0x80, 94}; ///< navy at 37 %
constexpr QColor Written{0x16, 0x16, 0x1C, 94}, White{0xFF, 0xFF, 0xFF};
constexpr QColor SleeveGround{0xF2, 0xC0, 0x2E}, SleevePrint{0x20, 0x26, 0x4A};
// Twips of the drawing itself.
constexpr int Radius = 30, BarHeight = 36, ButtonType = 105, BadgeSize = 254;

/// A caption that is too long for its button is set smaller, never cut.
void paintCaption(QPainter& painter, const QRect& rect, const QString& text, const QColor& colour, const Scale& scale) {
    QFont font = scale.font(ButtonType, true);
    font.setPixelSize(scale.px(ButtonType));
    const int room = rect.width() - scale.hairline();
    while (font.pixelSize() > 6 && QFontMetrics(font).horizontalAdvance(text) > room)
        font.setPixelSize(font.pixelSize() - 1);
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(rect, Qt::AlignCenter | Qt::TextDontClip, text);
}

/// A strip of a given height in the middle of the rectangle.
QRect middle(const QRect& rect, int height) {
    return {rect.left(), rect.top() + (rect.height() - height) / 2, rect.width(), height};
}

} // namespace

void MockUp::set(Shapes shapes, std::vector<Badge> badges) {
    shapes_ = std::move(shapes);
    badges_ = std::move(badges);
    update();
}

QRect MockUp::pixels(const TwipsRect& rect) const {
    const auto edge = [this](int twips) { return scale()->px(twips * Factor); };
    const QPoint from(edge(rect.Left), edge(rect.Top));
    return {from, QPoint(edge(rect.Left + rect.Width) - 1, edge(rect.Top + rect.Height) - 1)};
}

void MockUp::paintEvent(QPaintEvent*) {
    if (!scale()) return;
    QPainter painter(this);
    draw::box(painter, QWidget::rect(), Ground, colour::Edge, scale()->hairline(), scale()->px(Radius));
    for (const Shape& shape : shapes_) paint(painter, shape);
    for (const Badge& badge : badges_) paintBadge(painter, badge);
}

void MockUp::paint(QPainter& painter, const Shape& shape) const {
    const QRect rect = pixels(shape.rect);
    const int line = scale()->hairline(), radius = scale()->px(Radius);
    const auto box = [&](const QColor& ground, const QColor& edge, int round) {
        draw::box(painter, rect, ground, edge, line, round);
    };
    const int bar = std::max(1, scale()->px(BarHeight));
    switch (shape.draw) {
    case Draw::Box: box(BoxGround, colour::Edge2, radius); break;
    case Draw::Missing:
        box(White, colour::Edge2, radius);
        paintCaption(painter, rect, shape.text.toString(), colour::Navy, *scale());
        break;
    case Draw::Frame: box(FrameGround, colour::Edge2, radius); break;
    case Draw::Bar: painter.fillRect(middle(rect, bar), Words); break;
    case Draw::Line: painter.fillRect(middle(rect, bar), Written); break;
    case Draw::Button:
    case Draw::ButtonInForce:
    case Draw::ButtonOff: paintButton(painter, shape); break;
    case Draw::Placeholder:
        painter.drawPixmap(rect.topLeft(), drawing(shape.text.toString(), rect.size(), devicePixelRatioF()));
        box(Qt::transparent, colour::Edge2, 0);
        break;
    case Draw::Sleeve: paintSleeve(painter, rect); break;
    case Draw::ScrollBar: {
        const bool across = rect.width() > rect.height();
        const int side = std::min(rect.width(), rect.height()), length = std::max(rect.width(), rect.height());
        box(BoxGround, colour::Edge2, radius);
        for (const int at : {0, side, length - side}) {
            const QPoint from = rect.topLeft() + (across ? QPoint(at, 0) : QPoint(0, at));
            draw::smallFace(painter, {from, QSize(side, side)}, colour::Edge2, line, *scale());
        }
        break;
    }
    case Draw::Grid: box(colour::Cell, colour::Edge2, 0); break;
    case Draw::GridHead: painter.fillRect(rect, colour::GridHead); break;
    case Draw::NumberColumn: painter.fillRect(rect, colour::NumberColumn); break;
    case Draw::Rule:
        painter.fillRect(rect.left(), rect.top(), std::max(rect.width(), line), std::max(rect.height(), line),
                         colour::Edge3);
        break;
    case Draw::ZebraDark: painter.fillRect(rect, colour::ZebraDark); break;
    case Draw::Paper: box(White, colour::Edge2, 0); break;
    case Draw::Title: painter.fillRect(rect, colour::Navy); break;
    }
}

void MockUp::paintButton(QPainter& painter, const Shape& shape) const {
    const QRect rect = pixels(shape.rect);
    draw::State state;
    state.enabled = shape.draw == Draw::Button;
    state.inForce = shape.draw == Draw::ButtonInForce;
    draw::button(painter, rect, state, *scale());
    paintCaption(painter, rect, shape.text.toString(), draw::buttonInk(state), *scale());
}

void MockUp::paintSleeve(QPainter& painter, const QRect& rect) const {
    const int line = scale()->hairline(), w = rect.width(), h = rect.height();
    draw::box(painter, rect, SleeveGround, colour::Edge2, line, 0);
    painter.fillRect(rect.left() + w * 13 / 100, rect.top() + h / 10, w * 74 / 100, h * 3 / 10, SleevePrint);
    for (int i = 0; i < 5; ++i) {
        const int top = rect.top() + h * (54 + 6 * i) / 100;
        painter.fillRect(rect.left() + w * 12 / 100, top, w * 76 / 100, std::max(1, h * 2 / 100), SleevePrint);
    }
}

void MockUp::paintBadge(QPainter& painter, const Badge& badge) const {
    const int size = scale()->px(BadgeSize), line = scale()->hairline();
    const QPoint centre(scale()->px(badge.x * Factor), scale()->px(badge.y * Factor));
    // The whole disc is seen, wherever the thing stands.
    QRect disc(centre - QPoint(size / 2, size / 2), QSize(size, size));
    disc.moveLeft(std::clamp(disc.left(), 0, width() - size));
    disc.moveTop(std::clamp(disc.top(), 0, height() - size));
    draw::box(painter, disc, colour::Accent, White, line, size / 2.0);
    painter.setFont(scale()->font(type::XS, true));
    painter.setPen(White);
    painter.drawText(disc, Qt::AlignCenter, QString(QChar(badge.letter)));
}

} // namespace zv::report
