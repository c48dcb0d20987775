// How lists tell a work's movements and times.
#pragma once

#include <QString>
#include <functional>

namespace zv::listing {

/// Gives the stored text of a column of the work.
using WorkText = std::function<QString(QStringView column)>;

/// A field of a work in the grid: one line for each movement, the total time as "01:02:05".
QString workCell(QStringView column, const WorkText& stored);

/// The same on paper, where movements are joined by " * " and a number of 0 counts as empty.
QString workOnPaper(QStringView column, const WorkText& stored);

} // namespace zv::listing
