#include "platform/forms/controls.h"

#include "platform/base/text.h"
#include "platform/forms/decoration.h"
#include <QMouseEvent>

namespace zv::forms {

Label::Label(QWidget* parent) : Control(parent) {
    setTextFormat(Qt::PlainText);
    setTextInteractionFlags(Qt::NoTextInteraction);
}

void Label::setCaption(const QString& text) {
    caption_ = text;
    setText(text);
}

void Label::dress(Role role, const QString& text, int typeTwips, bool bold, Qt::Alignment alignment) {
    setLook(role);
    setType(typeTwips, bold);
    setAlignment(alignment);
    setCaption(text);
}

void Label::setForeColor(const QColor& colour) {
    QPalette changed = palette();
    changed.setColor(QPalette::WindowText, colour);
    setPalette(changed);
}

void Label::setBackColor(const QColor& colour) {
    QPalette changed = palette();
    changed.setColor(QPalette::Window, colour);
    setPalette(changed);
    setAutoFillBackground(colour.isValid());
}

void Label::mousePressEvent(QMouseEvent* event) {
    pressed_ = event->button() == Qt::LeftButton;
    if (Click || DblClick)
        event->accept();
    else
        event->ignore();
}

void Label::mouseReleaseEvent(QMouseEvent* event) {
    const bool click = pressed_ && QWidget::rect().contains(event->position().toPoint());
    pressed_ = false;
    if (click) fire(Click);
}

void Label::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return;
    if (DblClick)
        fire(DblClick);
    else
        pressed_ = true; // two quick clicks are two clicks
}

void Label::keyPressEvent(QKeyEvent* event) {
    const bool presses = event->key() == Qt::Key_Space || isEnterKey(*event);
    if (roleOf(this) != Role::Button || !presses)
        QLabel::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        fire(Click);
}

Button::Button(QWidget* parent) : Control(parent) {
    setRole(this, Role::Button);
    setAutoDefault(false);
    setType(type::M, true);
    connect(this, &QPushButton::clicked, this, [this] { fire(Click); });
}

void Button::keyPressEvent(QKeyEvent* event) {
    if (!isEnterKey(*event))
        QPushButton::keyPressEvent(event);
    else if (!event->isAutoRepeat())
        click();
}

Frame::Frame(QWidget* parent) : Control(parent) { setRole(this, Role::Frame); }

Rule::Rule(QWidget* parent) : Control(parent) { setRole(this, Role::Rule); }

Combo::Combo(QWidget* parent) : Control(parent) {
    setRole(this, Role::Combo);
    setMaxVisibleItems(12);
    connect(this, &QComboBox::currentIndexChanged, this, [this] {
        if (!adjusting_) fire(Click);
    });
}

void Combo::setListIndex(int row) {
    if (row < -1 || row >= count()) throw RuntimeError(380);
    setCurrentIndex(row);
}

// The toolkit chooses the first row that is added, and another one when the chosen row goes.
void Combo::AddItem(const QString& text) {
    const int chosen = currentIndex();
    adjusting_ = true;
    addItem(text);
    setCurrentIndex(chosen);
    adjusting_ = false;
}

void Combo::RemoveItem(int row) {
    if (row < 0 || row >= count()) throw RuntimeError(5);
    const int chosen = currentIndex();
    adjusting_ = true;
    removeItem(row);
    setCurrentIndex(chosen == row ? -1 : chosen > row ? chosen - 1 : chosen);
    adjusting_ = false;
}

ListBox::ListBox(QWidget* parent) : Control(parent) {
    setRole(this, Role::List);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    connect(this, &QListWidget::currentRowChanged, this, [this] {
        if (!adjusting_) fire(Click);
    });
}

void ListBox::setListIndex(int row) {
    if (row < -1 || row >= count()) throw RuntimeError(380);
    setCurrentRow(row);
}

QString ListBox::Text() const { return currentItem() ? currentItem()->text() : QString(); }

void ListBox::AddItem(const QString& text) {
    adjusting_ = true;
    const int chosen = currentRow();
    auto* added = new QListWidgetItem(text);
    decorate(added);
    addItem(added);
    setCurrentRow(chosen);
    adjusting_ = false;
}

// A row that starts with blanks joins the filters around it: it stands out.
void ListBox::decorate(QListWidgetItem* item) {
    if (!item->text().startsWith(u"  ")) return;
    QFont bold = font();
    bold.setBold(true);
    item->setFont(bold);
    item->setForeground(colour::Accent);
}

void ListBox::Clear() {
    adjusting_ = true;
    clear();
    adjusting_ = false;
}

void ListBox::applyScale(const Scale& scale) {
    Placed::applyScale(scale);
    for (int row = 0; row < count(); ++row) decorate(item(row));
}

// The toolkit chooses the first row when the list is entered by the tab key.
void ListBox::focusInEvent(QFocusEvent* event) {
    const bool none = currentRow() < 0;
    adjusting_ = true;
    QListWidget::focusInEvent(event);
    if (none) setCurrentRow(-1);
    adjusting_ = false;
}

CheckList::CheckList(QWidget* parent) : Control(parent) {
    setRole(this, Role::List);
    setSlim(this);
    forms::setRowHeight(this, 225);
    setUniformItemSizes(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
}

bool CheckList::Selected(int row) const {
    if (row < 0 || row >= count()) throw RuntimeError(381);
    return item(row)->checkState() == Qt::Checked;
}

void CheckList::setSelected(int row, bool selected) {
    if (row < 0 || row >= count()) throw RuntimeError(381);
    item(row)->setCheckState(selected ? Qt::Checked : Qt::Unchecked);
}

int CheckList::SelCount() const {
    int ticks = 0;
    for (int row = 0; row < count(); ++row) ticks += Selected(row);
    return ticks;
}

void CheckList::AddItem(const QString& text) {
    auto* added = new QListWidgetItem(text);
    added->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsUserCheckable);
    added->setCheckState(Qt::Unchecked);
    addItem(added);
}

void CheckList::applyScale(const Scale& scale) {
    Placed::applyScale(scale);
    doItemsLayout();
}

// A click anywhere in the row turns its tick; the toolkit takes only the box itself.
void CheckList::mousePressEvent(QMouseEvent* event) {
    QListWidgetItem* hit = itemAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !hit) return;
    setCurrentItem(hit);
    hit->setCheckState(hit->checkState() == Qt::Checked ? Qt::Unchecked : Qt::Checked);
}

void CheckList::mouseReleaseEvent(QMouseEvent*) {}

void CheckList::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

ScrollBar::ScrollBar(QWidget* parent) : Control(parent) {
    setRole(this, Role::ScrollBar);
    setFocusPolicy(Qt::StrongFocus);
    setTracking(false); // a drag changes the value when it ends
    setPageStep(1);
    connect(this, &QScrollBar::valueChanged, this, [this] { fire(Change); });
}

void ScrollBar::setValue(int value) {
    const int wanted = toInteger(value);
    if (wanted < minimum() || wanted > maximum()) throw RuntimeError(380);
    QScrollBar::setValue(wanted);
}

void ScrollBar::setMin(int min) { setMinimum(toInteger(min)); }

void ScrollBar::setMax(int max) { setMaximum(toInteger(max)); }

void ScrollBar::wheelEvent(QWheelEvent* event) {
    event->accept();
    QScrollBar::setValue(value() - wheel_.take(*event) * singleStep());
}

ProgressBar::ProgressBar(QWidget* parent) : Control(parent) {
    setRole(this, Role::Progress);
    setTextVisible(false);
    setRange(0, 100);
    setValue(0);
}

void ProgressBar::setProgress(int value) {
    setValue(value);
    if (isVisible()) repaint();
}

// With equal bounds the toolkit would show an endless bar, with the value beyond them one that has not begun.
void ProgressBar::setMax(int max) {
    const int top = std::max(1, max);
    setValue(std::min(value(), top));
    setRange(0, top);
}

TabControl::TabControl(QWidget* parent) : Control(parent) {
    setExpanding(false);
    setDrawBase(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus); // the toolkit's own takes the focus from the tab key only
    connect(this, &QTabBar::currentChanged, this, [this] {
        if (!filling_) fire(Click);
    });
}

void TabControl::setTabs(const std::vector<std::pair<QString, int>>& tabs, int first) {
    filling_ = true;
    edges_.assign(1, Left());
    for (const auto& [caption, pitch] : tabs) {
        edges_.push_back(edges_.back() + pitch);
        addTab(caption);
    }
    setCurrentIndex(first);
    filling_ = false;
}

void TabControl::setTab(int tab) {
    if (tab < 0 || tab >= count()) throw RuntimeError(380);
    setCurrentIndex(tab);
}

QSize TabControl::tabSizeHint(int index) const {
    if (!scale() || index < 0 || index + 1 >= static_cast<int>(edges_.size())) return {1, 1};
    const auto i = static_cast<std::size_t>(index);
    return {scale()->px(edges_[i + 1]) - scale()->px(edges_[i]), height()};
}

void TabControl::paintEvent(QPaintEvent*) {
    if (!scale()) return;
    QPainter painter(this);
    painter.setFont(font());
    for (int i = 0; i < count(); ++i) {
        TabLook tab;
        tab.rect = tabRect(i);
        tab.caption = tabText(i);
        tab.chosen = i == currentIndex();
        tab.hovered = i == hovered_ && isEnabled();
        tab.focused = tab.chosen && hasFocus() && byKeys_;
        tab.enabled = isEnabled();
        paintTab(painter, tab, *scale());
    }
}

void TabControl::mouseMoveEvent(QMouseEvent* event) {
    const int over = tabAt(event->position().toPoint());
    if (over != hovered_) {
        hovered_ = over;
        update();
    }
    QTabBar::mouseMoveEvent(event);
}

void TabControl::setByKeys(bool byKeys) {
    byKeys_ = byKeys;
    update();
}

void TabControl::mousePressEvent(QMouseEvent* event) {
    setByKeys(false);
    QTabBar::mousePressEvent(event);
}

void TabControl::keyPressEvent(QKeyEvent* event) {
    setByKeys(true);
    QTabBar::keyPressEvent(event);
}

void TabControl::focusInEvent(QFocusEvent* event) {
    QTabBar::focusInEvent(event);
    if (event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason) setByKeys(true);
}

void TabControl::leaveEvent(QEvent* event) {
    hovered_ = -1;
    update();
    QTabBar::leaveEvent(event);
}

} // namespace zv::forms
