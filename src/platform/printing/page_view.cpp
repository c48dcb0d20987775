#include "platform/printing/page_view.h"

#include <QKeyEvent>
#include <QScrollBar>
#include <QWheelEvent>

namespace zv::printing {

using namespace Qt::StringLiterals;

namespace {

/// Ground around the page, and depth of its shadow, in pixels.
constexpr int Ground = 12, Depth = 3;
constexpr double PointsPerInch = 72;

} // namespace

PageView::PageView(const PreviewPages& pages, QWidget* parent) : QAbstractScrollArea(parent), pages_(pages) {
    setObjectName(u"PageView"_s);
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setBackgroundRole(QPalette::Midlight);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

QSize PageView::sizeHint() const { return {640, 720}; }

double PageView::pixelsPerPoint() const {
    if (zoom_ > 0) return zoom_ * logicalDpiX() / PointsPerInch;
    const QSizeF paper = pages_.layout().fullRect(QPageLayout::Point).size();
    // The bars don't count: one that comes and goes with the size of the page would never come to rest.
    const QSize room = maximumViewportSize() - 2 * QSize(Ground, Ground);
    const double high = room.height() / paper.height();
    double fitting = room.width() / paper.width();
    if (zoom_ == WholePage)
        fitting = std::min(fitting, high);
    else if (fitting > high)
        fitting = (room.width() - verticalScrollBar()->sizeHint().width()) / paper.width();
    return std::max(0.05, fitting);
}

QSize PageView::pageSize() const {
    return (pages_.layout().fullRect(QPageLayout::Point).size() * pixelsPerPoint()).toSize();
}

void PageView::setBars() {
    const QSize all = pageSize() + 2 * QSize(Ground, Ground), seen = viewport()->size();
    for (QScrollBar* bar : {horizontalScrollBar(), verticalScrollBar()}) {
        const bool across = bar == horizontalScrollBar();
        const int view = across ? seen.width() : seen.height();
        bar->setPageStep(view);
        bar->setSingleStep(std::max(1, view / 12));
        bar->setRange(0, std::max(0, (across ? all.width() : all.height()) - view));
    }
    viewport()->update();
}

void PageView::setPage(int page) {
    if (page < 0 || page >= pages_.count()) return;
    page_ = page;
    verticalScrollBar()->setValue(0);
    refresh();
    if (PageShown) PageShown(page);
}

void PageView::refresh() {
    if (page_ >= pages_.count()) return;
    viewport()->update();
    // For who can't see the page.
    setAccessibleName(u"Page %1"_s.arg(page_ + 1));
    setAccessibleDescription(pages_.words(page_));
}

void PageView::setZoom(double zoom) {
    zoom_ = zoom;
    setBars();
}

void PageView::paintEvent(QPaintEvent*) {
    if (page_ >= pages_.count()) return;
    const QSize size = pageSize(), seen = viewport()->size();
    const QPoint corner(std::max(Ground, (seen.width() - size.width()) / 2) - horizontalScrollBar()->value(),
                        std::max(Ground, (seen.height() - size.height()) / 2) - verticalScrollBar()->value());
    const QRect paper(corner, size);
    QPainter painter(viewport());
    painter.fillRect(paper.translated(Depth, Depth), palette().color(QPalette::Dark));
    painter.fillRect(paper, Qt::white);
    pages_.draw(page_, painter, paper);
    painter.setPen(palette().color(QPalette::Dark));
    painter.drawRect(paper.adjusted(0, 0, -1, -1));
}

void PageView::resizeEvent(QResizeEvent*) { setBars(); }

void PageView::scrollContentsBy(int, int) { viewport()->update(); }

bool PageView::turn(bool forward) {
    const QScrollBar& bar = *verticalScrollBar();
    if (bar.value() != (forward ? bar.maximum() : bar.minimum())) return false;
    const int before = page_;
    setPage(page_ + (forward ? 1 : -1));
    if (!forward && page_ != before) verticalScrollBar()->setValue(bar.maximum());
    return true;
}

void PageView::wheelEvent(QWheelEvent* event) {
    const int turned = event->angleDelta().y();
    if (turned == 0 || !turn(turned < 0)) QAbstractScrollArea::wheelEvent(event);
    event->accept();
}

void PageView::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
    case Qt::Key_PageDown:
    case Qt::Key_PageUp:
        if (!turn(event->key() == Qt::Key_PageDown))
            verticalScrollBar()->triggerAction(event->key() == Qt::Key_PageDown ? QAbstractSlider::SliderPageStepAdd
                                                                                : QAbstractSlider::SliderPageStepSub);
        break;
    case Qt::Key_Home: setPage(0); break;
    case Qt::Key_End: setPage(pages_.count() - 1); break;
    default: QAbstractScrollArea::keyPressEvent(event);
    }
}

} // namespace zv::printing
