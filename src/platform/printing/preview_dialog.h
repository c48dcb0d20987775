// The window that shows the pages of a document before they are printed.
#pragma once

#include "platform/printing/page_view.h"

#include <QDialog>
#include <QElapsedTimer>

class QComboBox;
class QHBoxLayout;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;

namespace zv::printing {

/// Under the object name "DialogoVistaPrevia". The first pages can be looked at while the others are still being made.
class PreviewDialog : public QDialog {
  public:
    /// The pages are those that the paper's device would print.
    PreviewDialog(std::shared_ptr<QPagedPaintDevice> paper, QWidget* parent);

    /// Makes the pages and lets them be looked at. True to print them, false to go back. Leaving stops the making.
    /// Errors of the document leave by exception.
    bool look(const Document& document);

    const PreviewPages& pages() const { return pages_; }

  private:
    void addPageRow(QHBoxLayout& row);
    void addButtons(QHBoxLayout& row);
    void connectPages();
    void tellPages();
    void grow(int done, int of);

    std::shared_ptr<QPagedPaintDevice> paper_;
    PreviewPages pages_;
    QPushButton *previous_, *next_;
    QSpinBox* number_;
    QLabel* count_;
    QComboBox* zoom_;
    PageView* view_;
    QProgressBar* making_;
    QElapsedTimer sinceShown_;
    int told_ = 0; ///< number of pages when it was told last
};

} // namespace zv::printing
