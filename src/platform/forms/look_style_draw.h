// The shapes that all controls are made of, in pixels: boxes, button faces, etched lines, arrows, ticks and texts.
#pragma once

#include "platform/forms/look.h"
#include "platform/forms/scale.h"
#include <QPainter>
#include <QStyleOption>

namespace zv::forms::draw {

/// What a control shows of its situation. hovered and focused are never set on a disabled control.
struct State {
    bool enabled = true, hovered = false, focused = false, pressed = false, locked = false, inForce = false;
};
State stateOf(const QStyleOption& option, const QWidget* widget);

/// The scale of the application's style; 1 where another style is at work.
const Scale& scaleOf(const QWidget* widget);

/// A box with a sharp border of `line` pixels that lies inside the rectangle.
void box(QPainter& painter, const QRectF& rect, const QBrush& fill, const QColor& border, double line, double radius);

QLinearGradient face(const QRectF& rect, const QColor& top, const QColor& foot);

/// Text boxes, memos, combos, lists and grids: ground, border by state, the inner line at the top.
void field(QPainter& painter, const QRect& rect, const QColor& ground, const State& state, const Scale& scale);
QColor fieldEdge(const State& state);

void button(QPainter& painter, const QRect& rect, const State& state, const Scale& scale);
QColor buttonInk(const State& state);

/// The small face of scroll and drop buttons.
void smallFace(QPainter& painter, const QRect& rect, const QColor& border, double line, const Scale& scale);

/// A frame, and a rule along the top of the rectangle: a dark line and a light one beside it.
void etched(QPainter& painter, const QRect& rect, const QColor& ground, const Scale& scale);
void rule(QPainter& painter, const QRect& rect, const Scale& scale);

/// A filled triangle in the middle of the rectangle, its base `base` pixels.
void arrow(QPainter& painter, const QRectF& rect, Qt::ArrowType type, const QColor& colour, double base);

void tickBox(QPainter& painter, const QRect& rect, Qt::CheckState tick, const State& state, const Scale& scale);

void roundTick(QPainter& painter, const QRect& rect, bool on, const State& state, const Scale& scale);

/// How a text is set. lines: 1 for one line cut with an ellipsis, 0 for as many as fit. pitch: pixels from line to
/// line, 0 for the font's own.
struct Setting {
    QFont font;
    QColor colour;
    Qt::Alignment alignment = Qt::AlignLeft | Qt::AlignVCenter;
    int lines = 1;
    int pitch = 0;
};
/// What stands before the first line end, with an ellipsis if a further line holds anything.
QString firstLine(const QString& text);
/// Carriage returns are drawn as blanks; nothing of the text is taken as a mnemonic.
void text(QPainter& painter, const QRect& rect, const QString& text, const Setting& setting);

} // namespace zv::forms::draw
