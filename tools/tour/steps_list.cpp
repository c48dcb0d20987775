// Composers on the Select and List screens, and on paper.
#include "tour/steps.h"
#include <QFileInfo>
#include <QTest>

namespace zv::tour {

using namespace Qt::StringLiterals;

namespace {

constexpr int SelectNumber = 8, ShowEditNumber = 15, ListNumber = 22;

/// The composers that the filters leave, in the order asked for.
const std::vector<std::size_t> Selected{5, 0, 3, 2};
/// All composers by their surnames.
const std::vector<std::size_t> BySurname{1, 0, 5, 2, 7, 6, 4, 3};

/// The page of the grid as it has to be, from the composers at those places.
QString pageOf(const QString& heading, std::span<const std::size_t> places, bool withNotes, int first = 1) {
    QString page = heading + u'\n';
    for (const std::size_t place : places) {
        const Composer& c = composers()[place];
        QStringList cells{QString::number(first++), c.name, c.surname, c.year1, c.year2};
        if (withNotes) cells += QString(c.notes).remove(u'\r');
        page += cells.join(u'|') + u'\n';
    }
    return page;
}

int picturesShown(Tour& tour) {
    int shown = 0;
    for (int i = 0; i < 21; ++i) {
        const auto& picture = tour.hands().get<forms::Picture>(u"Imagen%1"_s.arg(i));
        if (picture.isVisible() && !picture.picture().image.isNull()) ++shown;
    }
    return shown;
}

} // namespace

void addFilter(Tour& tour, const QString& field, const QString& criterion, const QString& value) {
    tour.hands().choose(u"ComboCampo"_s, field);
    tour.hands().choose(u"ComboCriterio"_s, criterion);
    tour.hands().type(u"TxtValFiltro"_s, value);
    tour.hands().click(u"BtnAnadir"_s);
}

void filterComposers(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(SelectNumber);
    hands.click(u"BtnNueva"_s);
    addFilter(tour, u"Date 1"_s, u"Bigger than"_s, u"1735"_s);
    hands.click(u"BtnY"_s);
    addFilter(tour, u"Notes"_s, u"Contains"_s, u"nine symphon"_s);
    hands.click(u"BtnO"_s);
    addFilter(tour, u"Name"_s, u"Contains"_s, u"HILDE"_s);
    hands.click(u"BtnO"_s);
    addFilter(tour, u"Surname"_s, u"Same as"_s, u"чайковский"_s);
    tour.shows(u"LabNumFiltros"_s, u"4"_s);
    hands.choose(u"ComboCampoOrden"_s, u"Date 1"_s);
    hands.choose(u"ComboCriterioOrden"_s, u"Ascending"_s);
    hands.click(u"BtnAceptar"_s);
    tour.shows(u"LabNumReg"_s, u"4"_s);
    tour.shows(u"LabNumRegFiltros"_s, u"4"_s);
    tour.shows(u"LabOpcionSQL"_s, u"(((Date 1 Bigger than '1735' AND Notes Contains 'nine symphon')  OR Name Contains "
                                  "'HILDE')  OR Surname Same as 'чайковский') "_s);
}

void walkSelection(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ShowEditNumber);
    tour.shows(u"LabNumRegSeleccion"_s, u"4"_s);
    tour.shows(u"LabNumFiltros"_s, u"4"_s);
    for (std::size_t i = 0; i < Selected.size(); ++i) {
        hands.type(u"TxtOrden"_s, QString::number(i + 1));
        tour.shows(u"TxtApellidos"_s, composers()[Selected[i]].surname);
    }
}

void listSelection(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ListNumber);
    hands.tick({u"Name"_s, u"Surname"_s, u"Date 1"_s, u"Date 2"_s, u"Notes"_s});
    hands.click(u"BtnListar"_s);
    tour.same(u"page"_s, pageOf(u"No.|Name|Surname|Date 1|Date 2|Notes"_s, Selected, true), hands.page());
    tour.shows(u"LabNumRegSeleccion1"_s, u"4"_s);
    tour.shows(u"LabNumCampos"_s, u"5"_s);
    tour.same(u"pictures"_s, 0, picturesShown(tour));
}

void selectAll(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(SelectNumber);
    hands.click(u"BtnTodo"_s);
    hands.choose(u"ComboCampoOrden"_s, u"Surname"_s);
    tour.photograph();
    hands.click(u"BtnAceptar"_s);
    tour.shows(u"LabNumReg"_s, u"8"_s);
    tour.shows(u"LabNumRegFiltros"_s, u"0"_s);
}

void listPictures(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ListNumber);
    hands.tick({u"Name"_s, u"Surname"_s, u"Date 1"_s, u"Date 2"_s, u"Image"_s});
    hands.click(u"BtnListar"_s);
    hands.click(u"BtnAImagen"_s);
    tour.shows(u"LabZoom"_s, u"5"_s);
    const QString heading = u"No.|Name|Surname|Date 1|Date 2"_s;
    const std::span places(BySurname);
    // A row without words ends a page that is not the last.
    tour.same(u"first page"_s, pageOf(heading, places.first(4), false) + u"||||\n"_s, hands.page());
    tour.same(u"pictures"_s, 3, picturesShown(tour));
    tour.photograph();
    auto& bar = hands.get<forms::ScrollBar>(u"VScroll"_s);
    tour.same(u"pages"_s, 2, bar.maximum());
    QTest::mouseClick(&bar, Qt::LeftButton, {}, QPoint(bar.width() / 2, bar.height() - bar.width() / 2));
    tour.same(u"second page"_s, pageOf(heading, places.last(4), false, 5), hands.page());
    tour.same(u"pictures"_s, 2, picturesShown(tour));
}

void printComposers(Tour& tour) {
    tour.printers.path = tour.out(u"composers.pdf"_s);
    QFile::remove(tour.printers.path);
    tour.hands().tickAll();
    tour.hands().click(u"BtnImprimir"_s);
    tour.require(QFileInfo(tour.printers.path).size() > 0, u"Nothing was printed."_s);
    QStringList words{u"- Zarvelia -"_s, u"- 1 -"_s,  u"'Composer'"_s, u"Selection: / 8 R / 6 F / 0 Fl /"_s,
                      u"Order:"_s,       u"( 6 F )"_s};
    int number = 0;
    for (const std::size_t place : BySurname) {
        const Composer& c = composers()[place];
        words += u"%1- / %2 / %3 / %4 / %5 /"_s.arg(++number).arg(c.name, c.surname, c.year1,
                                                                  c.year2.isEmpty() ? u"-"_s : c.year2);
    }
    tour.pdfHolds(tour.printers.path, words);
}

} // namespace zv::tour
