// Shows one page of a document that is looked at before it is printed.
#pragma once

#include "platform/printing/preview_printer.h"

#include <QAbstractScrollArea>
#include <functional>

namespace zv::printing {

/// A page on a ground, whole, as wide as the view or at a size. The wheel and the page keys go on to the next page at
/// the foot of one, and back at its head.
class PageView : public QAbstractScrollArea {
  public:
    /// Told the page, from 0, when another one is shown.
    std::function<void(int page)> PageShown;

    /// The zooms that follow the size of the view; any other is a factor of the size on paper.
    static constexpr double WholePage = 0, PageWidth = -1;

    explicit PageView(const PreviewPages& pages, QWidget* parent = nullptr);

    int page() const { return page_; }
    /// Shows a page, from 0, from its head. A page beyond the last is none.
    void setPage(int page);
    /// Shows the page anew, with what has been added to it.
    void refresh();
    void setZoom(double zoom);
    QSize sizeHint() const override;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void scrollContentsBy(int dx, int dy) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    double pixelsPerPoint() const;
    QSize pageSize() const;
    void setBars();
    bool turn(bool forward);

    const PreviewPages& pages_;
    int page_ = 0;
    double zoom_ = WholePage;
};

} // namespace zv::printing
