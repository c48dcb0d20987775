// The same road for a kind of Records II: groupings are added, shown, filtered, listed and printed.
#include "tour/steps.h"
#include <QFileInfo>

namespace zv::tour {

using namespace Qt::StringLiterals;

namespace {

constexpr int AddNumber = 30, SelectNumber = 37, ShowEditNumber = 44, ListNumber = 51;

struct Grouping {
    QString entity, city, country, year, activity, notes, picture;
};

const std::vector<Grouping>& groupings() {
    static const std::vector<Grouping> all = {
        {u"Wiener Philharmoniker"_s, u"Wien"_s, u"Österreich"_s, u"1842"_s, u"Orchestra"_s,
         u"Plays in the Musikverein.\r\nNew Year's concert."_s, u"vienna.jpg"_s},
        {u"Berliner Philharmoniker"_s, u"Berlin"_s, u"Germany"_s, u"1882"_s, u"Orchestra"_s, {}, u"berlin.bmp"_s},
        {u"Bach-Verein"_s, u"Leipzig"_s, u"Germany"_s, {}, u"Choir"_s, u"Cantatas."_s, {}},
    };
    return all;
}

} // namespace

void addGroupings(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(AddNumber);
    QStringList rows;
    for (const Grouping& g : groupings()) {
        hands.type(u"TxtEntidad"_s, g.entity);
        hands.type(u"TxtCiudad"_s, g.city);
        hands.type(u"TxtPais"_s, g.country);
        hands.type(u"TxtFecha"_s, g.year);
        hands.type(u"TxtActividad"_s, g.activity);
        hands.type(u"TxtNotas"_s, QString(g.notes).remove(u'\r'));
        if (!g.picture.isEmpty()) {
            tour.files.choose(tour.picture(g.picture));
            hands.doubleClick(u"Imagen"_s);
        }
        if (rows.isEmpty()) tour.photograph();
        save(tour);
        rows += QStringList{g.entity, g.city, g.country, g.year.isEmpty() ? u"0"_s : g.year, g.activity, g.notes}.join(
            u'|');
    }
    tour.sameRows(u"Agrupacion"_s, rows,
                  tour.stored(u"Agrupacion"_s, u"Entidad, Ciudad, Pais, Fecha, Actividad, Notas"_s));
}

// No recording points to a grouping: nothing is asked before it is removed.
void showGrouping(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ShowEditNumber);
    tour.shows(u"LabNombre"_s, groupings()[0].entity);
    tour.shows(u"TxtNotas"_s, groupings()[0].notes);
    hands.click(u"BtnEliminar"_s);
    tour.photograph();
    tour.require(hands.isEnabled(u"BtnGuardar"_s), u"The removal was not begun."_s);
    hands.click(u"BtnDeshacer"_s);
    tour.same(u"rows in the file"_s, 3, tour.stored(u"Agrupacion"_s).size());
    hands.click(u"BtnModificar"_s);
    hands.type(u"TxtPais"_s, u"Austria"_s);
    hands.click(u"BtnGuardar"_s);
    tour.same(u"Pais"_s, u"Austria"_s, tour.stored(u"Agrupacion"_s, u"Pais"_s).value(0));
}

void filterGroupings(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(SelectNumber);
    hands.click(u"BtnNueva"_s);
    addFilter(tour, u"Activity"_s, u"Does not contain"_s, u"choir"_s);
    hands.choose(u"ComboCampoOrden"_s, u"Date"_s);
    hands.choose(u"ComboCriterioOrden"_s, u"Descending"_s);
    hands.click(u"BtnAceptar"_s);
    tour.shows(u"LabNumReg"_s, u"2"_s);
    tour.shows(u"LabOpcionSQL"_s, u"Activity Does not contain 'choir'"_s);
}

void printGroupings(Tour& tour) {
    driver::Driver& hands = tour.hands();
    hands.go(ListNumber);
    hands.tick({u"Entity"_s, u"City"_s, u"Date"_s, u"Image"_s});
    hands.click(u"BtnListar"_s);
    hands.click(u"BtnAImagen"_s);
    tour.same(u"page"_s,
              u"No.|Entity|City|Date\n1|Berliner Philharmoniker|Berlin|1882\n"
              "2|Wiener Philharmoniker|Wien|1842\n"_s,
              hands.page());
    tour.printers.path = tour.out(u"groupings.pdf"_s);
    hands.click(u"BtnImprimir"_s);
    tour.require(QFileInfo(tour.printers.path).size() > 0, u"Nothing was printed."_s);
    tour.pdfHolds(tour.printers.path, {u"'Grouping'"_s, u"Filters: / Activity Does not contain 'choir' /"_s,
                                       u"/ Date / Descending /"_s, u"1- / Berliner Philharmoniker / Berlin / 1882 /"_s,
                                       u"2- / Wiener Philharmoniker / Wien / 1842 /"_s});
}

} // namespace zv::tour
