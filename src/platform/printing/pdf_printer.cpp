// Printing into a PDF file.
#include "platform/base/runtime_error.h"
#include "platform/printing/qt_printer.h"

#include <QFileInfo>
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
        // Only a plain file can be replaced: a device or a pipe of that name would be lost.
        const QFileInfo target(pdf_->file.fileName());
        if (target.exists() && !target.isFile()) throw RuntimeError(PrinterError);
        if (!pdf_->file.open(QIODevice::WriteOnly)) throw RuntimeError(PrinterError);
        QtPrinter::beginDocument();
    }
    void beginPage() override {
        QtPrinter::beginPage();
        if (pdf_->file.error() != QFileDevice::NoError) throw RuntimeError(PrinterError);
    }
    void finishDocument() override {
        QtPrinter::finishDocument();
        // What is still buffered has to be written before the commit, which doesn't look whether that succeeded.
        if (!pdf_->file.flush()) pdf_->file.cancelWriting();
        if (!pdf_->file.commit()) throw RuntimeError(PrinterError);
    }

  private:
    std::shared_ptr<PdfFile> pdf_;
};

std::unique_ptr<Printer> printInto(const QString& path, const QPageLayout& layout) {
    auto pdf = std::make_shared<PdfFile>(path);
    pdf->writer.setPageLayout(layout);
    pdf->writer.setTitle(u"Zarvelia"_s);
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
