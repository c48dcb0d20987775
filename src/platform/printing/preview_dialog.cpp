#include "platform/printing/preview_dialog.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QPagedPaintDevice>
#include <QProgressBar>
#include <QPushButton>
#include <QScreen>
#include <QSpinBox>
#include <QVBoxLayout>
#include <algorithm>

namespace zv::printing {

using namespace Qt::StringLiterals;

namespace {

/// The window was left while the pages were being made. No error: nobody but the window hears of it.
struct Left {};

/// How long the making of pages may go on before the window answers again, in milliseconds.
constexpr int Breath = 50;

/// The number of a page. Enter goes to it and presses no button.
class PageNumber : public QSpinBox {
  public:
    using QSpinBox::QSpinBox;

  protected:
    void keyPressEvent(QKeyEvent* event) override {
        QSpinBox::keyPressEvent(event);
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) event->accept();
    }
};

} // namespace

PreviewDialog::PreviewDialog(std::shared_ptr<QPagedPaintDevice> paper, QWidget* parent)
    : QDialog(parent), paper_(std::move(paper)), pages_(paper_->pageLayout()) {
    setObjectName(u"DialogoVistaPrevia"_s);
    setWindowTitle(u"Print preview"_s);
    setWindowFlag(Qt::WindowMaximizeButtonHint);
    auto* rows = new QVBoxLayout(this);
    auto* pageRow = new QHBoxLayout;
    auto* buttons = new QHBoxLayout;
    rows->addLayout(pageRow);
    addPageRow(*pageRow);
    view_ = new PageView(pages_, this);
    rows->addWidget(view_, 1);
    rows->addLayout(buttons);
    addButtons(*buttons);
    connectPages();
    view_->setFocus();

    // As high as there is room for, and as wide as the page then is.
    const QSize most = screen()->availableSize() * 0.85;
    const QSize page = pages_.layout().fullRect(QPageLayout::Point).size().toSize();
    const int around = fontMetrics().height() * 8;
    const int width = page.scaled(most.width(), most.height() - around, Qt::KeepAspectRatio).width() + around / 2;
    resize(std::clamp(width, std::min(minimumSizeHint().width(), most.width()), most.width()), most.height());
}

void PreviewDialog::addPageRow(QHBoxLayout& row) {
    previous_ = new QPushButton(u"P&revious"_s, this);
    previous_->setObjectName(u"BtnAnterior"_s);
    number_ = new PageNumber(this);
    number_->setObjectName(u"TxtPagina"_s);
    number_->setAccessibleName(u"Page"_s);
    // Room for all the pages that are still to come: the window doesn't grow with them.
    number_->setRange(1, 99999);
    number_->setMinimumWidth(number_->sizeHint().width());
    number_->setRange(1, 1);
    auto* page = new QLabel(u"Pa&ge"_s, this);
    page->setBuddy(number_);
    count_ = new QLabel(this);
    count_->setObjectName(u"LabPaginas"_s);
    count_->setMinimumWidth(fontMetrics().horizontalAdvance(u"of 99999"_s));
    next_ = new QPushButton(u"&Next"_s, this);
    next_->setObjectName(u"BtnSiguiente"_s);
    zoom_ = new QComboBox(this);
    zoom_->setObjectName(u"ComboZoom"_s);
    zoom_->setAccessibleName(u"Zoom"_s);
    zoom_->addItem(u"Whole page"_s, PageView::WholePage);
    zoom_->addItem(u"Page width"_s, PageView::PageWidth);
    for (const int percent : {50, 75, 100, 150, 200}) zoom_->addItem(u"%1 %"_s.arg(percent), percent / 100.0);
    auto* zoom = new QLabel(u"&Zoom"_s, this);
    zoom->setBuddy(zoom_);

    previous_->setAccessibleName(u"Previous page"_s);
    next_->setAccessibleName(u"Next page"_s);
    for (QPushButton* button : {previous_, next_}) button->setAutoDefault(false);
    for (QWidget* widget : std::initializer_list<QWidget*>{previous_, page, number_, count_, next_})
        row.addWidget(widget);
    row.addStretch(1);
    row.addWidget(zoom);
    row.addWidget(zoom_);
}

void PreviewDialog::addButtons(QHBoxLayout& row) {
    making_ = new QProgressBar(this);
    making_->setObjectName(u"ProgressBar"_s);
    making_->setAccessibleName(u"Pages being made"_s);
    making_->setTextVisible(false);
    auto* print = new QPushButton(u"&Print"_s, this);
    print->setObjectName(u"BtnImprimir"_s);
    print->setDefault(true);
    auto* back = new QPushButton(u"&Back"_s, this);
    back->setObjectName(u"BtnRegresar"_s);
    back->setAccessibleDescription(u"Back to the printer, nothing is printed"_s);
    back->setAutoDefault(false);
    row.addWidget(making_, 1);
    row.addStretch(0);
    row.addWidget(print);
    row.addWidget(back);
    connect(print, &QPushButton::clicked, this, &QDialog::accept);
    connect(back, &QPushButton::clicked, this, &QDialog::reject);
}

void PreviewDialog::connectPages() {
    connect(previous_, &QPushButton::clicked, this, [this] { view_->setPage(view_->page() - 1); });
    connect(next_, &QPushButton::clicked, this, [this] { view_->setPage(view_->page() + 1); });
    connect(number_, &QSpinBox::valueChanged, this, [this](int number) {
        if (number - 1 != view_->page()) view_->setPage(number - 1);
    });
    connect(zoom_, &QComboBox::currentIndexChanged, this, [this] { view_->setZoom(zoom_->currentData().toDouble()); });
    view_->PageShown = [this](int) { tellPages(); };
}

void PreviewDialog::tellPages() {
    const int pages = std::max(1, pages_.count()), page = view_->page();
    // What was the last page when it was drawn may have got more on it.
    if (page + 1 >= told_) view_->refresh();
    told_ = pages;
    number_->setMaximum(pages);
    number_->setValue(page + 1);
    count_->setText(u"of %1"_s.arg(pages));
    previous_->setEnabled(page > 0);
    next_->setEnabled(page + 1 < pages);
}

void PreviewDialog::grow(int done, int of) {
    if (sinceShown_.isValid() && sinceShown_.elapsed() < Breath) return;
    making_->setRange(0, of);
    making_->setValue(done);
    tellPages();
    QCoreApplication::processEvents();
    sinceShown_.start();
    if (!isVisible()) throw Left();
}

bool PreviewDialog::look(const Document& document) {
    setModal(true);
    show();
    try {
        PreviewPrinter printer(paper_, pages_);
        document(printer, [this](int done, int of) { grow(done, of); });
        printer.EndDoc();
    } catch (const Left&) {
        return result() == Accepted;
    }
    making_->hide();
    tellPages();
    return exec() == Accepted;
}

} // namespace zv::printing
