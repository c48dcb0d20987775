// Pictures for the records of the tour: drawn here, so that the tour brings no files along.
#pragma once

#include <QColor>
#include <QImage>

namespace zv::tour {

enum class Hair { Short, Bun, Wig, Veil };

/// A silhouette in an oval, 320 by 400 pixels. leftwards: which way it looks.
QImage portrait(const QColor& ground, Hair hair, bool leftwards);

/// Players on the arcs of a stage, 480 by 270 pixels: a picture that is wider than high.
QImage stage(const QColor& ground);

/// The cover of a book or a disc: a plate over five lines, 240 pixels square.
QImage cover(const QColor& ground, const QColor& plate, const QColor& ink);

} // namespace zv::tour
