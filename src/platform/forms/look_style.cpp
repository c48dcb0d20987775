// The style's entry points: what is drawn by whom, measures, hints, and what is set up on a widget once.
#include "platform/forms/look_style.h"

#include "platform/forms/look_style_draw.h"
#include "platform/forms/look_style_focus.h"
#include "platform/forms/look_style_icons.h"
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTableView>
#include <QTextDocument>

namespace zv::forms {

using namespace Qt::StringLiterals;

namespace {

constexpr int TextInset = 75;              // text boxes and combos, twips
constexpr int MemoLeft = 90, MemoTop = 60; // twips
constexpr double MemoMargin = 1;           // the document's own margin, pixels
constexpr int LineEditMargin = 2;          // what QLineEdit adds by itself, pixels

/// Viewport margins are the area's own affair; the style knows better where its text begins.
struct Margins : QAbstractScrollArea {
    static void set(QAbstractScrollArea& area, int left, int top, int right, int foot) {
        using Setter = void (QAbstractScrollArea::*)(int, int, int, int);
        (area.*static_cast<Setter>(&Margins::setViewportMargins))(left, top, right, foot);
    }
};

bool isBox(const QWidget* widget) {
    const auto* box = qobject_cast<const QLineEdit*>(widget);
    return box && box->hasFrame() && !qobject_cast<const QComboBox*>(box->parentWidget());
}

bool isArea(const QWidget* widget) { return qobject_cast<const QAbstractScrollArea*>(widget) != nullptr; }

bool isPopup(const QWidget* widget) { return widget && widget->inherits("QComboBoxPrivateContainer"); }

/// A bar is slim by itself or by the area that holds it.
bool isSlim(const QWidget* widget) {
    for (int level = 0; widget && level < 3; ++level, widget = widget->parentWidget())
        if (widget->property("zvSlim").toBool()) return true;
    return false;
}

} // namespace

LookStyle::LookStyle(const Scale& scale) : QProxyStyle(u"Fusion"_s), scale_(scale) {}

void LookStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    switch (element) {
    case PE_PanelLineEdit:
        if (!isBox(widget)) break;
        draw::field(*painter, option->rect, option->palette.color(QPalette::Base), draw::stateOf(*option, widget),
                    scale_);
        return;
    case PE_FrameLineEdit:
        if (isBox(widget)) return;
        break;
    case PE_PanelButtonCommand: draw::button(*painter, option->rect, draw::stateOf(*option, widget), scale_); return;
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck: {
        const Qt::CheckState tick = option->state & State_On         ? Qt::Checked
                                    : option->state & State_NoChange ? Qt::PartiallyChecked
                                                                     : Qt::Unchecked;
        draw::tickBox(*painter, option->rect, tick, draw::stateOf(*option, widget), scale_);
        return;
    }
    case PE_IndicatorRadioButton:
        draw::roundTick(*painter, option->rect, option->state & State_On, draw::stateOf(*option, widget), scale_);
        return;
    case PE_PanelTipLabel: draw::box(*painter, option->rect, colour::Tip, colour::Edge, scale_.hairline(), 0); return;
    case PE_PanelMenu: draw::box(*painter, option->rect, colour::Panel, colour::Edge, scale_.hairline(), 0); return;
    case PE_FrameMenu: return;
    case PE_PanelScrollAreaCorner: painter->fillRect(option->rect, option->palette.color(QPalette::Base)); return;
    case PE_PanelItemViewRow:
        if (qobject_cast<const QTableView*>(widget) || qobject_cast<const QListView*>(widget)) return;
        break;
    default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void LookStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    switch (element) {
    case CE_ShapedFrame:
        if (!isArea(widget) && !isPopup(widget)) break;
        drawFrame(*option, *painter, widget);
        return;
    case CE_PushButton:
    case CE_PushButtonBevel:
    case CE_PushButtonLabel: {
        const auto* button = qstyleoption_cast<const QStyleOptionButton*>(option);
        if (!button || !button->icon.isNull()) break;
        const draw::State state = draw::stateOf(*option, widget);
        if (element != CE_PushButtonLabel) draw::button(*painter, option->rect, state, scale_);
        if (element == CE_PushButtonBevel) return;
        painter->setPen(draw::buttonInk(state));
        painter->drawText(option->rect, Qt::AlignCenter | Qt::TextHideMnemonic, button->text);
        return;
    }
    case CE_ComboBoxLabel: {
        const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(option);
        if (!combo || combo->editable || !combo->currentIcon.isNull()) break;
        const QRect field = subControlRect(CC_ComboBox, combo, SC_ComboBoxEditField, widget);
        draw::text(*painter, field, combo->currentText,
                   {painter->font(), combo->palette.color(QPalette::Text), Qt::AlignLeft | Qt::AlignVCenter});
        return;
    }
    case CE_ItemViewItem: {
        const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
        const bool flat = qobject_cast<const QTableView*>(widget) || qobject_cast<const QListView*>(widget);
        if (!item || !item->icon.isNull() || !flat) break;
        drawItem(*option, *painter, widget);
        return;
    }
    case CE_Header:
    case CE_HeaderSection:
    case CE_HeaderEmptyArea:
    case CE_HeaderLabel:
        if (drawHeader(element, *option, *painter)) return;
        break;
    case CE_ProgressBarGroove:
    case CE_ProgressBarContents:
    case CE_ProgressBarLabel:
        if (drawProgress(element, *option, *painter)) return;
        break;
    default: break;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
}

void LookStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
    if (control == CC_ComboBox) return drawComboBox(*option, *painter, widget);
    if (control == CC_ScrollBar) return drawScrollBar(*option, *painter, widget);
    if (control == CC_SpinBox) return drawSpinBox(*option, *painter, widget);
    if (control == CC_ToolButton) return drawToolButton(*option, *painter, widget);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
}

int LookStyle::frameOf(const QWidget* area) const {
    // Cells of a grid begin at its border; texts of lists and memos leave room for the line of the focus.
    return qobject_cast<const QTableView*>(area) ? scale_.hairline() : scale_.focusLine();
}

QRect LookStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const {
    switch (element) {
    case SE_LineEditContents: {
        if (!isBox(widget)) break;
        const int across = scale_.px(TextInset) - LineEditMargin, line = scale_.hairline();
        return option->rect.adjusted(across, line, -across, -line);
    }
    case SE_ShapedFrameContents: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (!frame || frame->frameShape == QFrame::NoFrame || !(isArea(widget) || isPopup(widget))) break;
        const int line = isPopup(widget) ? scale_.hairline() : frameOf(widget);
        return option->rect.adjusted(line, line, -line, -line);
    }
    case SE_ItemViewItemCheckIndicator:
    case SE_ItemViewItemText:
    case SE_ItemViewItemFocusRect: {
        const auto* item = qstyleoption_cast<const QStyleOptionViewItem*>(option);
        if (!item || !item->icon.isNull()) break;
        return itemRect(element, *option, widget);
    }
    default: break;
    }
    return QProxyStyle::subElementRect(element, option, widget);
}

QRect LookStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
    if (control == CC_ScrollBar && part != SC_None) return scrollBarRect(*option, part, widget);
    if (control == CC_ComboBox) {
        const int drop = scale_.px(300) + scale_.hairline();
        const QRect rect = option->rect;
        if (part == SC_ComboBoxEditField) {
            const int inset = scale_.px(TextInset), line = scale_.hairline();
            return rect.adjusted(inset, line, -drop - line, -line);
        }
        if (part == SC_ComboBoxArrow) return {rect.right() + 1 - drop, rect.top(), drop, rect.height()};
    }
    if (control == CC_SpinBox) {
        const QRect& r = option->rect;
        const int line = scale_.hairline(), drop = scale_.px(300), upper = r.height() / 2;
        if (part == SC_SpinBoxEditField) return r.adjusted(scale_.px(TextInset), line, -drop - line, -line);
        if (part == SC_SpinBoxUp) return {r.right() + 1 - drop, r.top(), drop, upper};
        if (part == SC_SpinBoxDown) return {r.right() + 1 - drop, r.top() + upper, drop, r.height() - upper};
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize LookStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    if (type == CT_PushButton)
        return {std::max(scale_.px(1170), size.width() + scale_.px(360)),
                std::max(scale_.px(420), size.height() + scale_.px(150))};
    const auto* item = type == CT_ItemViewItem ? qstyleoption_cast<const QStyleOptionViewItem*>(option) : nullptr;
    const auto* list = qobject_cast<const QListView*>(widget);
    if (item && list && list->viewMode() == QListView::ListMode && item->icon.isNull()) {
        const QVariant twips = list->property("zvRowHeight");
        // Rounded down, so that the rows that a list is made for always fit.
        const int height = static_cast<int>((twips.isValid() ? twips.toInt() : 255) * scale_.value() / 15);
        const int width = item->fontMetrics.horizontalAdvance(item->text) + 2 * scale_.px(60);
        return {width, isPopup(list->window()) ? std::max(height, item->fontMetrics.height() + scale_.px(60)) : height};
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int LookStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_ScrollBarExtent: return scale_.px(isSlim(widget) ? 150 : 255);
    case PM_ScrollBarSliderMin: return scale_.px(240);
    case PM_ScrollView_ScrollBarSpacing:
    case PM_ScrollView_ScrollBarOverlap: return 0;
    case PM_TextCursorWidth:
    case PM_DefaultFrameWidth: return scale_.hairline();
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return scale_.px(165);
    case PM_FocusFrameHMargin:
    case PM_HeaderMargin: return scale_.px(60);
    case PM_ToolTipLabelFrameWidth: return scale_.px(75);
    case PM_MessageBoxIconSize: return scale_.px(540);
    case PM_SmallIconSize: return scale_.px(240);
    case PM_LayoutLeftMargin:
    case PM_LayoutTopMargin:
    case PM_LayoutRightMargin:
    case PM_LayoutBottomMargin: return scale_.px(150);
    case PM_LayoutHorizontalSpacing:
    case PM_LayoutVerticalSpacing: return scale_.px(90);
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical: return 0;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

QIcon LookStyle::standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const {
    const QIcon own = draw::messageIcon(which, pixelMetric(PM_MessageBoxIconSize, option, widget));
    return own.isNull() ? QProxyStyle::standardIcon(which, option, widget) : own;
}

int LookStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    switch (hint) {
    case SH_EtchDisabledText:
    case SH_DitherDisabledText:
    case SH_ScrollBar_Transient:
    case SH_ScrollView_FrameOnlyAroundContents:
    case SH_ComboBox_Popup:
    case SH_Widget_Animate:
    case SH_DialogButtonBox_ButtonsHaveIcons: return 0;
    case SH_ItemView_ShowDecorationSelected:
    case SH_ComboBox_ListMouseTracking: return 1;
    case SH_Table_GridLineColor: return static_cast<int>(colour::GridLine.rgba());
    default: return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

void LookStyle::polishMemo(QPlainTextEdit& memo) const {
    QTextDocument& document = *memo.document();
    if (document.documentMargin() > MemoMargin) {
        // A margin is no change of the text: nobody is told of it, and it cannot be undone.
        const QSignalBlocker silent(document);
        const bool undo = document.isUndoRedoEnabled();
        document.setUndoRedoEnabled(false);
        document.setDocumentMargin(MemoMargin);
        document.setUndoRedoEnabled(undo);
    }
    // Its words wrap; a bar below would only take their place.
    if (memo.lineWrapMode() == QPlainTextEdit::WidgetWidth) memo.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    const int used = frameOf(&memo) + static_cast<int>(MemoMargin);
    const int across = std::max(0, scale_.px(MemoLeft) - used), down = std::max(0, scale_.px(MemoTop) - used);
    Margins::set(memo, across, down, down, down);
}

void LookStyle::polish(QWidget* widget) {
    QProxyStyle::polish(widget);
    if (isBox(widget) || isArea(widget) || qobject_cast<QComboBox*>(widget)) widget->setAttribute(Qt::WA_Hover);
    if (auto* memo = qobject_cast<QPlainTextEdit*>(widget)) polishMemo(*memo);
    if (isArea(widget)) widget->installEventFilter(this);
    if (auto* grid = qobject_cast<QTableView*>(widget)) FocusEdge::attach(*grid);
    if (auto* combo = qobject_cast<QComboBox*>(widget)) {
        constexpr int ToolkitRows = 10, Rows = 12;
        if (combo->maxVisibleItems() == ToolkitRows) combo->setMaxVisibleItems(Rows);
    }
}

bool LookStyle::eventFilter(QObject* watched, QEvent* event) {
    auto* widget = qobject_cast<QWidget*>(watched);
    switch (event->type()) {
    case QEvent::FocusIn:
    case QEvent::FocusOut:
    case QEvent::EnabledChange:
    case QEvent::ReadOnlyChange:
        if (widget) widget->update();
        break;
    case QEvent::StyleChange:
        if (auto* memo = qobject_cast<QPlainTextEdit*>(watched)) polishMemo(*memo);
        break;
    default: break;
    }
    return QProxyStyle::eventFilter(watched, event);
}

} // namespace zv::forms
