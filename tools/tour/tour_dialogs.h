// The dialogs of the tour: answered by a script, and where a picture of them is wanted, really shown.
#pragma once

#include "driver/scripted.h"
#include "platform/forms/qt_dialogs.h"
#include "platform/printing/printer_dialog.h"
#include <QMessageBox>

namespace zv::tour {

/// Boxes by a script. A box that is to be seen is the program's own, answered by a click on its button.
class TourBoxes : public driver::ScriptedBoxes {
  public:
    using ScriptedBoxes::ScriptedBoxes;

    /// The next box is really shown; this runs while it is in front, before it is answered.
    std::function<void(QMessageBox&)> seen;

    int MsgBox(const QString& text, int style) override;

  private:
    forms::QtMessageBoxes real_;
};

/// Asks nothing and prints into the PDF file named last.
class TourPrinters : public printing::PrinterDialogs {
  public:
    QString path;

    std::unique_ptr<printing::Printer> ShowPrinter(const printing::Document& document) override {
        return printing::PdfPrinterDialogs(path).ShowPrinter(document);
    }
};

} // namespace zv::tour
