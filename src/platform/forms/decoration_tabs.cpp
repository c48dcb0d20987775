// The tab strip: its bands and lines, the motif staff beside the first row, the padlock, and single tabs.
#include "platform/forms/decoration.h"

#include "platform/forms/look_style_draw.h"
#include <QPainterPath>

namespace zv::forms {

namespace {

constexpr int Width = 10320, Height = 1275, Row = 405; // twips
constexpr QColor Border{0x6C, 0x6C, 0x78};

/// Halfway from the band of the first row to a blue.
constexpr QColor RowMotif{(0xD3 + 0x70) / 2, (0xD3 + 0x78) / 2, (0xD9 + 0xA0) / 2};

/// The line under a row stands in the row's last pixels.
void paintRowLine(QPainter& painter, int row, const Scale& scale) {
    const int foot = scale.px(Row * row), line = scale.hairline();
    painter.fillRect(QRect(0, foot - line, scale.px(Width), line), colour::Edge);
}

void paintPadlock(QPainter& painter, const Scale& scale) {
    const QRect body = scale.rect({9990, 540, 165, 135});
    const double width = std::max(1.0, 0.13 * body.width());
    draw::box(painter, body, colour::Accent, colour::Accent, scale.hairline(), scale.px(22));
    const double inset = 0.18 * body.width() + width / 2, top = scale.px(465) + width / 2;
    const double radius = body.width() / 2.0 - inset;
    QPainterPath shackle;
    shackle.moveTo(body.left() + inset, body.top() + 1);
    shackle.lineTo(body.left() + inset, top + radius);
    shackle.arcTo(QRectF(body.left() + inset, top, 2 * radius, 2 * radius), 180, -180);
    shackle.lineTo(body.right() + 1 - inset, body.top() + 1);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(colour::Accent, width, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(shackle);
    painter.restore();
}

/// Three sides with rounded upper corners, open below.
QPainterPath tabPath(const QRectF& rect, double radius) {
    QPainterPath path(rect.bottomLeft());
    path.lineTo(rect.left(), rect.top() + radius);
    path.arcTo(QRectF(rect.left(), rect.top(), 2 * radius, 2 * radius), 180, -90);
    path.lineTo(rect.right() - radius, rect.top());
    path.arcTo(QRectF(rect.right() - 2 * radius, rect.top(), 2 * radius, 2 * radius), 90, -90);
    path.lineTo(rect.bottomRight());
    return path;
}

QColor tabInk(const TabLook& tab) {
    if (!tab.enabled) return colour::Disabled;
    if (tab.hovered) return colour::Accent;
    return tab.chosen ? colour::Navy : colour::Ink;
}

} // namespace

void paintTab(QPainter& painter, const TabLook& tab, const Scale& scale) {
    constexpr int Gap = 30, Radius = 60, ChosenTop = 30, OtherTop = 75; // twips
    const int line = scale.hairline();
    const QRect rect = tab.rect.adjusted(0, scale.px(tab.chosen ? ChosenTop : OtherTop), -scale.px(Gap), 0);
    const double half = line / 2.0;
    const QPainterPath path =
        tabPath(QRectF(rect).adjusted(half, half, -half, 0), std::max(0.0, scale.px(Radius) - half));
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    QPen pen(colour::Edge, line);
    pen.setCapStyle(Qt::FlatCap);
    painter.setPen(pen);
    painter.setBrush(tab.chosen ? QBrush(colour::Panel) : QBrush(draw::face(rect, colour::TabTop, colour::TabFoot)));
    painter.drawPath(path);
    painter.restore();
    if (tab.chosen && tab.enabled) {
        const int inset = scale.px(45);
        painter.fillRect(QRect(rect.left() + inset, rect.top(), rect.width() - 2 * inset, scale.focusLine()),
                         colour::Accent);
    }
    if (tab.focused && tab.enabled) {
        const int inset = scale.px(45) + (tab.chosen ? line : 0);
        draw::box(painter, rect.adjusted(inset, inset, -inset, -inset), Qt::NoBrush, colour::Accent, line,
                  scale.px(30));
    }
    draw::Setting setting{scale.font(type::G, tab.chosen), tabInk(tab), Qt::AlignCenter};
    draw::text(painter, rect, tab.caption.trimmed(), setting);
}

void paintStrip(QPainter& painter, StripRows rows, bool locked, const Scale& scale) {
    const int count = rows == StripRows::Three ? 3 : rows == StripRows::Two ? 2 : 1, line = scale.hairline();
    const QRect all = scale.rect({0, 0, Width, Height});
    painter.fillRect(all, colour::Panel);
    for (int row = 0; row < count; ++row)
        painter.fillRect(scale.rect({0, Row * row, Width, Row}), row == 0 ? colour::TabBand1 : colour::TabBand2);
    painter.save();
    painter.setClipRect(scale.rect({0, 0, Width, Row})); // the clef is higher than its row
    paintStaff(painter, {8020, 2120, 210, 60, true, true, {-1, 1, 3, 0, 2, -3}, 640, 254}, RowMotif, scale);
    painter.restore();
    for (int row = 1; row <= count; ++row) paintRowLine(painter, row, scale);
    if (rows == StripRows::One) paintStaff(painter, {165, 9990, 855, 90, false, false}, colour::Motif, scale);
    if (rows == StripRows::Two) paintStaff(painter, {165, 9990, 1057, 60, false, false}, colour::Motif, scale);
    if (locked) paintPadlock(painter, scale);
    draw::box(painter, all, Qt::NoBrush, Border, line, 0);
}

} // namespace zv::forms
