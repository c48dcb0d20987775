// Staves, clefs and notes; the edges of screens, the spine, and what stands behind the left column.
#include "platform/forms/decoration.h"

#include "platform/forms/look_style_draw.h"
#include <QPainterPath>

namespace zv::forms {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor ScreenLight{0xF8, 0xF8, 0xFA}, ScreenDark{0x8E, 0x8E, 0x99}, Spine{0xC6, 0xC6, 0xCE};
constexpr int SpineTop = 240, SpineFoot = 7620; // twips

/// The clef in a field 110 x 270 whose staff lines lie at y 80 to 200.
QPainterPath clefPath() {
    QPainterPath path;
    path.moveTo(51, 172);
    path.cubicTo(40, 172, 38, 156, 51, 152);
    path.cubicTo(68, 147, 82, 160, 80, 178);
    path.cubicTo(77, 200, 46, 206, 31, 188);
    path.cubicTo(14, 167, 28, 142, 48, 122);
    path.cubicTo(66, 104, 75, 86, 71, 60);
    path.cubicTo(69, 46, 62, 38, 57, 42);
    path.cubicTo(46, 52, 45, 80, 49, 108);
    path.lineTo(62, 222);
    path.cubicTo(64, 242, 48, 250, 38, 243);
    path.cubicTo(31, 237, 35, 227, 43, 229);
    return path;
}

/// A note whose head stands at a point; high ones hang their stem.
void paintNote(QPainter& painter, QPointF head, double gap, bool hanging, const QColor& colour) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const double wide = 0.62 * gap, stem = std::max(1.0, 0.13 * gap), length = 3 * gap;
    const double x = hanging ? head.x() - wide * 0.95 : head.x() + wide * 0.95 - stem;
    // The stem stands on whole pixels, as the lines do.
    const QRectF bar(std::round(x), hanging ? head.y() : head.y() - length, std::max(1.0, std::round(stem)), length);
    painter.translate(head);
    painter.rotate(-20);
    painter.drawEllipse(QPointF(0, 0), wide, 0.44 * gap);
    painter.restore();
    painter.fillRect(bar.toRect(), colour);
}

void paintNotes(QPainter& painter, const Staff& staff, int centre, const QColor& colour, const Scale& scale) {
    static const std::vector<int> Own = {-2, 0, 2, 1, -1, 3, 1, -3, -1, 2, 0};
    const double gap = scale.px(staff.Gap), first = staff.first > 0 ? staff.first : (staff.clef ? 8.5 : 3) * staff.Gap;
    const double step = staff.step > 0 ? staff.step : 4.86 * staff.Gap;
    const auto fits = static_cast<std::size_t>(std::max(0.0, (staff.Width - first) / step + 1));
    const std::size_t count = staff.tune.empty() ? fits : staff.tune.size();
    const std::vector<int>& tune = staff.tune.empty() ? Own : staff.tune;
    for (std::size_t i = 0; i < count; ++i) {
        const int height = tune[i % tune.size()];
        const double x = scale.px(staff.Left + first + step * static_cast<double>(i));
        paintNote(painter, {x, centre - height * gap / 2 - 0.5}, gap, height >= 0, colour);
    }
}

} // namespace

void paintClef(QPainter& painter, double x, double centre, double gap, const QColor& colour) {
    static const QPainterPath path = clefPath();
    const double unit = gap / 30;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(x, centre - 140 * unit);
    painter.scale(unit, unit);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, std::max(6.0, 1.3 / unit), Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.drawPath(path);
    painter.restore();
}

void paintStaff(QPainter& painter, const Staff& staff, const QColor& colour, const Scale& scale) {
    const int left = scale.px(staff.Left), width = scale.px(staff.Left + staff.Width) - left;
    const int centre = scale.px(staff.Centre), gap = scale.px(staff.Gap), line = scale.hairline();
    for (int i = -2; i <= 2; ++i) painter.fillRect(QRect(left, centre + i * gap - (line + 1) / 2, width, line), colour);
    if (staff.clef) paintClef(painter, left + 0.6 * gap, centre - 0.5, gap, colour);
    if (staff.notes) paintNotes(painter, staff, centre, colour, scale);
}

void paintScreenEdge(QPainter& painter, const QRect& screen, const Scale& scale) {
    const int line = scale.hairline();
    painter.fillRect(screen, colour::Panel);
    painter.fillRect(QRect(screen.right() + 1 - line, screen.top(), line, screen.height()), ScreenDark);
    painter.fillRect(QRect(screen.left(), screen.top(), screen.width(), line), ScreenLight);
    painter.fillRect(QRect(screen.left(), screen.top(), line, screen.height()), ScreenLight);
}

void paintCard(QPainter& painter, const QRect& card, const Scale& scale) {
    const int line = scale.hairline(), outer = scale.px(150), inner = scale.px(210);
    draw::box(painter, card, colour::Panel, ScreenLight, line, scale.px(60));
    draw::box(painter, card.adjusted(outer, outer, -outer, -outer), Qt::NoBrush, colour::Navy, line, 0);
    draw::box(painter, card.adjusted(inner, inner, -inner, -inner), Qt::NoBrush, colour::Edge3, line, 0);
}

void paintSpine(QPainter& painter, const Scale& scale) {
    constexpr int Left = 10080, Pitch = 45, Lines = 5, Free = 150;
    const QString words = u"- Zarvelia -"_s;
    const QFont font = scale.font(type::XS, true);
    const QFontMetrics metrics(font);
    const int top = scale.px(SpineTop), foot = scale.px(SpineFoot), middle = (top + foot) / 2;
    const int half = metrics.horizontalAdvance(words) / 2 + scale.px(Free), line = scale.hairline();
    for (int i = 0; i < Lines; ++i) {
        const int x = scale.px(Left + Pitch * i);
        painter.fillRect(QRect(x, top, line, middle - half - top), Spine);
        painter.fillRect(QRect(x, middle + half, line, foot - middle - half), Spine);
    }
    painter.save();
    painter.translate(scale.px(Left + Pitch * (Lines - 1) / 2.0) + line, middle);
    painter.rotate(-90);
    painter.setFont(font);
    painter.setPen(colour::Navy);
    painter.drawText(QRect(-half, -metrics.height(), 2 * half, 2 * metrics.height()), Qt::AlignCenter, words);
    painter.restore();
}

void paintBackground(QPainter& painter, Background background, const Scale& scale) {
    constexpr int Left = 240, Width = 3000, Gap = 120;
    switch (background) {
    case Background::Add: {
        const int upper = 4350, lower = 5325;
        paintStaff(painter, {Left, Width, upper, Gap, true, true, {-2, 0, 2, 1, -1, 3}, 900, 360}, colour::Motif,
                   scale);
        paintStaff(painter, {Left, Width, lower, Gap, false, true, {3, 1, -1, 0, -2, -4}, 360, 420}, colour::Motif,
                   scale);
        const int top = scale.px(upper) - 2 * scale.px(Gap) - 1, foot = scale.px(lower) + 2 * scale.px(Gap);
        painter.fillRect(QRect(scale.px(Left), top, scale.hairline(), foot - top), colour::Motif);
        break;
    }
    case Background::ShowEdit:
        paintStaff(painter, {Left, Width, 7080, Gap, true, true, {0, 2, -1, 1, -2}, 900, 405}, colour::Motif, scale);
        break;
    case Background::Select:
        paintStaff(painter, {Left, Width, 4530, Gap, true, true, {-2, 0, 2, 1, -1, 3}, 900, 360}, colour::Motif, scale);
        break;
    }
}

} // namespace zv::forms
