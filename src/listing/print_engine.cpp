#include "listing/print_engine.h"

#include "platform/base/runtime_error.h"
#include "platform/base/text.h"

#include <cmath>

using namespace Qt::StringLiterals;

namespace zv::listing {

using printing::Printer;

namespace {

/// Right margin up to which characters are gathered, and the further margin that a line has to keep to fit. Gathering
/// so goes a little too far, and the line is then broken where it was last possible.
constexpr int MargenDerecho = 600, MargenAjuste = 100;
/// Gap between a picture and the text beside it.
constexpr int HuecoImagen = 200;

/// The text on its way to paper: cut into lines from the position `i`.
class Parrafo {
  public:
    Parrafo(Printer& printer, const QString& text, PrintState& state, qint16 pictureWidth)
        : printer_(printer), Texto(text), printable_(text), state_(state), AnchoImagen(pictureWidth) {
        for (QChar& c : printable_)
            if (c < u' ') c = u' ';
    }

    void print() {
        measureRoom();
        if (printer_.CurrentX >= fitLimit()) endLine();
        while (i < Texto.size()) {
            measureRoom();
            if (!gather()) break;
            if (printer_.CurrentX + printer_.TextWidth(Linea) < fitLimit())
                printer_.Print(Linea);
            else
                printTooWide();
            placePen();
        }
        if (printer_.CurrentY <= state_.PosicionYImagen) {
            printer_.CurrentY = state_.PosicionYImagen;
            state_.PosicionXImagen = state_.MargenIzquierdo;
            printer_.CurrentX = state_.MargenIzquierdo;
        }
    }

  private:
    double fitLimit() const { return printer_.ScaleWidth() - MargenDerecho - MargenAjuste; }
    bool besidePicture() const { return printer_.CurrentY < state_.PosicionYImagen; }
    int xBesidePicture() const { return state_.MargenIzquierdo + AnchoImagen + HuecoImagen; }

    void measureRoom() {
        Ancho = toInteger(std::floor(printer_.ScaleWidth() - printer_.CurrentX - MargenDerecho));
        Lineas = toInteger(std::floor((printer_.ScaleHeight() - printer_.CurrentY) / printer_.TextHeight(u"O"_s)) - 2);
    }

    /// Takes characters into Linea until it is as wide as the room, or the text ends. False if only a blank was left.
    bool gather() {
        Linea.clear();
        HayBlanco = false;
        if (Texto[i] == u' ') ++i;
        if (i == Texto.size()) return false;
        const int count = printer_.charactersUntilWidth(printable_, i, Ancho);
        Linea = printable_.mid(i, count);
        HayBlanco = QStringView(Texto).mid(i, count).contains(u' ');
        i += count;
        return true;
    }

    /// Prints of a line that goes too far what ends with a blank, and ends the line.
    void printTooWide() {
        const bool insideWord = !Linea.endsWith(u' ') && !(i < Texto.size() && Texto[i] == u' ');
        if (insideWord && HayBlanco) {
            while (!Linea.isEmpty() && !Linea.endsWith(u' ')) {
                Linea.chop(1);
                --i;
            }
        } else if (insideWord) {
            // One word too long for the line. Behind other text its gathered characters are not printed at all.
            const double edge = besidePicture() ? xBesidePicture() : state_.PosicionXImagen;
            if (printer_.CurrentX > edge) Linea.clear();
        }
        printer_.Print(Linea);
        endLine();
    }

    void endLine() {
        const double before = printer_.CurrentY;
        printer_.PrintLine();
        // The printer has turned the page by itself: the picture stays on the page before.
        if (printer_.CurrentY < before) state_.PosicionYImagen = 0;
        ImprimirLineaParrafo(printer_, Lineas, state_);
    }

    void placePen() {
        if (besidePicture()) {
            printer_.CurrentX = xBesidePicture();
        } else {
            state_.PosicionXImagen = state_.MargenIzquierdo;
            printer_.CurrentX = state_.MargenIzquierdo;
        }
    }

    Printer& printer_;
    const QString& Texto;
    QString printable_; // Texto with blanks for control characters
    PrintState& state_;
    const qint16 AnchoImagen;
    QString Linea;
    bool HayBlanco = false;
    int i = 0;
    qint16 Ancho = 0, Lineas = 0;
};

} // namespace

QString numeroPagina(int Pagina) { return u"- %1 -"_s.arg(Pagina); }

void ImprimirParrafo(Printer& printer, const QString& Texto, PrintState& state, qint16 AnchoImagen,
                     const PrintFailure& failure) {
    if (Texto.isEmpty()) return;
    try {
        printer.setFontName(u"Comic Sans MS"_s);
        Parrafo(printer, Texto, state, AnchoImagen).print();
    } catch (const RuntimeError& error) {
        failure(error.number());
    }
}

void ImprimirLineaParrafo(Printer& printer, qint16 Lineas, PrintState& state) {
    if (Lineas != 1) return;
    printer.NewPage();
    ++state.Pagina;
    printer.CurrentY = 440;
    // The number is measured in the font of the text, and set from the physical edge of the page.
    printer.CurrentX = printer.Width() - printer.TextWidth(numeroPagina(state.Pagina)) - MargenSuperior;
    printer.setFontSize(8);
    printer.setForeColor(0);
    printer.PrintLine(numeroPagina(state.Pagina));
    printer.CurrentX = state.PosicionXImagen;
    printer.CurrentY = MargenSuperior;
    printer.setFontSize(9);
    state.PosicionYImagen = MargenSuperior;
}

} // namespace zv::listing
