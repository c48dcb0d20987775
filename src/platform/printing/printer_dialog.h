// The printer dialog, and its stand-in that always prints into one PDF file.
#pragma once

#include "platform/printing/printer.h"

#include <QPointer>
#include <QWidget>

class QPrinter;

namespace zv::printing {

class ProgressWindow;

/// Qt's printer dialog with the paper and a preview. The choice stays for the next time.
class QtPrinterDialogs : public PrinterDialogs {
  public:
    explicit QtPrinterDialogs(QWidget* parent);
    ~QtPrinterDialogs() override;
    std::unique_ptr<Printer> ShowPrinter(const Document& document) override;
    void showProgress(int done, int of) override;

  private:
    QWidget* window() const;

    QPointer<QWidget> parent_;
    std::shared_ptr<QPrinter> chosen_;
    std::unique_ptr<ProgressWindow> progress_;
};

/// Asks nothing and prints into that file.
class PdfPrinterDialogs : public PrinterDialogs {
  public:
    explicit PdfPrinterDialogs(QString path) : path_(std::move(path)) {}
    std::unique_ptr<Printer> ShowPrinter(const Document& document) override;

  private:
    QString path_;
};

} // namespace zv::printing
