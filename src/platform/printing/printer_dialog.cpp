#include "platform/printing/printer_dialog.h"

#include "platform/base/runtime_error.h"
#include "platform/printing/qt_printer.h"

#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>

using namespace Qt::StringLiterals;

namespace zv::printing {

std::unique_ptr<Printer> QtPrinterDialogs::ShowPrinter() {
    if (!chosen_) {
        chosen_ = std::make_shared<QPrinter>(QPrinter::HighResolution);
        chosen_->setDocName(u"Zarvelia"_s);
        chosen_->setCreator(u"Zarvelia"_s);
    }
    chosen_->setCopyCount(1);

    QPrintDialog dialog(chosen_.get(), parent_ ? parent_.data() : QApplication::activeWindow());
    dialog.setObjectName(u"DialogoImpresora"_s);
    dialog.setOptions(QAbstractPrintDialog::PrintToFile | QAbstractPrintDialog::PrintShowPageSize |
                      QAbstractPrintDialog::PrintCollateCopies);
    if (dialog.exec() != QDialog::Accepted) throw RuntimeError(PrinterCancel);

    if (chosen_->outputFormat() == QPrinter::PdfFormat && !chosen_->outputFileName().isEmpty())
        return pdfPrinter(chosen_->outputFileName(), *chosen_);
    if (!chosen_->isValid()) throw RuntimeError(PrinterError);
    return std::make_unique<QtPrinter>(chosen_);
}

std::unique_ptr<Printer> PdfPrinterDialogs::ShowPrinter() { return pdfPrinter(path_); }

} // namespace zv::printing
