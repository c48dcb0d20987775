// The first column of a grid whose other columns are moved by the horizontal bar.
#pragma once

#include "platform/forms/flex_grid.h"

namespace zv::forms {

/// Lies over the left end of a grid while its columns are moved, and shows the first of them there. The mouse reaches
/// the rows under it; over the heading it does not, since no line between columns is to be dragged unseen.
class FixedColumn : public QObject {
  public:
    explicit FixedColumn(FlexGrid& grid);

    /// Follows the grid's geometry and its bar.
    void place();
    /// Pixels of the grid's left end that are covered.
    int width() const { return cells_->isHidden() ? 0 : cells_->width(); }

  private:
    class Part;
    void paintCells(QPainter& painter) const;
    void paintHeading(QPainter& painter) const;

    FlexGrid& grid_;
    QWidget *cells_, *heading_;
};

} // namespace zv::forms
