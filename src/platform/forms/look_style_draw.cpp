// Boxes, faces, etched lines, arrows and ticks: every line is drawn inside its rectangle, on whole pixels.
#include "platform/forms/look_style_draw.h"

#include "platform/forms/look_style.h"
#include <QPainterPath>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace zv::forms::draw {

namespace {

/// Keeps what a shape changes on the painter from the next one.
class Kept {
  public:
    explicit Kept(QPainter& painter) : painter_(painter) {
        painter_.save();
        painter_.setRenderHint(QPainter::Antialiasing);
    }
    ~Kept() { painter_.restore(); }
    Kept(const Kept&) = delete;
    Kept& operator=(const Kept&) = delete;

  private:
    QPainter& painter_;
};

constexpr QColor TickGround{0xF2, 0xF2, 0xF4};
constexpr int BoxRadius = 30, ButtonRadius = 45, FrameRadius = 45; // twips
constexpr QColor White{0xFF, 0xFF, 0xFF};

bool isLocked(const QStyleOption& option, const QWidget* widget) {
    if (widget && widget->property("zvOpenLook").toBool()) return false;
    if (option.state & QStyle::State_ReadOnly) return true;
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(widget)) return memo->isReadOnly();
    if (const auto* memo = qobject_cast<const QTextEdit*>(widget)) return memo->isReadOnly();
    return false;
}

} // namespace

State stateOf(const QStyleOption& option, const QWidget* widget) {
    State state;
    state.enabled = option.state & QStyle::State_Enabled;
    state.locked = isLocked(option, widget);
    state.hovered = state.enabled && (option.state & QStyle::State_MouseOver);
    state.focused = state.enabled && (option.state & QStyle::State_HasFocus);
    state.pressed = state.enabled && (option.state & (QStyle::State_Sunken | QStyle::State_On));
    state.inForce = inForce(widget);
    return state;
}

const Scale& scaleOf(const QWidget* widget) {
    static const Scale plain(1.0);
    const auto* style = dynamic_cast<const LookStyle*>(widget ? widget->style() : QApplication::style());
    return style ? style->scale() : plain;
}

void box(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& border, double line, double radius) {
    const Kept kept(painter);
    const double half = line / 2;
    QPen pen(border, line);
    pen.setJoinStyle(Qt::MiterJoin);
    painter.setPen(line > 0 ? pen : QPen(Qt::NoPen));
    painter.setBrush(fill);
    const double inner = std::max(0.0, radius - half);
    painter.drawRoundedRect(rect.adjusted(half, half, -half, -half), inner, inner);
}

QLinearGradient face(const QRectF& rect, const QColor& top, const QColor& foot) {
    QLinearGradient gradient(rect.topLeft(), rect.bottomLeft());
    gradient.setColorAt(0, top);
    gradient.setColorAt(1, foot);
    return gradient;
}

QColor fieldEdge(const State& state) {
    if (!state.enabled) return colour::Edge3;
    if (state.focused) return colour::Accent;
    if (state.locked) return colour::Edge3;
    return state.hovered ? colour::Accent : colour::Edge;
}

void field(QPainter& painter, const QRect& rect, const QColor& ground, const State& state, const Scale& scale) {
    const int line = state.focused ? scale.focusLine() : scale.hairline(), radius = scale.px(BoxRadius);
    box(painter, rect, ground, fieldEdge(state), line, radius + (state.focused ? line - scale.hairline() : 0));
    if (!state.enabled || state.locked || state.focused) return;
    const int inset = std::max(line, radius);
    painter.fillRect(QRect(rect.left() + inset, rect.top() + line, rect.width() - 2 * inset, line), ground.darker(111));
}

QColor buttonInk(const State& state) {
    if (!state.enabled && !state.inForce) return colour::Disabled;
    return state.hovered && !state.pressed && !state.inForce ? colour::Accent : colour::Ink;
}

void button(QPainter& painter, const QRect& rect, const State& state, const Scale& scale) {
    const int line = scale.hairline(), radius = scale.px(ButtonRadius);
    if (!state.enabled && !state.inForce) {
        box(painter, rect, colour::Panel, colour::Edge3, line, radius);
        return;
    }
    const bool down = state.pressed || state.inForce, hovered = state.hovered && !down;
    const QColor top = down ? colour::PressedTop : hovered ? colour::HoverTop : colour::FaceTop;
    const QColor foot = down ? colour::PressedFoot : hovered ? colour::HoverFoot : colour::FaceFoot;
    box(painter, rect, face(rect, top, foot), hovered ? colour::Accent : colour::Edge, line, radius);
    const QRect inside = rect.adjusted(line, line, -line, -line);
    if (!down) painter.fillRect(QRect(rect.left() + radius, inside.top(), rect.width() - 2 * radius, line), White);
    if (state.inForce) {
        const int bar = scale.focusLine();
        painter.fillRect(QRect(rect.left() + radius, inside.bottom() + 1 - bar, rect.width() - 2 * radius, bar),
                         colour::Accent);
    }
    if (state.focused) {
        const int gap = scale.px(45);
        box(painter, rect.adjusted(gap, gap, -gap, -gap), Qt::NoBrush, colour::Accent, line, scale.px(BoxRadius));
    }
}

void smallFace(QPainter& painter, const QRect& rect, const QColor& border, double line, const Scale& scale) {
    box(painter, rect, face(rect, colour::FaceTop, colour::FaceFoot), border, line, scale.px(BoxRadius));
}

void etched(QPainter& painter, const QRect& rect, const QColor& ground, const Scale& scale) {
    const int line = scale.hairline(), radius = scale.px(FrameRadius);
    box(painter, rect.adjusted(line, line, 0, 0), ground, colour::Light, line, radius);
    box(painter, rect.adjusted(0, 0, -line, -line), Qt::NoBrush, colour::Edge2, line, radius);
}

void rule(QPainter& painter, const QRect& rect, const Scale& scale) {
    const int line = scale.hairline();
    painter.fillRect(QRect(rect.left(), rect.top(), rect.width(), line), colour::Edge2);
    painter.fillRect(QRect(rect.left(), rect.top() + line, rect.width(), line), colour::Light);
}

void arrow(QPainter& painter, const QRectF& rect, Qt::ArrowType type, const QColor& colour, double base) {
    const Kept kept(painter);
    const double half = base / 2, depth = 0.72 * base / 2;
    static constexpr double Turns[] = {0, 0, 180, -90, 90}; // none, up, down, left, right
    painter.translate(rect.center());
    painter.rotate(Turns[type]);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colour);
    const QPointF points[] = {{-half, depth}, {0, -depth}, {half, depth}};
    painter.drawConvexPolygon(points, 3);
}

void tickBox(QPainter& painter, const QRect& rect, Qt::CheckState tick, const State& state, const Scale& scale) {
    box(painter, rect, TickGround, state.enabled ? colour::Edge : colour::Edge3, scale.hairline(), scale.px(BoxRadius));
    if (tick == Qt::Unchecked) return;
    const Kept kept(painter);
    const double unit = rect.width() / 10.0;
    painter.translate(rect.topLeft());
    painter.setPen(QPen(state.enabled ? colour::Accent : colour::Disabled, 1.7 * unit, Qt::SolidLine, Qt::FlatCap));
    painter.setBrush(Qt::NoBrush);
    QPainterPath path;
    if (tick == Qt::PartiallyChecked) {
        path.moveTo(2.5 * unit, 5 * unit);
        path.lineTo(7.5 * unit, 5 * unit);
    } else {
        path.moveTo(1.6 * unit, 4.6 * unit);
        path.lineTo(4.1 * unit, 7.6 * unit);
        path.lineTo(8.6 * unit, 1.4 * unit);
    }
    painter.drawPath(path);
}

void roundTick(QPainter& painter, const QRect& rect, bool on, const State& state, const Scale& scale) {
    const double radius = rect.height() / 2.0, dot = 0.3 * rect.height();
    box(painter, rect, TickGround, state.enabled ? colour::Edge : colour::Edge3, scale.hairline(), radius);
    if (!on) return;
    const QColor ink = state.enabled ? colour::Accent : colour::Disabled;
    box(painter, QRectF(rect).adjusted(dot, dot, -dot, -dot), ink, ink, 0, radius - dot);
}

} // namespace zv::forms::draw
