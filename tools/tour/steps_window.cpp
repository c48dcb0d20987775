// The window as a whole: every tab, other sizes, the end of the program and its next start.
#include "tour/steps.h"
#include <QApplication>
#include <QFileInfo>

namespace zv::tour {

using namespace Qt::StringLiterals;

namespace {

constexpr int FirstNumber = 1, LastNumber = 68, ComposerNumber = 15, RecordingNumber = 21, ListNumber = 22,
              GroupingListNumber = 51;

/// The name of each screen, told apart from the program's own list.
QString formName(int number) {
    static const QStringList functions{u"Ana"_s, u"Sel"_s, u"Mos"_s, u"Lis"_s};
    static const QStringList entities{u"Compositor"_s, u"Obra"_s,    u"Orquesta"_s,  u"Director"_s,
                                      u"Interprete"_s, u"Soporte"_s, u"Grabacion"_s, u"Instrumento"_s,
                                      u"Agrupacion"_s, u"Evento"_s,  u"Escenario"_s, u"Publicacion"_s,
                                      u"Emisora"_s,    u"Internet"_s};
    static const QStringList others{u"FormInforme"_s,       u"FormAyudaGeneral"_s,  u"FormAyudaAnadir1"_s,
                                    u"FormAyudaAnadir2"_s,  u"FormAyudaAnadir3"_s,  u"FormAyudaSeleccionar"_s,
                                    u"FormAyudaMostrar1"_s, u"FormAyudaMostrar2"_s, u"FormAyudaMostrar3"_s,
                                    u"FormAyudaListar"_s,   u"FormAyudaListar2"_s,  u"FormAcercaDe"_s};
    if (number >= shell::ReportNumber) return others[number - shell::ReportNumber];
    const int records = number < 29 ? 0 : 1, index = number - 1 - 28 * records;
    return u"FormReg%1"_s.arg(records + 1) + functions[index / 7] + entities[7 * records + index % 7];
}

/// Pages of the help behind its first ones have no tab: a button leads on to them.
bool isFurtherPage(int number) { return number == 60 || number == 61 || number == 64 || number == 65 || number == 67; }

/// The block of screen and tabs fits the window, centred to the pixel, and fills it at the scale wanted.
void resize(Tour& tour, QSize size, double scale) {
    zv::tour::resize(tour, size);
    tour.same(u"scale"_s, QString::number(scale), QString::number(tour.hands().program().scale.value()));
    const QRect block = tour.window().Solapas().block(), window = tour.window().rect();
    tour.require(window.contains(block), u"The screen does not fit the window."_s);
    const QPoint off = block.center() - window.center();
    tour.require(std::abs(off.x()) <= 2 && std::abs(off.y()) <= 2, u"The screen is not in the middle."_s);
}

} // namespace

void resize(Tour& tour, QSize size) {
    tour.window().resize(size);
    QApplication::processEvents();
}

// Each screen in a small and in a large window.
void everyTab(Tour& tour) {
    for (int number = FirstNumber; number <= LastNumber; ++number) {
        if (isFurtherPage(number))
            tour.hands().click(u"BtnSiguiente"_s);
        else
            tour.hands().go(number);
        tour.same(u"number of the screen"_s, number, tour.window().Solapas().VentanaMostrandose);
        tour.hands().screen(formName(number));
        const QString picture = u"%1-"_s.arg(number, 2, 10, QChar(u'0')) + formName(number);
        tour.photograph(u"screens/"_s + picture);
        resize(tour, {1920, 1080}, 1.75);
        tour.photograph(u"large/"_s + picture);
        resize(tour, {1100, 760}, 1.0);
    }
    tour.photograph();
}

void smallWindow(Tour& tour) {
    tour.hands().go(ComposerNumber);
    resize(tour, {712, 626}, 1.0);
}

void largeWindow(Tour& tour) { resize(tour, {1920, 1080}, 1.75); }

void hugeWindow(Tour& tour) {
    resize(tour, {3840, 2160}, 3.0);
    tour.hands().go(ListNumber);
    tour.photograph();
    resize(tour, {1100, 760}, 1.0);
}

void closeAndCompact(Tour& tour) {
    tour.composersBefore = tour.stored(u"Compositor"_s);
    const qint64 size = QFileInfo(tour.catalogue()).size();
    tour.boxes.seen = [&tour](QMessageBox& box) { tour.photograph(box.grab()); };
    tour.close(box::Yes);
    tour.require(!tour.window().isVisible(), u"The window is still there."_s);
    tour.require(QFileInfo(tour.catalogue()).size() < size, u"The catalogue did not become smaller."_s);
    tour.require(!QFileInfo::exists(tour.picture(store::CompactedFile)), u"The compacted copy was left behind."_s);
    tour.sameRows(u"Compositor"_s, tour.composersBefore, tour.stored(u"Compositor"_s));
}

void reopen(Tour& tour) {
    tour.start();
    tour.hands().enter();
    tour.shows(u"LabNumRegSeleccion"_s, QString::number(composers().size()));
    for (std::size_t i = 0; i < composers().size(); ++i) {
        tour.hands().type(u"TxtOrden"_s, QString::number(i + 1));
        const Composer& composer = composers()[i];
        tour.shows(u"LabNombre"_s, composer.name + u' ' + composer.surname);
        tour.shows(u"TxtNotas"_s, composer.notes);
        const bool shown = !tour.hands().get<forms::Picture>(u"Imagen"_s).picture().image.isNull();
        tour.require(shown == !composer.picture.isEmpty(), u"The wrong picture: "_s + composer.surname);
    }
    tour.sameRows(u"Compositor"_s, tour.composersBefore, tour.stored(u"Compositor"_s));
    tour.hands().go(RecordingNumber);
    tour.shows(u"LabObraNombre"_s, u"Symphony"_s);
    tour.shows(u"LabInterpreteNumeroInterprete"_s, u"4"_s);
    tour.hands().go(GroupingListNumber - 7);
    tour.shows(u"LabNombre"_s, u"Wiener Philharmoniker"_s);
    tour.photograph();
    tour.close(box::No);
}

} // namespace zv::tour
