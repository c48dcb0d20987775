#include "platform/forms/fixed_column.h"

#include <QHeaderView>
#include <QPainter>
#include <QScrollBar>

namespace zv::forms {

class FixedColumn::Part : public QWidget {
  public:
    using Paint = void (FixedColumn::*)(QPainter&) const;
    Part(FixedColumn& column, Paint paint) : QWidget(&column.grid_), column_(column), paint_(paint) { hide(); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        (column_.*paint_)(painter);
    }

  private:
    FixedColumn& column_;
    Paint paint_;
};

FixedColumn::FixedColumn(FlexGrid& grid)
    : QObject(&grid), grid_(grid), cells_(new Part(*this, &FixedColumn::paintCells)),
      heading_(new Part(*this, &FixedColumn::paintHeading)) {
    cells_->setAttribute(Qt::WA_TransparentForMouseEvents);
    heading_->setCursor(Qt::ArrowCursor);
    for (const QScrollBar* bar : {grid.horizontalScrollBar(), grid.verticalScrollBar()}) {
        connect(bar, &QScrollBar::valueChanged, this, &FixedColumn::place);
        connect(bar, &QScrollBar::rangeChanged, this, &FixedColumn::place);
    }
    connect(grid.model(), &QAbstractItemModel::dataChanged, cells_, qOverload<>(&QWidget::update));
    connect(grid.model(), &QAbstractItemModel::headerDataChanged, heading_, qOverload<>(&QWidget::update));
    connect(grid.selectionModel(), &QItemSelectionModel::selectionChanged, cells_, qOverload<>(&QWidget::update));
}

void FixedColumn::place() {
    const bool moved = grid_.Cols() > 1 && grid_.horizontalScrollBar()->value() > 0;
    const QHeaderView& header = *grid_.horizontalHeader();
    const QRect view = grid_.viewport()->geometry();
    cells_->setGeometry(view.left(), view.top(), grid_.columnWidth(0), view.height());
    heading_->setGeometry(view.left(), header.y(), grid_.columnWidth(0), header.height());
    cells_->setVisible(moved);
    heading_->setVisible(moved && !header.isHidden());
    cells_->update();
}

void FixedColumn::paintCells(QPainter& painter) const {
    painter.fillRect(cells_->rect(), grid_.palette().color(QPalette::Base));
    const QColor line =
        QColor::fromRgba(static_cast<QRgb>(grid_.style()->styleHint(QStyle::SH_Table_GridLineColor, nullptr, &grid_)));
    const int width = cells_->width();
    for (int row = 0; row < grid_.rowCount(); ++row) {
        const int top = grid_.rowViewportPosition(row), height = grid_.rowHeight(row);
        if (top + height <= 0 || top >= cells_->height()) continue;
        const QModelIndex index = grid_.model()->index(row, 0);
        QStyleOptionViewItem option;
        grid_.initViewItemOption(&option);
        option.rect = {0, top, width - 1, height - 1};
        if (grid_.selectionModel()->isSelected(index)) option.state |= QStyle::State_Selected;
        grid_.itemDelegate()->paint(&painter, option, index);
        painter.fillRect(0, top + height - 1, width, 1, line);
        painter.fillRect(width - 1, top, 1, height, line);
    }
}

void FixedColumn::paintHeading(QPainter& painter) const {
    const QHeaderView& header = *grid_.horizontalHeader();
    QStyleOptionHeader option;
    option.initFrom(&header);
    option.rect = heading_->rect();
    option.text = grid_.model()->headerData(0, Qt::Horizontal).toString();
    const QVariant alignment = grid_.model()->headerData(0, Qt::Horizontal, Qt::TextAlignmentRole);
    option.textAlignment = alignment.isValid() ? Qt::Alignment(alignment.toInt()) : header.defaultAlignment();
    painter.setFont(header.font());
    grid_.style()->drawControl(QStyle::CE_Header, &option, &painter, &header);
}

} // namespace zv::forms
