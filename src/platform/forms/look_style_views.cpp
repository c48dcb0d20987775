// Lists and grids: frames, rows, cells, ticks, headings; and the progress bar.
#include "platform/forms/look_style.h"
#include "platform/forms/look_style_draw.h"
#include <QAbstractItemView>
#include <QHeaderView>
#include <QTableView>

namespace zv::forms {

namespace {

constexpr int CellInset = 60, TickSize = 150, TickGap = 75; // twips
constexpr int HighRow = 420;                                // rows above wrap their text from the top, twips

const QStyleOptionViewItem& viewItem(const QStyleOption& option) {
    return static_cast<const QStyleOptionViewItem&>(option);
}

/// How the text of a cell or of a row is set.
draw::Setting settingOf(const QStyleOptionViewItem& item, const QWidget* widget, const Scale& scale) {
    const bool selected = item.state & QStyle::State_Selected;
    const auto group = item.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
    draw::Setting setting{item.font, item.palette.color(group, selected ? QPalette::HighlightedText : QPalette::Text),
                          item.displayAlignment};
    if (!(setting.alignment & Qt::AlignVertical_Mask)) setting.alignment |= Qt::AlignVCenter;
    if (!qobject_cast<const QTableView*>(widget)) return setting;
    const int pitch = widget->property("zvPitch").toInt();
    if (item.rect.height() > scale.px(HighRow) && pitch == 0) {
        setting.lines = 0;
        setting.alignment = (setting.alignment & Qt::AlignHorizontal_Mask) | Qt::AlignTop;
    } else if (pitch > 0) {
        setting.lines = 2;
        setting.pitch = scale.px(pitch);
    }
    return setting;
}

} // namespace

void LookStyle::drawFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
    const QColor ground = option.palette.color(QPalette::Base);
    const bool grid = qobject_cast<const QTableView*>(widget);
    if (!grid && qobject_cast<const QAbstractScrollArea*>(widget)) {
        draw::field(painter, option.rect, ground, draw::stateOf(option, widget), scale_);
        return;
    }
    // The focus of a grid has its own line above the cells; a drop-down list takes the plain border.
    const QColor edge = option.state & State_Enabled ? colour::Edge : colour::Edge2;
    draw::box(painter, option.rect, ground, edge, scale_.hairline(), grid ? scale_.px(30) : 0);
}

QRect LookStyle::itemRect(SubElement element, const QStyleOption& option, const QWidget*) const {
    const QStyleOptionViewItem& item = viewItem(option);
    const int inset = scale_.px(CellInset), end = scale_.px(CellInset / 2.0);
    const bool ticked = item.features & QStyleOptionViewItem::HasCheckIndicator;
    const int size = scale_.px(TickSize);
    const QRect& r = item.rect;
    if (element == SE_ItemViewItemCheckIndicator)
        return ticked ? QRect(r.left() + inset, r.top() + (r.height() - size) / 2, size, size) : QRect();
    const int begin = item.displayAlignment & Qt::AlignRight ? end : inset; // numbers keep to the right edge
    const int left = ticked ? inset + size + scale_.px(TickGap) : begin;
    return element == SE_ItemViewItemText ? r.adjusted(left, 0, -end, 0) : r;
}

void LookStyle::drawItem(const QStyleOption& option, QPainter& painter, const QWidget* widget) const {
    const QStyleOptionViewItem& item = viewItem(option);
    const bool grid = qobject_cast<const QTableView*>(widget);
    painter.save();
    painter.setClipRect(item.rect);
    if (item.backgroundBrush.style() != Qt::NoBrush) painter.fillRect(item.rect, item.backgroundBrush);
    if (item.state & State_Selected) painter.fillRect(item.rect, item.palette.color(QPalette::Highlight));
    const int more = scale_.hairline() - 1; // the grid's own line is one pixel
    if (grid && more > 0) {
        const QRect& r = item.rect;
        painter.fillRect(QRect(r.left(), r.bottom() + 1 - more, r.width(), more), colour::GridLine);
        painter.fillRect(QRect(r.right() + 1 - more, r.top(), more, r.height()), colour::GridLine);
    }
    if (item.features & QStyleOptionViewItem::HasCheckIndicator) {
        draw::State state;
        state.enabled = item.state & State_Enabled;
        draw::tickBox(painter, itemRect(SE_ItemViewItemCheckIndicator, option, widget), item.checkState, state, scale_);
    }
    const draw::Setting setting = settingOf(item, widget, scale_);
    const int down = setting.lines == 0 ? scale_.px(CellInset) / 2 : 0;
    // The middle of a cell counts the line under it.
    const QRect words = itemRect(SE_ItemViewItemText, option, widget).adjusted(0, down, 0, grid ? 1 : 0);
    draw::text(painter, words, item.text, setting);
    // A list whose rows are not selected still shows the keyboard where it stands.
    if (!grid && (item.state & State_HasFocus) && !(item.state & State_Selected))
        draw::box(painter, item.rect, Qt::NoBrush, colour::Accent, scale_.hairline(), 0);
    painter.restore();
}

bool LookStyle::drawHeader(ControlElement element, const QStyleOption& option, QPainter& painter) const {
    const auto* header = qstyleoption_cast<const QStyleOptionHeader*>(&option);
    if ((element == CE_Header || element == CE_HeaderLabel) && !(header && header->icon.isNull())) return false;
    const QRect& r = option.rect;
    const int line = scale_.hairline();
    if (element != CE_HeaderLabel) {
        painter.fillRect(r, colour::GridHead);
        painter.fillRect(QRect(r.left(), r.bottom() + 1 - line, r.width(), line), colour::Edge2);
    }
    if (element == CE_Header || element == CE_HeaderSection)
        painter.fillRect(QRect(r.right() + 1 - line, r.top(), line, r.height()), colour::Edge2);
    if (element == CE_Header || element == CE_HeaderLabel) {
        draw::Setting setting{painter.font(), option.state & State_Enabled ? colour::Navy : colour::Disabled,
                              (header->textAlignment & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter};
        setting.font.setBold(true);
        const int inset = element == CE_Header ? scale_.px(CellInset) : 0; // else its caller has seen to it
        draw::text(painter, r.adjusted(inset, 0, -inset / 2, 0), header->text, setting);
        // Rows that can be sorted are those of the toolkit's own dialogs.
        if (header->sortIndicator != QStyleOptionHeader::None) {
            const bool up = header->sortIndicator == QStyleOptionHeader::SortUp;
            const QRectF place(r.right() - r.height(), r.top(), r.height(), r.height());
            draw::arrow(painter, place, up ? Qt::UpArrow : Qt::DownArrow, colour::Navy, scale_.px(120));
        }
    }
    return true;
}

bool LookStyle::drawProgress(ControlElement element, const QStyleOption& option, QPainter& painter) const {
    const auto* bar = qstyleoption_cast<const QStyleOptionProgressBar*>(&option);
    if (!bar) return false;
    if (element == CE_ProgressBarGroove) {
        draw::box(painter, bar->rect, colour::Panel, colour::Edge2, scale_.hairline(), scale_.px(30));
    } else if (element == CE_ProgressBarContents) {
        const int gap = 2 * scale_.hairline();
        QRect fill = bar->rect.adjusted(gap, gap, -gap, -gap);
        const qint64 range = qint64{bar->maximum} - bar->minimum, done = qint64{bar->progress} - bar->minimum;
        if (range <= 0 || done <= 0) return true;
        fill.setWidth(static_cast<int>(fill.width() * std::min(done, range) / range));
        painter.fillRect(fill, option.state & State_Enabled ? colour::Accent : colour::Disabled);
    }
    return true; // no words in the bar
}

} // namespace zv::forms
