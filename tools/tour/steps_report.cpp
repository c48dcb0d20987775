// The report, the help and the screen about the program.
#include "tour/steps.h"
#include <QTextEdit>

namespace zv::tour {

using namespace Qt::StringLiterals;

namespace {

constexpr int ReportNumber = 57, GeneralNumber = 58, AddNumber = 1, AboutNumber = 68;

/// The pages of each chain of help, by the number of its first one.
const std::vector<std::vector<int>> Chains{{58}, {59, 60, 61}, {62}, {63, 64, 65}, {66, 67}};

} // namespace

// Nine composers were added and one of them removed, all eight are selected; of three groupings two are, and of three
// recordings two. Their twelve parts are two records of each kind, of the performers four.
void readReport(Tour& tour) {
    tour.hands().go(ReportNumber);
    tour.hands().screen(u"FormInforme"_s);
    const std::pair<const char*, const char*> figures[] = {{"LabComNumRegTotal", "8"},
                                                           {"LabComNumRegNuevos", "9"},
                                                           {"LabComNumRegEliminados", "1"},
                                                           {"LabComNumRegSeleccion", "8"},
                                                           {"LabComNumFiltros", "0"},
                                                           {"LabComOrden", "1"},
                                                           {"LabAgrNumRegTotal", "3"},
                                                           {"LabAgrNumRegSeleccion", "2"},
                                                           {"LabAgrNumFiltros1", "1"},
                                                           {"LabObraOrden", "1"},
                                                           {"LabOrqOrden", "2"},
                                                           {"LabIntNumRegTotal", "4"},
                                                           {"LabGraNumRegTotal", "3"},
                                                           {"LabGraNumRegSeleccion", "2"},
                                                           {"LabGraNumFiltros", "2"},
                                                           {"LabGraNumCampos", "8"},
                                                           {"LabInsOrden", "0"},
                                                           {"LabSumaNumRegTotal", "26"},
                                                           {"LabSumaNumRegNuevos", "27"},
                                                           {"LabSumaNumRegEliminados", "1"},
                                                           {"LabSumaNumRegSeleccion", "24"},
                                                           {"LabSumaOrden", "-"},
                                                           {"LabRxCNumRegTotal", "290"},
                                                           {"LabRxCNumRegSeleccion", "244"}};
    for (const auto& [label, figure] : figures) tour.shows(QString::fromLatin1(label), QString::fromLatin1(figure));
}

// Through all pages and back; a chain opens where it was left.
void readHelp(Tour& tour) {
    driver::Driver& hands = tour.hands();
    for (const std::vector<int>& chain : Chains) {
        hands.go(chain.front());
        for (std::size_t i = 1; i < chain.size(); ++i) hands.click(u"BtnSiguiente"_s);
        tour.same(u"number of the page"_s, chain.back(), tour.window().Solapas().VentanaMostrandose);
        hands.go(AddNumber);
        hands.go(chain.front());
        tour.same(u"number of the page"_s, chain.back(), tour.window().Solapas().VentanaMostrandose);
        if (chain.front() == 59) tour.photograph();
        for (std::size_t i = 1; i < chain.size(); ++i) hands.click(u"BtnAnterior"_s);
        tour.same(u"number of the page"_s, chain.front(), tour.window().Solapas().VentanaMostrandose);
    }
    hands.go(GeneralNumber);
    const QString words = hands.get<QTextEdit>(u"TxtAyudaGeneral"_s).toPlainText();
    tour.require(words.contains(u"stored at DataZV.mdb."_s), u"The help does not name the file."_s);
    hands.go(AboutNumber);
    hands.screen(u"FormAcercaDe"_s);
}

} // namespace zv::tour
