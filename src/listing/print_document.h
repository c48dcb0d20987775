// The printed list of a selection: its headings, and one block of run-on text with a picture for each record.
#pragma once

#include "listing/print_engine.h"
#include "platform/base/dialogs.h"

#include <QStringList>
#include <vector>

namespace zv::listing {

/// The hidden picture of a list screen. It keeps the size of the picture loaded last, between records and between
/// prints, because the room for a block is judged by the picture before. Sizes in twips.
struct PrintPicture {
    QImage Picture;
    double Width = 1005, Height = 1005;
};

/// A line of the list of fields.
struct PrintItem {
    QString caption;
    bool ticked = false;
};

/// The chosen order. Both indices negative: none was chosen, the last field and criterion 2 stand in.
struct PrintOrder {
    int CampoOrden = -1, CriterioOrden = -1;
    int lastField = 0; ///< last index of the combo box of fields
    /// Choose an index in the combo box of the Select screen, hidden or not, and give the text that it then shows.
    std::function<QString(int index)> chooseCriterion, chooseField;
};

/// The selection as the print walks it.
class PrintRecords {
  public:
    virtual ~PrintRecords() = default;
    virtual int RecordCount() = 0;
    /// The current record, from 0; below 0 for none.
    virtual int position() = 0;
    /// Moves to a record, from 0.
    virtual void moveTo(int position) = 0;
    /// Path of the current record's picture, "" for none. Asked once for each record.
    virtual QString picturePath() = 0;
    /// Loads a picture and fits it to a square of that side. False, and the picture as it was, if it can't be loaded.
    virtual bool loadPicture(const QString& path, int side, PrintPicture& picture) = 0;
    /// The texts of the ticked fields in their order, "" for one that counts as empty.
    virtual QStringList values() = 0;
};

/// Everything that a list screen hands to the print.
struct PrintJob {
    QString LabBaseDatos; ///< caption of the Select screen: the title
    qint32 ContSel = 0;   ///< selected records
    qint32 ContFil = 0;   ///< filters
    QString LabCampos;    ///< number of fields on offer, as shown
    QString ValorFiltro;  ///< text of the filters, "" for none
    PrintOrder order;
    std::vector<PrintItem> items; ///< the fields on offer, the picture last
    PrintRecords* records = nullptr;
    PrintPicture* ImagenTmp = nullptr;
    std::function<void(int max)> progressMax;
    std::function<void(int value)> progress;

    QString LabSeleccion = QStringLiteral("Selection"), LabR = QStringLiteral("R"), LabC = QStringLiteral("F"),
            LabF = QStringLiteral("Fl"), filtersTip = QStringLiteral("Filters"), LabOrden = QStringLiteral("Order"),
            BtnImprimir = QStringLiteral("Print");

    /// Number of ticked items.
    int SelCount() const;
};

/// Prints the list into the printer, without ending the document. `failure` hears of errors inside a paragraph, which
/// don't stop the print. Other errors leave by exception: the caller ends the document, so that the pages so far come
/// out.
void printDocument(printing::Printer& printer, const PrintJob& job, const PrintFailure& failure);

/// The whole of the Print button: nothing without a tick; the printer dialog, whose Cancel leaves silently and which
/// may have the document printed for a look at it, at the cost of no state; the document; and after any other error a
/// critical box with that text and the error's number.
void printSelection(const PrintJob& job, printing::PrinterDialogs& dialogs, MessageBoxes& boxes,
                    const QString& MensaProducidoError);

} // namespace zv::listing
