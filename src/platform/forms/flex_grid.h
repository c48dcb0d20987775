// The grid of the screens. Rows and columns are counted from 0, a fixed first row is the heading; widths and heights
// are twips. A width changes only by the logic or by a drag.
#pragma once

#include "platform/forms/placed.h"
#include <QTableWidget>

namespace zv::forms {

class FixedColumn;

class FlexGrid : public Control<QTableWidget> {
  public:
    explicit FlexGrid(QWidget* parent);

    Handler Click, DblClick, GotFocus;
    /// Takes turns of the wheel (steps, positive away from the user) in place of the grid's own scrolling.
    std::function<void(int)> Wheel;

    int Rows() const { return rows_; }
    int Cols() const { return columnCount(); }
    /// 0 empties the grid. New columns have the default width. Errors 30009 and 30010 for negative counts.
    void setRows(int rows);
    void setCols(int cols);
    /// 1 makes the first row the heading. Error 30016 if no other row is left.
    void setFixedRows(int rows);
    /// Whether a drag changes the width of a column.
    void setColumnsResizable(bool resizable);
    /// The grid keeps its first row on top whatever stands below its edge.
    void setNeverScrollsDown();
    /// The first column stays in its place while the horizontal bar moves the others under it.
    void setFirstColumnFixed();
    /// Whether the lines of a column's cells are cut, not wrapped, to stand level with those of other columns.
    void setLinesLevel(int col, bool level);
    bool areLinesLevel(int col) const { return linesLevel_[std::size_t(col)]; }
    void setDefaultColWidth(int twips) { defaultWidth_ = twips; }
    /// Height in twips of rows that the logic has not set.
    void setRowHeightMin(int twips);

    int Row() const { return row_; }
    int Col() const { return col_; }
    void setRow(int row);
    void setCol(int col);
    /// The row that the user has chosen.
    int RowSel() const;
    QString Text() const { return TextMatrix(row_, col_); }
    void setText(const QString& text);
    QString TextMatrix(int row, int col) const;
    void setTextMatrix(int row, int col, const QString& text);
    void setCellForeColor(const QColor& colour);
    void setCellBackColor(const QColor& colour);
    void setCellAlignment(Qt::Alignment alignment) { setAlignment(row_, col_, alignment); }
    void setAlignment(int row, int col, Qt::Alignment alignment);

    int ColWidth(int col) const;
    void setColWidth(int col, int twips);
    int RowHeight(int row) const;
    void setRowHeight(int row, int twips);
    /// Errors 30002 for an absent row, 30015 for the last one.
    void RemoveItem(int row);
    void Clear();

    /// The headings have the same type in bold.
    void setType(int heightTwips, bool bold);
    void applyScale(const Scale& scale) override;
    void clearHandlers() override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
    /// Pixels of a length in twips.
    int px(int twips) const { return scale() ? scale()->px(twips) : twips / 15; }

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

  private:
    friend class FixedColumn;
    bool isHeading(int row) const { return fixed_ == 1 && row == 0; }
    QTableWidgetItem* cell(int row, int col);
    void layoutSizes();
    void check(int row, int col) const;

    int rows_ = 0, fixed_ = 0;
    int row_ = 0, col_ = 0;
    int defaultWidth_ = 960, minHeight_ = 240;
    std::vector<int> widths_, heights_; ///< twips
    std::vector<bool> linesLevel_;
    WheelSteps wheel_;
    bool laying_ = false;
    FixedColumn* fixedColumn_ = nullptr;
};

} // namespace zv::forms
