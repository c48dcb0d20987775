// Printing into a PDF file.
#include "platform/base/runtime_error.h"
#include "platform/printing/qt_printer.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPdfWriter>
#include <QSaveFile>

using namespace Qt::StringLiterals;

namespace zv::printing {

namespace {

/// A PDF writer together with its file.
class PdfFile {
  public:
    explicit PdfFile(const QString& path) : file(path), writer(&file) { file.setDirectWriteFallback(true); }

    QSaveFile file;
    QPdfWriter writer;
};

class PdfPrinter : public QtPrinter {
  public:
    explicit PdfPrinter(std::shared_ptr<PdfFile> pdf)
        : QtPrinter(std::shared_ptr<QPagedPaintDevice>(pdf, &pdf->writer)), pdf_(std::move(pdf)) {}

  protected:
    void beginDocument() override {
        if (!pdf_->file.isOpen() && !pdf_->file.open(QIODevice::WriteOnly)) throw RuntimeError(PrinterError);
        QtPrinter::beginDocument();
    }
    void beginPage() override {
        QtPrinter::beginPage();
        if (pdf_->file.error() != QFileDevice::NoError) throw RuntimeError(PrinterError);
    }
    void finishDocument() override {
        QtPrinter::finishDocument();
        if (!pdf_->file.commit()) throw RuntimeError(PrinterError);
    }

  private:
    std::shared_ptr<PdfFile> pdf_;
};

std::unique_ptr<Printer> printInto(const QString& path, const QPageLayout& layout) {
    auto pdf = std::make_shared<PdfFile>(path);
    pdf->writer.setPageLayout(layout);
    pdf->writer.setCreator(u"Zarvelia"_s);
    return std::make_unique<PdfPrinter>(std::move(pdf));
}

} // namespace

std::unique_ptr<Printer> pdfPrinter(const QString& path) {
    return printInto(path, QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, QMarginsF(10, 10, 10, 10)));
}

std::unique_ptr<Printer> pdfPrinter(const QString& path, const QPagedPaintDevice& paper) {
    return printInto(path, paper.pageLayout());
}

} // namespace zv::printing
