#include "listing/print_document.h"

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

#include <algorithm>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zv::listing {

using printing::Printer;

namespace {

constexpr int Navy = 8388608, Black = 0;
/// Side of the square that a record's picture fits.
constexpr int LadoImagen = 1191;

/// One print of one selection.
class Document {
  public:
    Document(Printer& printer, const PrintJob& job, const PrintFailure& failure)
        : printer_(printer), job_(job), failure_(failure), ImagenTmp(*job.ImagenTmp) {
        state_.PosicionXImagen = toLong(ImagenTmp.Width + state_.MargenIzquierdo + 200);
    }

    void print() {
        printTop();
        printSelectionLine();
        printFilters();
        printOrder();
        printFields();
        recordStyle();
        const int count = job_.records->RecordCount();
        job_.progressMax(count);
        job_.progress(0);
        for (int n = 0; n < count; ++n) printRecord(n);
    }

  private:
    void style(double size, bool bold, int color) {
        printer_.setFontSize(size);
        printer_.setFontBold(bold);
        printer_.setForeColor(color);
    }
    void recordStyle() { style(9, false, Black); }

    void printLines(int count) {
        for (int line = 0; line < count; ++line) printer_.PrintLine();
    }

    /// Starts a heading line with its label; its value goes on in the style of values.
    void heading(const QString& label) {
        printer_.CurrentX = state_.MargenIzquierdo;
        style(8, false, Black);
        printer_.Print(label + u":   "_s);
        style(9, false, Navy);
    }

    void paragraph(const QString& text) {
        ImprimirParrafo(printer_, text, state_, toInteger(ImagenTmp.Width), failure_);
    }

    void printTop();
    void printSelectionLine();
    void printFilters();
    void printOrder();
    void printFields();
    void printRecord(int n);
    void makeRoom(const QString& path);
    void printPicture(const QString& path);

    Printer& printer_;
    const PrintJob& job_;
    const PrintFailure& failure_;
    PrintPicture& ImagenTmp;
    PrintState state_;
};

void Document::printTop() {
    const QString product = u"- Zarvelia -"_s, number = numeroPagina(state_.Pagina);
    printer_.setFontName(u"Comic Sans MS"_s);
    style(8, false, Navy);
    printer_.CurrentY = 440;
    printer_.CurrentX = (printer_.ScaleWidth() - printer_.TextWidth(product)) / 2;
    printer_.Print(product);
    printer_.CurrentX = printer_.ScaleWidth() - printer_.TextWidth(number) - state_.MargenIzquierdo;
    printer_.setForeColor(Black);
    printer_.PrintLine(number);
    printLines(4);

    printer_.CurrentX = state_.MargenIzquierdo;
    style(14, true, Navy);
    printer_.PrintLine(u'\'' + job_.LabBaseDatos + u'\'');
    printLines(1);
}

void Document::printSelectionLine() {
    heading(job_.LabSeleccion);
    printer_.PrintLine(u"/ %1 %2 / %3 %4 / %5 %6 /"_s.arg(QString::number(job_.ContSel), job_.LabR, job_.LabCampos,
                                                          job_.LabC, QString::number(job_.ContFil), job_.LabF));
}

void Document::printFilters() {
    if (job_.ValorFiltro.isEmpty()) return;
    heading(job_.filtersTip);
    paragraph(u"/ "_s + job_.ValorFiltro + u" /"_s);
    printLines(1);
}

void Document::printOrder() {
    heading(job_.LabOrden);
    const PrintOrder& order = job_.order;
    const bool none = order.CampoOrden < 0 && order.CriterioOrden < 0;
    const QString criterion = order.chooseCriterion(none ? 2 : order.CriterioOrden);
    QString field = order.chooseField(none ? order.lastField : order.CampoOrden);
    if (none) field = Trim(field);
    printer_.PrintLine(u"/ "_s + field + u" / "_s + criterion + u" /"_s);
}

void Document::printFields() {
    heading(job_.BtnImprimir);
    QString Ristra;
    for (std::size_t i = 0; i + 1 < job_.items.size(); ++i)
        if (job_.items[i].ticked) Ristra += u"/ "_s + job_.items[i].caption + u' ';
    Ristra += u'/';
    if (!job_.items.empty() && job_.items.back().ticked) Ristra.prepend(u"/ "_s + job_.items.back().caption + u' ');
    printer_.Print(u"( %1 %2 ) "_s.arg(QString::number(job_.SelCount()), job_.LabC));
    paragraph(Ristra);
    printLines(4);
}

void Document::printRecord(int n) {
    job_.records->moveTo(n);
    state_.PosicionYImagen = toLong(printer_.CurrentY);
    job_.progress(n + 1);

    const QString path = job_.records->picturePath();
    makeRoom(path);
    if (printer_.CurrentY < state_.PosicionYImagen) {
        printer_.CurrentY = state_.PosicionYImagen;
        printer_.PrintLine();
    }
    printPicture(path);
    recordStyle();

    QString Ristra = u" %1- /"_s.arg(n + 1);
    for (const QString& value : job_.records->values())
        Ristra += u"  "_s + (value.isEmpty() ? u"-"_s : value) + u"  /"_s;
    paragraph(Ristra);
    if (printer_.CurrentY >= state_.PosicionYImagen) printLines(2);
}

/// Begins a page for a block that would come too low. A block with a picture is judged by the picture before it.
void Document::makeRoom(const QString& path) {
    const double line = printer_.TextHeight(u"O"_s);
    if (!path.isEmpty()) {
        if (printer_.CurrentY + ImagenTmp.Height > printer_.ScaleHeight() - 2 * line)
            ImprimirLineaParrafo(printer_, 1, state_);
    } else {
        const double lines = std::floor((printer_.ScaleHeight() - printer_.CurrentY) / line) - 3;
        ImprimirLineaParrafo(printer_, toInteger(lines), state_);
    }
}

void Document::printPicture(const QString& path) {
    const bool wanted = job_.items.back().ticked && !path.isEmpty();
    if (!wanted || !job_.records->loadPicture(path, LadoImagen, ImagenTmp)) {
        printer_.CurrentX = state_.MargenIzquierdo;
        state_.PosicionYImagen = toLong(printer_.CurrentY);
        return;
    }
    printer_.PaintPicture(ImagenTmp.Picture, state_.MargenIzquierdo, printer_.CurrentY, ImagenTmp.Width,
                          ImagenTmp.Height);
    printer_.CurrentX = ImagenTmp.Width + state_.MargenIzquierdo + 200;
    state_.PosicionYImagen = toLong(printer_.CurrentY + ImagenTmp.Height);
}

/// Prints for a look: afterwards the picture and the current record are those of before.
void rehearse(PrintJob job, Printer& printer, const printing::Progress& progress, const PrintFailure& failure) {
    PrintPicture picture = *job.ImagenTmp;
    job.ImagenTmp = &picture;
    const int count = job.records->RecordCount();
    job.progressMax = [](int) {};
    job.progress = [&](int value) {
        if (value > 0) progress(value, count);
    };
    const auto back = [&records = *job.records, before = job.records->position()] {
        if (before >= 0 && before < records.RecordCount()) records.moveTo(before);
    };
    try {
        printDocument(printer, job, failure);
    } catch (...) {
        back();
        throw;
    }
    back();
}

} // namespace

int PrintJob::SelCount() const {
    return static_cast<int>(std::count_if(items.begin(), items.end(), [](const PrintItem& i) { return i.ticked; }));
}

void printDocument(Printer& printer, const PrintJob& job, const PrintFailure& failure) {
    Document(printer, job, failure).print();
}

void printSelection(const PrintJob& job, printing::PrinterDialogs& dialogs, MessageBoxes& boxes,
                    const QString& MensaProducidoError) {
    if (job.SelCount() == 0) return;
    const PrintFailure failure = [&](int number) {
        boxes.MsgBox(MensaProducidoError + QString::number(number), box::Critical);
    };
    PrintJob told = job;
    told.progress = [&](int value) {
        job.progress(value);
        dialogs.showProgress(value, job.records->RecordCount());
    };
    std::unique_ptr<Printer> printer;
    try {
        printer = dialogs.ShowPrinter(
            [&](Printer& preview, const printing::Progress& progress) { rehearse(job, preview, progress, failure); });
        printDocument(*printer, told, failure);
        printer->EndDoc();
        told.progress(0);
    } catch (const RuntimeError& error) {
        if (error.number() == printing::PrinterCancel) return;
        try {
            if (printer) printer->EndDoc();
        } catch (const RuntimeError&) {
            // The error that is shown is the one that came first.
        }
        told.progress(0);
        failure(error.number());
    }
}

} // namespace zv::listing
