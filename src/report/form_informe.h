// The report: one table of counters over all kinds of record. Every figure comes from the working memory, but for the
// order, which also asks the channel whether it has rows. All of it is worked out when the screen is loaded.
#pragma once

#include "platform/forms/controls.h"
#include "report/report_table.h"
#include "shell/contract/screen.h"
#include <array>

namespace zv::report {

class FormInforme : public shell::Screen {
  public:
    FormInforme(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    /// Error 6 when a sum is beyond 32 bits.
    void Form_Load() override;
    void paintBehind(QPainter& painter) override;

  private:
    using Row = std::array<forms::Label*, ColumnCount>;

    void addHeadings();
    void addRow(int row);
    void addProducts();
    void addLegend();
    forms::Label* addFigure(const QString& name, const ReportColumn& column, const forms::TwipsRect& row,
                            const QColor& ground, bool bold);

    /// Number of a cell, row by row from 0.
    qint32 value(int row, ColumnId column);
    qint32 order(store::Kind kind);
    void show(ColumnId column);
    void showSum(ColumnId column);
    void showProduct(int product);

    std::array<Row, ReportRowCount + 1> figures_; ///< the last row is that of the sums
    std::array<forms::Label*, ProductCount> products_;
};

} // namespace zv::report
