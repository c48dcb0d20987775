// The toolkit's printer dialog with the paper at hand and a look at the pages.
#pragma once

#include "platform/printing/printer.h"

#include <QDialogButtonBox>
#include <QPrintDialog>

class QComboBox;
class QRadioButton;

namespace zv::printing {

/// Under the object name "DialogoImpresora". What is chosen is in the printer when the dialog is accepted.
class PrinterBox : public QPrintDialog {
  public:
    PrinterBox(std::shared_ptr<QPrinter> printer, const Document& document, QWidget* parent);

    /// Number of the error that ended a look at the pages, and with it the dialog; 0 for none.
    int error() const { return error_; }

    void done(int result) override;

  protected:
    void showEvent(QShowEvent* event) override;

  private:
    void addPaper();
    void addPreview();
    void orderTabs();
    /// A part of the toolkit's dialog, if it has one of that name.
    template <class Part>
    Part* part(const QString& name) const {
        return findChild<Part*>(name);
    }

    QPushButton* button(QDialogButtonBox::ButtonRole role) const;

    bool intoFile();
    void offerWhatCounts();
    void printerChanged();
    void showPaper();
    void takePaper();
    void takeProperties();
    /// Has the toolkit write its choices into the printer while the dialog stays open.
    void settle();
    void preview();

    std::shared_ptr<QPrinter> printer_;
    const Document& document_;
    QComboBox* size_ = nullptr;
    QRadioButton *portrait_ = nullptr, *landscape_ = nullptr;
    bool settling_ = false;
    int error_ = 0;
};

} // namespace zv::printing
