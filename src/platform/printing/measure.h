// Measuring texts: their lines, and how much of a text it takes to fill a width.
#pragma once

#include <QString>
#include <QStringList>
#include <functional>

namespace zv::printing {

/// The lines of a text, parted at CR, LF and CR LF; at least one.
QStringList linesOf(const QString& text);

/// How many characters from the given position, at least one, it takes until `width` of that piece is `limit` or more,
/// or the text ends: the plain loop that measures the whole piece after each character. A surrogate pair is one
/// character. 0 if there is no character left.
int fillWidth(const QString& text, int from, double limit, const std::function<double(const QString&)>& width);

/// The same answer with a handful of measurements. `em` is the size of the font in the unit of the widths.
int fillWidthFast(const QString& text, int from, double limit, double em,
                  const std::function<double(const QString&)>& width);

} // namespace zv::printing
