#include "platform/forms/flex_grid.h"

#include "platform/forms/fixed_column.h"
#include "platform/forms/look_style_draw.h"
#include <QHeaderView>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QWheelEvent>

namespace zv::forms {

namespace {

/// Rows taller than this show their text from the top and wrapped, lower ones its first line.
constexpr int LowRow = 420;
/// More text than fits the tallest cell is not laid out.
constexpr int LongestLine = 300, LongestText = 6000;

class CellDelegate : public QStyledItemDelegate {
  public:
    CellDelegate(FlexGrid* grid) : QStyledItemDelegate(grid), grid_(grid) {}

  protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        const bool low = option->rect.height() <= grid_->px(LowRow);
        option->text.truncate(low ? LongestLine : LongestText);
        if (low) {
            option->text = draw::firstLine(option->text);
            option->features &= ~QStyleOptionViewItem::WrapText;
        } else if (grid_->areLinesLevel(index.column())) {
            const int width = grid_->style()->subElementRect(QStyle::SE_ItemViewItemText, option, grid_).width();
            QStringList lines = option->text.split(QChar::LineSeparator); // as the toolkit hands line ends on
            for (QString& line : lines) line = option->fontMetrics.elidedText(line, Qt::ElideRight, width - 1);
            option->text = lines.join(QChar::LineSeparator);
        }
        option->textElideMode = Qt::ElideRight;
        option->state &= ~QStyle::State_HasFocus;
    }

  private:
    FlexGrid* grid_;
};

} // namespace

FlexGrid::FlexGrid(QWidget* parent) : Control(parent) {
    setRole(this, Role::Grid);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setSelectionBehavior(QAbstractItemView::SelectRows);
    setTabKeyNavigation(false);
    setCornerButtonEnabled(false);
    setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setItemDelegate(new CellDelegate(this));
    setWordWrap(true);
    verticalHeader()->hide();
    verticalHeader()->setMinimumSectionSize(0);
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->hide();
    horizontalHeader()->setMinimumSectionSize(0);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    // A double click on a line between headings is no drag.
    disconnect(horizontalHeader(), &QHeaderView::sectionHandleDoubleClicked, nullptr, nullptr);
    connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column, int, int pixels) {
        // Only a drag changes a width; a layout merely renders it.
        if (!laying_ && scale()) widths_[std::size_t(column)] = qRound(scale()->twips(pixels));
    });
    connect(this, &QTableWidget::cellClicked, this, [this] { fire(Click); });
    connect(this, &QTableWidget::cellDoubleClicked, this, [this] { fire(DblClick); });
}

void FlexGrid::setRows(int rows) {
    if (rows < 0) throw RuntimeError(30009, QStringLiteral("Invalid Row value"));
    if (rows == 0) {
        fixed_ = 0;
        for (int col = 0; col < Cols(); ++col) delete takeHorizontalHeaderItem(col);
    }
    rows_ = rows;
    heights_.resize(std::size_t(rows), -1);
    row_ = std::min(row_, std::max(0, rows - 1));
    setRowCount(std::max(0, rows - fixed_));
    horizontalHeader()->setVisible(fixed_ == 1);
    layoutSizes();
}

void FlexGrid::setCols(int cols) {
    if (cols < 0) throw RuntimeError(30010, QStringLiteral("Invalid Col value"));
    widths_.resize(std::size_t(cols), -1);
    linesLevel_.resize(std::size_t(cols));
    col_ = std::min(col_, std::max(0, cols - 1));
    setColumnCount(cols);
    layoutSizes();
}

void FlexGrid::setFixedRows(int rows) {
    if (rows != 0 && (rows > rows_ - 1 || rows < 0 || rows > 1))
        throw RuntimeError(30016, QStringLiteral("FixedRows must be at least one less than Rows value"));
    if (rows == fixed_) return;
    fixed_ = rows;
    setRowCount(rows_ - fixed_);
    horizontalHeader()->setVisible(fixed_ == 1);
    layoutSizes();
}

void FlexGrid::setRowHeightMin(int twips) {
    minHeight_ = twips;
    layoutSizes();
}

void FlexGrid::setColumnsResizable(bool resizable) {
    horizontalHeader()->setSectionResizeMode(resizable ? QHeaderView::Interactive : QHeaderView::Fixed);
}

void FlexGrid::setNeverScrollsDown() {
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    connect(verticalScrollBar(), &QScrollBar::rangeChanged, this, [this](int, int max) {
        if (max > 0) verticalScrollBar()->setRange(0, 0);
    });
}

void FlexGrid::setFirstColumnFixed() { fixedColumn_ = new FixedColumn(*this); }

// The toolkit brings a column to the left end, which the fixed one covers.
void FlexGrid::scrollTo(const QModelIndex& index, ScrollHint hint) {
    QTableWidget::scrollTo(index, hint);
    if (!fixedColumn_ || index.column() <= 0) return;
    const int hidden = fixedColumn_->width() - columnViewportPosition(index.column());
    if (hidden > 0) horizontalScrollBar()->setValue(horizontalScrollBar()->value() - hidden);
}

void FlexGrid::setRow(int row) {
    if (row < 0 || row >= rows_) throw RuntimeError(30009, QStringLiteral("Invalid Row value"));
    row_ = row;
}

void FlexGrid::setCol(int col) {
    if (col < 0 || col >= Cols()) throw RuntimeError(30010, QStringLiteral("Invalid Col value"));
    col_ = col;
}

int FlexGrid::RowSel() const { return currentRow() < 0 ? row_ : currentRow() + fixed_; }

void FlexGrid::check(int row, int col) const {
    if (row < 0 || row >= rows_) throw RuntimeError(30009, QStringLiteral("Invalid Row value"));
    if (col < 0 || col >= Cols()) throw RuntimeError(30010, QStringLiteral("Invalid Col value"));
}

QTableWidgetItem* FlexGrid::cell(int row, int col) {
    check(row, col);
    QTableWidgetItem* found = isHeading(row) ? horizontalHeaderItem(col) : item(row - fixed_, col);
    if (found) return found;
    found = new QTableWidgetItem;
    found->setTextAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    if (isHeading(row))
        setHorizontalHeaderItem(col, found);
    else
        setItem(row - fixed_, col, found);
    return found;
}

QString FlexGrid::TextMatrix(int row, int col) const {
    check(row, col);
    const QTableWidgetItem* found = isHeading(row) ? horizontalHeaderItem(col) : item(row - fixed_, col);
    return found ? found->text() : QString();
}

void FlexGrid::setTextMatrix(int row, int col, const QString& text) {
    // The toolkit draws a carriage return as a blank.
    QString lines = text;
    cell(row, col)->setText(lines.replace(QLatin1String("\r\n"), QLatin1String("\n")).replace(u'\r', u'\n'));
}

void FlexGrid::setText(const QString& text) { setTextMatrix(row_, col_, text); }

void FlexGrid::setCellForeColor(const QColor& colour) { cell(row_, col_)->setForeground(colour); }

void FlexGrid::setCellBackColor(const QColor& colour) { cell(row_, col_)->setBackground(colour); }

void FlexGrid::setAlignment(int row, int col, Qt::Alignment alignment) { cell(row, col)->setTextAlignment(alignment); }

void FlexGrid::setLinesLevel(int col, bool level) {
    check(0, col);
    linesLevel_[std::size_t(col)] = level;
}

int FlexGrid::ColWidth(int col) const {
    if (col < 0 || col >= Cols()) throw RuntimeError(30010, QStringLiteral("Invalid Col value"));
    const int set = widths_[std::size_t(col)];
    return set < 0 ? defaultWidth_ : set;
}

void FlexGrid::setColWidth(int col, int twips) {
    if (col < 0 || col >= Cols()) throw RuntimeError(30010, QStringLiteral("Invalid Col value"));
    widths_[std::size_t(col)] = twips;
    layoutSizes();
}

int FlexGrid::RowHeight(int row) const {
    if (row < 0 || row >= rows_) throw RuntimeError(30009, QStringLiteral("Invalid Row value"));
    const int set = heights_[std::size_t(row)];
    return std::max(minHeight_, set < 0 ? 240 : set);
}

void FlexGrid::setRowHeight(int row, int twips) {
    check(row, 0);
    heights_[std::size_t(row)] = twips;
    layoutSizes();
}

void FlexGrid::RemoveItem(int row) {
    if (isHeading(row)) throw RuntimeError(30000, QStringLiteral("Invalid row"));
    if (row < 0 || row >= rows_) throw RuntimeError(30002, QStringLiteral("Invalid row"));
    if (rows_ - fixed_ == 1) throw RuntimeError(30015, QStringLiteral("Can not remove last non-fixed row"));
    removeRow(row - fixed_);
    heights_.erase(heights_.begin() + row);
    --rows_;
    row_ = std::min(row_, rows_ - 1);
    layoutSizes();
}

void FlexGrid::Clear() { clear(); }

// Edges are rounded where they stand on the screen, not sizes, and the frame is part of the heading: so rows and the
// pictures beside them never drift apart.
void FlexGrid::layoutSizes() {
    if (!scale() || laying_) return;
    laying_ = true;
    int left = 0;
    for (int col = 0; col < Cols(); ++col) {
        const int set = widths_[std::size_t(col)];
        const int width = set < 0 ? defaultWidth_ : set;
        setColumnWidth(col, scale()->px(left + width) - scale()->px(left));
        left += width;
    }
    const int heading = fixed_ ? RowHeight(0) : 0;
    const int headingPixels = scale()->px(Top() + heading) - scale()->px(Top()) - frameWidth();
    if (fixed_ && horizontalHeader()->height() != headingPixels) {
        horizontalHeader()->setFixedHeight(headingPixels);
        updateGeometries(); // or the rows stay where they were until something else moves them
    }
    int top = Top() + heading;
    for (int row = fixed_; row < rows_; ++row) {
        const int height = RowHeight(row);
        verticalHeader()->resizeSection(row - fixed_, scale()->px(top + height) - scale()->px(top));
        top += height;
    }
    if (fixedColumn_) fixedColumn_->place();
    laying_ = false;
}

void FlexGrid::setType(int heightTwips, bool bold) {
    Placed::setType(heightTwips, bold);
    if (scale()) horizontalHeader()->setFont(scale()->font(heightTwips, true));
}

void FlexGrid::applyScale(const Scale& scale) {
    Placed::applyScale(scale);
    horizontalHeader()->setFont(scale.font(typeHeight(), true));
    horizontalScrollBar()->setFixedHeight(scale.px(240));
    layoutSizes();
}

void FlexGrid::clearHandlers() {
    Click = DblClick = GotFocus = nullptr;
    Wheel = nullptr;
}

void FlexGrid::focusInEvent(QFocusEvent* event) {
    QTableWidget::focusInEvent(event);
    if (isFocusGain(event->reason())) fire(GotFocus);
}

void FlexGrid::wheelEvent(QWheelEvent* event) {
    if (!Wheel) {
        QTableWidget::wheelEvent(event);
        return;
    }
    event->accept();
    if (const int steps = wheel_.take(*event); steps != 0) fire([handler = Wheel, steps] { handler(steps); });
}

} // namespace zv::forms
