// The road of a recording: its parts are added, it is composed with trips to them, shown, filtered, listed and printed.
#include "store/messages.h"
#include "tour/steps.h"
#include <QFileInfo>

namespace zv::tour {

using namespace Qt::StringLiterals;

namespace {

/// The parts by their tabs, each under the name of its table.
enum Part { Compositor, Obra, Orquesta, Director, Interprete, Soporte };

/// Screens by their numbers; those of the parts follow the first one.
constexpr int FirstAdd = 1, AddNumber = 7, SelectNumber = 14, FirstShowEdit = 15, ShowEditNumber = 21, ListNumber = 28;

QString tableOf(Part part) {
    static const QStringList tables{u"Compositor"_s, u"Obra"_s,       u"Orquesta"_s,
                                    u"Director"_s,   u"Interprete"_s, u"Soporte"_s};
    return tables[part];
}

/// What is entered for a part: boxes with their texts, and the file name of a picture.
struct Entered {
    Part part;
    std::vector<std::pair<QString, QString>> boxes;
    QString picture;
};

const std::vector<Entered>& parts() {
    const auto person = [](Part part, const QString& name, const QString& surname, const QString& instrument,
                           const QString& picture) {
        Entered of{part, {{u"TxtNombre"_s, name}, {u"TxtApellidos"_s, surname}}, picture};
        if (part == Interprete) of.boxes.emplace_back(u"TxtInstrumento"_s, instrument);
        return of;
    };
    static const std::vector<Entered> all = {
        {Obra,
         {{u"TxtAutor"_s, u"Ludwig van Beethoven"_s},
          {u"TxtNombre"_s, u"Symphony"_s},
          {u"TxtNumero"_s, u"9"_s},
          {u"TxtTonalidad"_s, u"D minor"_s},
          {u"TxtOpus"_s, u"125"_s},
          {u"TxtFecha1"_s, u"1822"_s},
          {u"TxtFecha2"_s, u"1824"_s},
          {u"TxtSubtitulo"_s, u"Choral"_s}},
         u"score.bmp"_s},
        {Obra, {{u"TxtAutor"_s, u"Johann Sebastian Bach"_s}, {u"TxtNombre"_s, u"Mass in B minor"_s}}, {}},
        {Orquesta, {{u"TxtNombreOrquesta"_s, u"Orchestra of the Lake City"_s}}, u"berlin.bmp"_s},
        {Orquesta, {{u"TxtNombreCoro"_s, u"Lake Singers"_s}}, {}},
        person(Director, u"Ada"_s, u"Lindqvist"_s, {}, u"conductor.jpg"_s),
        person(Director, u"Bruno"_s, u"Marek"_s, {}, {}),
        person(Interprete, u"Irene"_s, u"Solá"_s, u"Soprano"_s, u"soprano.jpg"_s),
        person(Interprete, u"Hanne"_s, u"Møller"_s, u"Contralto"_s, {}),
        person(Interprete, u"Jon"_s, u"Arrieta"_s, u"Tenor"_s, {}),
        person(Interprete, u"Walter"_s, u"Ferrand"_s, u"Bass"_s, {}),
        {Soporte,
         {{u"TxtDiscografica"_s, u"Lumen Classics"_s},
          {u"TxtNumeroCatalogo"_s, u"LC 447-2"_s},
          {u"TxtColeccion"_s, u"The Lake Concerts"_s},
          {u"TxtFormato"_s, u"CD"_s},
          {u"TxtGrabacion"_s, u"ADD"_s},
          {u"TxtRecopilacion"_s, u"1963"_s},
          {u"TxtEdicion"_s, u"1995"_s},
          {u"TxtEmplazamiento"_s, u"Shelf B-12"_s}},
         u"cover.bmp"_s},
        {Soporte, {{u"TxtDiscografica"_s, u"Nocturne"_s}, {u"TxtNumeroCatalogo"_s, u"N 12"_s}}, {}},
    };
    return all;
}

struct Movement {
    QString name, hours, minutes, seconds;
};
const Movement Movements[] = {{u"Allegro ma non troppo, un poco maestoso"_s, {}, u"15"_s, u"28"_s},
                              {u"Molto vivace"_s, {}, u"11"_s, u"2"_s},
                              {u"Adagio molto e cantabile"_s, {}, u"16"_s, u"25"_s},
                              {u"Presto - Allegro assai"_s, {}, u"24"_s, u"0"_s}};
const QString Notes = u"Recorded in the Lake Hall,\nOctober and November 1962."_s;

void enter(Tour& tour, const Entered& of) {
    driver::Driver& hands = tour.hands();
    hands.go(FirstAdd + of.part);
    for (const auto& [box, text] : of.boxes) hands.type(box, text);
    if (of.picture.isEmpty()) return;
    tour.files.choose(tour.picture(of.picture));
    hands.doubleClick(u"Imagen"_s);
}

/// On a Show-Edit screen: goes to a record, or puts records into the group.
void stand(Tour& tour, int order) { tour.hands().type(u"TxtOrden"_s, QString::number(order)); }
void gather(Tour& tour, std::initializer_list<int> orders) {
    for (const int order : orders) {
        stand(tour, order);
        tour.hands().click(u"BtnAñadirGrupo"_s);
    }
}

/// From Add Recording to the record's own screen, by a double click on its picture.
void trip(Tour& tour, Part part) {
    tour.hands().doubleClick(u"Imagen"_s + tableOf(part));
    tour.hands().screen(u"FormReg1Mos"_s + tableOf(part));
}
void back(Tour& tour) {
    tour.hands().click(u"BtnRegresar"_s);
    tour.hands().screen(u"FormReg1AnaGrabacion"_s);
}
void importParts(Tour& tour, std::initializer_list<Part> wanted) {
    for (const Part part : wanted) tour.hands().click(u"Lab"_s + tableOf(part));
}

/// A group on display against its rows.
void showsGroup(Tour& tour, const QString& name, const QStringList& expected) {
    const auto& grid = tour.hands().get<forms::FlexGrid>(name);
    QStringList rows;
    for (int row = 0; row < grid.Rows(); ++row) rows += grid.TextMatrix(row, 0);
    tour.sameRows(name, expected, rows);
}

/// The first recording on display, on the screen where it is composed or on that where it is shown.
void showsFirst(Tour& tour) {
    tour.shows(u"LabCompositorApellidos"_s, u"Beethoven"_s);
    tour.shows(u"LabObraNombre"_s, u"Symphony"_s);
    tour.shows(u"LabObraNumeroMovimientos"_s, u"4"_s);
    tour.shows(u"LabObraTotal"_s, u"01:06:55"_s);
    tour.shows(u"LabSoporteDiscografica"_s, u"Lumen Classics"_s);
    tour.shows(u"LabInterpreteNumeroInterprete"_s, u"4"_s);
    QStringList names;
    for (const Movement& movement : Movements) names += movement.name;
    showsGroup(tour, u"FlexMovimientos"_s, names);
    showsGroup(tour, u"FlexOrquesta"_s, {u"Orchestra of the Lake City"_s, u"Lake Singers"_s});
    showsGroup(tour, u"FlexDirectores"_s, {u"Ada Lindqvist"_s, u"Bruno Marek"_s});
    showsGroup(
        tour, u"FlexInterpretes"_s,
        {u"Irene Solá, Soprano"_s, u"Hanne Møller, Contralto"_s, u"Jon Arrieta, Tenor"_s, u"Walter Ferrand, Bass"_s});
    tour.shows(u"TxtNotas"_s, QString(Notes).replace(u'\n', u"\r\n"_s));
    for (const Part part : {Compositor, Obra, Orquesta, Director, Interprete, Soporte})
        tour.require(!tour.hands().get<forms::Picture>(u"Imagen"_s + tableOf(part)).picture().image.isNull(),
                     u"No picture of "_s + tableOf(part));
}

QStringList links(Tour& tour) {
    QStringList tables;
    for (const Part part : {Director, Orquesta, Interprete})
        tables += tour.stored(u"Relacion"_s + tableOf(part), u"IdGrabacion || '-' || Id"_s + tableOf(part)).join(u' ');
    return tables;
}

QString rowOf(const QString& keys, const QString& notes) {
    return keys + u'|' + QString(notes).replace(u'\n', u"\r\n"_s);
}

} // namespace

void addParts(Tour& tour) {
    driver::Driver& hands = tour.hands();
    for (const Entered& of : parts()) {
        enter(tour, of);
        if (&of == &parts().front()) {
            for (const Movement& movement : Movements) {
                hands.type(u"TxtMovimiento"_s, movement.name);
                if (!movement.hours.isEmpty()) hands.type(u"TxtHoras"_s, movement.hours);
                hands.type(u"TxtMinutos"_s, movement.minutes);
                hands.type(u"TxtSegundos"_s, movement.seconds);
                hands.click(u"BtnAMList"_s);
            }
            tour.shows(u"TxtTotal"_s, u"01:06:55"_s);
            tour.photograph();
        }
        save(tour);
    }
    tour.sameRows(
        u"Obra"_s,
        {u"Symphony|Allegro ma non troppo, un poco maestoso#Molto vivace#Adagio molto e cantabile#Presto - Allegro "
         "assai#| 928# 662# 985# 1440#|4015|4"_s,
         u"Mass in B minor|#|#|0|0"_s},
        tour.stored(u"Obra"_s, u"Nombre, Movimientos, TiempoMovimientos, TiempoTotal, NumeroMovimientos"_s));
    tour.sameRows(u"Orquesta"_s, {u"1|Orchestra of the Lake City"_s, u"3|Lake Singers"_s},
                  tour.stored(u"Orquesta"_s, u"OrqGrpCor, Nombre"_s));
    tour.sameRows(u"Interprete"_s, {u"Solá|Soprano"_s, u"Møller|Contralto"_s, u"Arrieta|Tenor"_s, u"Ferrand|Bass"_s},
                  tour.stored(u"Interprete"_s, u"Apellidos, Instrumento"_s));
}

// The first trip, to the conductors: two are gathered, and "Back" leads to the recording.
void tripToConductors(Tour& tour) {
    tour.hands().go(AddNumber);
    trip(tour, Director);
    gather(tour, {1, 2});
    showsGroup(tour, u"MSFlexGrid1"_s, {u"Ada Lindqvist"_s, u"Bruno Marek"_s});
    tour.photograph();
    back(tour);
    showsGroup(tour, u"FlexDirectores"_s, {u"Ada Lindqvist"_s, u"Bruno Marek"_s});
}

// The second trip, to the performers; what else it takes is imported from where the other screens stand.
void composeRecording(Tour& tour) {
    driver::Driver& hands = tour.hands();
    trip(tour, Interprete);
    gather(tour, {4, 2, 1, 3});
    tour.shows(u"LabNumeroInterpretes"_s, u"4"_s);
    back(tour);
    hands.go(FirstShowEdit + Orquesta);
    gather(tour, {1, 2});
    for (const Part part : {Compositor, Obra, Soporte}) {
        hands.go(FirstShowEdit + part);
        stand(tour, 1);
    }
    hands.go(AddNumber);
    tour.boxes.expect(store::MensaIntroducirIDentificador, box::Warning);
    hands.click(u"BtnGuardar"_s);
    importParts(tour, {Compositor, Obra, Soporte});
    hands.type(u"TxtNotas"_s, Notes);
    showsFirst(tour);
    tour.photograph();
    save(tour);
    tour.sameRows(u"Grabacion"_s, {rowOf(u"1|1|1|1"_s, Notes)}, tour.stored(u"Grabacion"_s));
    tour.sameRows(u"links"_s, {u"1-1 1-2"_s, u"1-1 1-2"_s, u"1-4 1-2 1-1 1-3"_s}, links(tour));
    tour.shows(u"LabNumRegTotal"_s, u"1"_s);
}

// Nothing of the last composition is left for the next one.
void composeFurther(Tour& tour) {
    driver::Driver& hands = tour.hands();
    for (const auto& [part, order] : {std::pair{Compositor, 2}, std::pair{Obra, 2}, std::pair{Soporte, 2}}) {
        trip(tour, part);
        stand(tour, order);
        back(tour);
        importParts(tour, {part});
    }
    hands.type(u"TxtNotas"_s, u"A rehearsal."_s);
    save(tour);
    for (const auto& [part, order] : {std::pair{Compositor, 1}, std::pair{Obra, 1}}) {
        hands.go(FirstShowEdit + part);
        stand(tour, order);
    }
    hands.go(FirstShowEdit + Director);
    gather(tour, {2});
    hands.go(AddNumber);
    importParts(tour, {Compositor, Obra, Soporte});
    tour.photograph();
    save(tour);
    tour.sameRows(u"Grabacion"_s,
                  {rowOf(u"1|1|1|1"_s, Notes), rowOf(u"2|2|2|2"_s, u"A rehearsal."_s), rowOf(u"3|1|1|2"_s, {})},
                  tour.stored(u"Grabacion"_s));
    tour.sameRows(u"links"_s, {u"1-1 1-2 3-2"_s, u"1-1 1-2"_s, u"1-4 1-2 1-1 1-3"_s}, links(tour));
    tour.shows(u"LabNumRegTotal"_s, u"3"_s);
}

void showRecording(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ShowEditNumber);
    stand(tour, 2);
    tour.shows(u"LabCompositorApellidos"_s, u"Bach"_s);
    tour.shows(u"LabSoporteDiscografica"_s, u"Nocturne"_s);
    showsGroup(tour, u"FlexInterpretes"_s, {});
    stand(tour, 1);
    showsFirst(tour);
    tour.shows(u"LabNumRegSeleccion"_s, u"3"_s);
}

void showRecordingLarge(Tour& tour) {
    resize(tour, {1920, 1080});
    showsFirst(tour);
    tour.photograph();
    resize(tour, {1100, 760});
}

void filterRecordings(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(SelectNumber);
    hands.click(u"BtnNueva"_s);
    addFilter(tour, u"COM Surname"_s, u"Same as"_s, u"beethoven"_s);
    hands.click(u"BtnY"_s);
    addFilter(tour, u"WOR Subtitle"_s, u"Contains"_s, u"chor"_s);
    hands.click(u"BtnAceptar"_s);
    tour.shows(u"LabNumReg"_s, u"2"_s);
    tour.shows(u"LabNumRegFiltros"_s, u"2"_s);
    tour.shows(u"LabOpcionSQL"_s, u"(COM Surname Same as 'beethoven' AND WOR Subtitle Contains 'chor') "_s);
}

void listRecordings(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ListNumber);
    hands.tick({u"COM Surname"_s, u"WOR Work"_s, u"ORC Orc-Ens-Cho"_s, u"CON Surname"_s, u"PER Surname"_s,
                u"PER Ins-Voice"_s, u"FOR Rec Company"_s, u"FOR Image"_s});
    hands.click(u"BtnListar"_s);
    hands.click(u"BtnAImagen"_s);
    tour.same(u"page"_s,
              u"No.|COM Surname|WOR Work|ORC Orc-Ens-Cho|CON Surname|PER Surname|PER Ins-Voice|FOR Rec Company\n"
              "1|Beethoven|Symphony|Orchestra of the Lake City\nLake Singers|Lindqvist\nMarek|"
              "Ferrand\nMøller\nSolá\nArrieta|Bass\nContralto\nSoprano\nTenor|Lumen Classics\n"
              "2|Beethoven|Symphony||Marek|||Nocturne\n"_s,
              hands.page());
    tour.require(hands.get<forms::Picture>(u"Imagen0"_s).isVisible(), u"The first row has no picture."_s);
    tour.require(!hands.get<forms::Picture>(u"Imagen1"_s).isVisible(), u"The second row has a picture."_s);
    tour.photograph();
}

void printRecordings(Tour& tour) {
    tour.printers.path = tour.out(u"recordings.pdf"_s);
    QFile::remove(tour.printers.path);
    tour.hands().tickAll();
    tour.hands().click(u"BtnImprimir"_s);
    tour.require(QFileInfo(tour.printers.path).size() > 0, u"Nothing was printed."_s);
    tour.pdfHolds(tour.printers.path,
                  {u"'Recording'"_s, u"Selection: / 2 R / 39 F / 2 Fl /"_s,
                   u"Filters: / (COM Surname Same as 'beethoven' AND WOR Subtitle Contains 'chor')"_s, u"( 34 F )"_s,
                   u"1- / Ludwig van / Beethoven / 1770 / 1827 / Symphony / 9 / D minor / 125 /"_s, u"/ Choral /"_s,
                   u"Molto vivace 0:11:2 * Adagio molto e cantabile 0:16:25"_s,
                   u"/ 01:06:55 / 4 / Orchestra of the Lake City * Lake Singers / Ada Lindqvist * Bruno Marek /"_s,
                   u"Walter Ferrand, Bass * Hanne Møller, Contralto * Irene Solá, Soprano * Jon Arrieta, Tenor /"_s,
                   u"Lumen Classics / LC 447-2 / The Lake Concerts / - / CD / ADD / 1963 / 1995 / Shelf B-12 /"_s,
                   u"2- / Ludwig van / Beethoven"_s, u"/ Bruno Marek / - / Nocturne / N 12 /"_s});
}

} // namespace zv::tour
