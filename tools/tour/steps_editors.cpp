// Composers on the Add and Show-Edit screens.
#include "store/messages.h"
#include "tour/steps.h"
#include <QFile>
#include <QTest>

namespace zv::tour {

using namespace Qt::StringLiterals;

namespace {

constexpr int AddNumber = 1, ShowEditNumber = 15, HelpNumber = 58;
const QString Stored = u"Nombre, Apellidos, Fecha1, Fecha2, Notas"_s;

/// Fills the boxes of the Add screen, and picks the picture through the file dialog.
void enter(Tour& tour, const Composer& composer) {
    driver::Driver& hands = tour.hands();
    hands.type(u"TxtNombre"_s, composer.name);
    hands.type(u"TxtApellidos"_s, composer.surname);
    hands.type(u"TxtFecha1"_s, composer.year1);
    hands.type(u"TxtFecha2"_s, composer.year2);
    hands.type(u"TxtNotas"_s, QString(composer.notes).remove(u'\r'));
    if (composer.picture.isEmpty()) return;
    tour.files.choose(tour.picture(composer.picture));
    hands.doubleClick(u"Imagen"_s);
    tour.sameRows(u"the file dialog"_s, {store::EtiInsertarImagen, store::EtiFormatoImagen, QString()},
                  tour.files.shown);
}

QString rowOf(const Composer& composer) {
    const auto year = [](const QString& text) { return text.isEmpty() ? u"0"_s : text; };
    return QStringList{composer.name, composer.surname, year(composer.year1), year(composer.year2), composer.notes}
        .join(u'|');
}

/// Boxes of the screen on display against what was entered.
void showsComposer(Tour& tour, const Composer& composer) {
    tour.shows(u"TxtNombre"_s, composer.name);
    tour.shows(u"TxtApellidos"_s, composer.surname);
    tour.shows(u"TxtFecha1"_s, composer.year1);
    tour.shows(u"TxtFecha2"_s, composer.year2);
    tour.shows(u"TxtNotas"_s, composer.notes);
    tour.shows(u"LabNombre"_s, composer.name + u' ' + composer.surname);
}

/// A click on the arrow at the right end of the bar.
void clickNext(Tour& tour) {
    auto& bar = tour.hands().get<forms::ScrollBar>(u"HScroll"_s);
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() - bar.height() / 2, bar.height() / 2));
}

/// A slip of the pen that the tour corrects later.
Composer asMistyped(Composer composer) {
    if (composer.surname == u"Schumann") composer.year1 = u"1891"_s;
    return composer;
}

const Composer Twice{u"Josef"_s, u"Haydn"_s, u"1732"_s, {}, u"Entered twice."_s, {}};

} // namespace

void save(Tour& tour) {
    tour.boxes.expect(store::MensaGrabadoBien, box::Information);
    tour.hands().click(u"BtnGuardar"_s);
    tour.boxes.checkAllShown();
}

const std::vector<Composer>& composers() {
    static const std::vector<Composer> all = {
        {u"Ludwig van"_s, u"Beethoven"_s, u"1770"_s, u"1827"_s,
         u"Born in Bonn, from 1792 in Vienna.\r\n\r\nNine symphonies, thirty-two piano sonatas, sixteen string "
         u"quartets, "
         "the opera Fidelio and the Missa solemnis.\r\nThe late quartets were written when he could no longer hear "
         "them."_s,
         u"beethoven.bmp"_s},
        {u"Johann Sebastian"_s, u"Bach"_s, u"1685"_s, u"1750"_s,
         u"Cantor in Leipzig.\r\nMass in B minor, two Passions."_s, u"bach.jpg"_s},
        {u"Antonín"_s, u"Dvořák"_s, u"1841"_s, u"1904"_s, u"Nine Symphonies, Rusalka, a cello concerto."_s, {}},
        {u"Пётр Ильич"_s, u"Чайковский"_s, u"1840"_s, u"1893"_s, u"Six symphonies, «Евгений Онегин»."_s, {}},
        {u"Clara"_s, u"Schumann"_s, u"1819"_s, u"1896"_s, u"Pianist; a piano concerto, songs."_s, u"schumann.jpg"_s},
        {u"Hildegard von"_s, u"Bingen"_s, u"1098"_s, u"1179"_s, u"Ordo virtutum."_s, u"bingen.bmp"_s},
        {u"Arvo"_s, u"Pärt"_s, u"1935"_s, {}, u"Tabula rasa, four symphonies."_s, {}},
        {u"Joseph"_s, u"Haydn"_s, u"1732"_s, u"1809"_s, u"One hundred and four symphonies, The Creation."_s,
         u"haydn.jpg"_s},
    };
    return all;
}

void presentation(Tour& tour) {
    tour.start();
    tour.hands().screen(u"FormPresentacion"_s);
    tour.same(u"title"_s, u"  Brumatec   - Zarvelia -"_s, tour.window().windowTitle());
    tour.require(!tour.window().Solapas().isVisible(), u"The tabs are seen too early."_s);
}

void addComposer(Tour& tour) {
    tour.hands().enter();
    tour.hands().screen(u"FormReg1MosCompositor"_s);
    tour.shows(u"TxtOrden"_s, u"0"_s);
    tour.hands().go(AddNumber);
    tour.boxes.expect(store::MensaIntroducirIDentificador, box::Warning);
    tour.hands().click(u"BtnGuardar"_s);
    const Composer& first = composers().front();
    enter(tour, first);
    showsComposer(tour, first);
    tour.photograph();
    save(tour);
    tour.sameRows(u"Compositor"_s, {rowOf(first)}, tour.stored(u"Compositor"_s, Stored));
    tour.sameRows(u"Imagen"_s, {tour.picture(first.picture)}, tour.stored(u"Compositor"_s, u"Imagen"_s));
    tour.shows(u"TxtApellidos"_s, {});
    tour.shows(u"LabNumRegTotal"_s, u"1"_s);
}

void addComposers(Tour& tour) {
    QStringList rows{rowOf(composers().front())};
    for (std::size_t i = 1; i < composers().size(); ++i) {
        const Composer composer = asMistyped(composers()[i]);
        enter(tour, composer);
        save(tour);
        rows += rowOf(composer);
        if (composer.surname != u"Bingen") continue;
        enter(tour, Twice);
        save(tour);
        rows += rowOf(Twice);
    }
    tour.sameRows(u"Compositor"_s, rows, tour.stored(u"Compositor"_s, Stored));
    tour.shows(u"LabNumRegNuevos"_s, u"9"_s);
    tour.shows(u"LabNumRegTotal"_s, u"9"_s);
}

// What is typed on an Add screen, an unsaved picture too, is there when the user comes back.
void awayAndBack(Tour& tour) {
    const Composer unsaved{
        u"Fanny"_s,       u"Hensel"_s, u"1805"_s, u"1847"_s, u"Songs, a string quartet,\r\npiano pieces."_s,
        u"schumann.jpg"_s};
    enter(tour, unsaved);
    tour.hands().go(HelpNumber);
    tour.hands().screen(u"FormAyudaGeneral"_s);
    tour.hands().go(AddNumber);
    showsComposer(tour, unsaved);
    auto& picture = tour.hands().get<forms::Picture>(u"Imagen"_s);
    tour.require(!picture.picture().image.isNull(), u"The picture is lost."_s);
    tour.same(u"rows in the file"_s, 9, tour.stored(u"Compositor"_s).size());
    tour.photograph();
    tour.hands().click(u"BtnImagenEliminar"_s);
    tour.require(picture.picture().image.isNull(), u"The picture was not taken away."_s);
}

void undo(Tour& tour) {
    // Long notes: the room that they leave in the file shows later that compaction gives it back.
    const QString line = u"What is taken back leaves no trace in the lists, but room in the file.\n"_s;
    tour.hands().type(u"TxtNotas"_s, {});
    tour.hands().paste(u"TxtNotas"_s, line.repeated(600));
    save(tour);
    tour.same(u"rows in the file"_s, 10, tour.stored(u"Compositor"_s).size());
    tour.require(tour.hands().isEnabled(u"BtnDeshacer"_s), u"Nothing can be undone."_s);
    tour.hands().click(u"BtnDeshacer"_s);
    tour.require(!tour.hands().isEnabled(u"BtnDeshacer"_s), u"It could be undone twice."_s);
    tour.same(u"rows in the file"_s, 9, tour.stored(u"Compositor"_s).size());
    tour.shows(u"LabNumRegTotal"_s, u"9"_s);
}

void walk(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ShowEditNumber);
    showsComposer(tour, composers()[0]);
    clickNext(tour);
    tour.shows(u"TxtOrden"_s, u"2"_s);
    showsComposer(tour, composers()[1]);
    hands.type(u"TxtOrden"_s, u"4"_s);
    showsComposer(tour, composers()[3]);
    hands.type(u"TxtOrden"_s, u"0"_s);
    tour.shows(u"TxtOrden"_s, {});
    showsComposer(tour, composers()[3]);
    hands.type(u"TxtOrden"_s, u"1"_s);
    showsComposer(tour, composers()[0]);
    tour.shows(u"LabNumRegSeleccion"_s, u"9"_s);
}

void modifyAndCancel(Tour& tour) {
    driver::Driver& hands = tour.hands();
    tour.composersBefore = tour.stored(u"Compositor"_s);
    hands.type(u"TxtOrden"_s, u"5"_s);
    tour.shows(u"TxtFecha1"_s, u"1891"_s);
    hands.click(u"BtnModificar"_s);
    hands.type(u"TxtNombre"_s, u"Robert"_s);
    hands.type(u"TxtFecha2"_s, u"18x"_s);
    tour.shows(u"TxtFecha2"_s, {});
    tour.require(!tour.window().Solapas().TabNivel1->isEnabled(), u"The tabs are free while a record is modified."_s);
    tour.photograph();
    hands.click(u"BtnDeshacer"_s);
    tour.shows(u"LabNombre"_s, u"Clara Schumann"_s);
    tour.shows(u"TxtFecha2"_s, u"1896"_s);
    tour.sameRows(u"Compositor"_s, tour.composersBefore, tour.stored(u"Compositor"_s));
}

void modifyAndAccept(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.click(u"BtnReducirAmpliar"_s);
    hands.click(u"BtnModificar"_s);
    hands.type(u"TxtFecha1"_s, u"1819"_s);
    hands.click(u"BtnGuardar"_s);
    showsComposer(tour, composers()[4]);
    tour.same(u"row in the file"_s, rowOf(composers()[4]), tour.stored(u"Compositor"_s, Stored).value(4));
    tour.require(tour.window().Solapas().TabNivel1->isEnabled(), u"The tabs stay locked."_s);
    tour.photograph();
    hands.click(u"BtnReducirAmpliar"_s);
}

void removeComposer(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.type(u"TxtOrden"_s, u"7"_s);
    showsComposer(tour, Twice);
    tour.boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::No);
    hands.click(u"BtnEliminar"_s);
    tour.require(!hands.isEnabled(u"BtnGuardar"_s), u"No was taken for Yes."_s);
    tour.boxes.expect(store::MensaEliRegPosibleGrabacion, box::YesNoInformation, box::Yes);
    tour.boxes.seen = [&tour](QMessageBox& box) { tour.photograph(box.grab()); };
    hands.click(u"BtnEliminar"_s);
    hands.click(u"BtnGuardar"_s);
    tour.shows(u"TxtOrden"_s, u"6"_s);
    showsComposer(tour, composers()[5]);
    tour.shows(u"LabNumRegEliminados"_s, u"1"_s);
    tour.shows(u"LabNumRegSeleccion"_s, u"8"_s);
    QStringList rows;
    for (const Composer& composer : composers()) rows += rowOf(composer);
    tour.sameRows(u"Compositor"_s, rows, tour.stored(u"Compositor"_s, Stored));
}

} // namespace zv::tour
