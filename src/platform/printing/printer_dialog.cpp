#include "platform/printing/printer_dialog.h"

#include "platform/base/runtime_error.h"
#include "platform/printing/printer_box.h"
#include "platform/printing/progress_window.h"
#include "platform/printing/qt_printer.h"

#include <QApplication>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace zv::printing {

QtPrinterDialogs::QtPrinterDialogs(QWidget* parent) : parent_(parent) {}
QtPrinterDialogs::~QtPrinterDialogs() = default;

QWidget* QtPrinterDialogs::window() const { return parent_ ? parent_.data() : QApplication::activeWindow(); }

std::unique_ptr<Printer> QtPrinterDialogs::ShowPrinter(const Document& document) {
    if (!chosen_) {
        chosen_ = std::make_shared<QPrinter>(QPrinter::HighResolution);
        chosen_->setDocName(u"Zarvelia"_s);
        chosen_->setCreator(u"Zarvelia"_s);
    }
    chosen_->setCopyCount(1);

    QWidget* above = window();
    PrinterBox box(chosen_, document, above);
    const bool accepted = box.exec() == QDialog::Accepted;
    // With the preview two windows close at once, and a window manager may leave the focus with neither.
    if (above) above->activateWindow();
    if (box.error() != 0) throw RuntimeError(box.error());
    if (!accepted) throw RuntimeError(PrinterCancel);

    if (chosen_->outputFormat() == QPrinter::PdfFormat && !chosen_->outputFileName().isEmpty())
        return pdfPrinter(chosen_->outputFileName(), *chosen_);
    if (!chosen_->isValid()) throw RuntimeError(PrinterError);
    return std::make_unique<QtPrinter>(chosen_);
}

void QtPrinterDialogs::showProgress(int done, int of) {
    if (done == 0) {
        progress_.reset();
        return;
    }
    if (!progress_) progress_ = std::make_unique<ProgressWindow>(window());
    progress_->show(done, of);
}

std::unique_ptr<Printer> PdfPrinterDialogs::ShowPrinter(const Document&) { return pdfPrinter(path_); }

} // namespace zv::printing
