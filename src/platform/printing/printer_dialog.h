// The printer dialog, and its stand-in that always prints into one PDF file.
#pragma once

#include "platform/printing/printer.h"

#include <QPointer>
#include <QWidget>

class QPrinter;

namespace zv::printing {

/// Qt's printer dialog under the object name "DialogoImpresora". The choice stays for the next time.
class QtPrinterDialogs : public PrinterDialogs {
  public:
    explicit QtPrinterDialogs(QWidget* parent) : parent_(parent) {}
    std::unique_ptr<Printer> ShowPrinter() override;

  private:
    QPointer<QWidget> parent_;
    std::shared_ptr<QPrinter> chosen_;
};

/// Asks nothing and prints into that file.
class PdfPrinterDialogs : public PrinterDialogs {
  public:
    explicit PdfPrinterDialogs(QString path) : path_(std::move(path)) {}
    std::unique_ptr<Printer> ShowPrinter() override;

  private:
    QString path_;
};

} // namespace zv::printing
