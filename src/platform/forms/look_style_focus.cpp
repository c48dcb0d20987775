#include "platform/forms/look_style_focus.h"

#include "platform/forms/look_style_draw.h"

namespace zv::forms {

FocusEdge::FocusEdge(QTableView& grid) : QWidget(&grid) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFocusPolicy(Qt::NoFocus);
    setGeometry(grid.rect());
    setVisible(grid.hasFocus());
    grid.installEventFilter(this);
}

void FocusEdge::attach(QTableView& grid) {
    for (QObject* child : grid.children())
        if (dynamic_cast<FocusEdge*>(child)) return;
    new FocusEdge(grid); // the grid owns it
}

void FocusEdge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Scale& scale = draw::scaleOf(this);
    draw::box(painter, rect(), Qt::NoBrush, colour::Accent, scale.focusLine(), scale.px(30));
}

bool FocusEdge::eventFilter(QObject* watched, QEvent* event) {
    const auto* grid = static_cast<const QTableView*>(watched);
    if (event->type() == QEvent::Resize) setGeometry(grid->rect());
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) {
        setVisible(event->type() == QEvent::FocusIn && grid->isEnabled());
        raise();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace zv::forms
