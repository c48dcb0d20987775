#include "editors/records1/recording_parts.h"

#include "platform/forms/look.h"

namespace zv::editors {

using store::Kind;
using store::Module1;

// clang-format off
namespace {

constexpr PartLabel ComposerLabels[] = {
    {u"LabCompositorNombre", u"Nombre", {1140, 2400, 2445, 240}},
    {u"LabCompositorApellidos", u"Apellidos", {1140, 2670, 2445, 240}},
    {u"LabCompositorFecha1", u"Fecha1", {1140, 2940, 600, 240}},
    {u"LabCompositorFecha2", u"Fecha2", {1800, 2940, 600, 240}},
};
constexpr PartLabel WorkLabels[] = {
    {u"LabObraNombre", u"Nombre", {5220, 120, 4785, 240}, true},
    {u"LabObraNumero", u"Numero", {5220, 390, 825, 240}},
    {u"LabObraTonalidad", u"Tonalidad", {6765, 390, 1515, 240}},
    {u"LabObraFecha1", u"Fecha1", {8820, 390, 570, 240}},
    {u"LabObraFecha2", u"Fecha2", {9435, 390, 570, 240}},
    {u"LabObraOpus", u"Opus", {5220, 660, 825, 240}},
    {u"LabObraNumeroOpus", u"NumeroOpus", {6765, 660, 585, 240}},
    {u"LabObraCatalogo", u"Catalogo", {8205, 660, 585, 240}},
    {u"LabObraNumeroCatalogo", u"NumeroCatalogo", {9180, 660, 825, 240}},
    {u"LabObraSubtitulo", u"Subtitulo", {5220, 930, 4785, 240}},
};
constexpr PartLabel FormatLabels[] = {
    {u"LabSoporteDiscografica", u"Discografica", {8070, 5790, 1935, 240}},
    {u"LabSoporteNumeroCatalogo", u"NumeroCatalogo", {8070, 6045, 1935, 240}},
    {u"LabSoporteColeccion", u"Coleccion", {8070, 6300, 1935, 240}},
    {u"LabSoporteNumeroColeccion", u"NumeroReferencia", {8070, 6555, 1935, 240}},
    {u"LabSoporteFormato", u"Formato", {8070, 6810, 945, 240}},
    {u"LabSoporteGrabacion", u"Grabacion", {9060, 6810, 945, 240}},
    {u"LabSoporteRecopilacion", u"Recopilacion", {8070, 7065, 825, 240}},
    {u"LabSoporteEdicion", u"Edicion", {9090, 7065, 915, 240}},
    {u"LabSoporteEmplazamiento", u"Emplazamiento", {8070, 7320, 1935, 240}},
};

constexpr PartGroup Orchestras = {
    .grid = u"FlexOrquesta", .rect = {3735, 4725, 1935, 810}, .rowHeight = 390, .columnWidth = 1770, .twoLinesPitch = 180,
    .type = forms::type::S, .limit = 10, .linkChannel = 8, .linkTable = u"RelacionOrquesta", .keyColumn = u"IdOrquesta",
    .ana = &Module1::ListaOrquestaAna, .mos = &Module1::ListaOrquestaMos};
constexpr PartGroup Conductors = {
    .grid = u"FlexDirectores", .rect = {8070, 2415, 1935, 930}, .rowHeight = 450, .columnWidth = 1770, .twoLinesPitch = 210,
    .type = forms::type::G, .limit = 10, .linkChannel = 7, .linkTable = u"RelacionDirector", .keyColumn = u"IdDirector",
    .ana = &Module1::ListaDirectorAna, .mos = &Module1::ListaDirectorMos};
constexpr PartGroup Performers = {
    .grid = u"FlexInterpretes", .rect = {2295, 5685, 3420, 1380}, .rowHeight = 270, .columnWidth = 3255,
    .type = forms::type::G, .limit = 100, .linkChannel = 9, .linkTable = u"RelacionInterprete", .keyColumn = u"IdInterprete",
    .suffixColumn = u"Instrumento", .ana = &Module1::ListaInterpreteAna, .mos = &Module1::ListaInterpreteMos};

constexpr PartInfo Parts[PartCount] = {
    {.kind = Kind::Compositor, .suffix = u"Compositor", .word = u"Composer", .importTip = u"Import Composer", .heading = {495, 105, 1935, 270}, .left = 495, .top = 390,
     .labels = ComposerLabels, .ana = &Module1::IdCompositorAna, .mos = &Module1::IdCompositorMos},
    {.kind = Kind::Obra, .suffix = u"Obra", .word = u"Work", .importTip = u"Import Work", .heading = {2640, 105, 1935, 270}, .left = 2640, .top = 390,
     .labels = WorkLabels, .ana = &Module1::IdObraAna, .mos = &Module1::IdObraMos},
    {.kind = Kind::Orquesta, .suffix = u"Orquesta", .word = u"Orchestra", .importTip = u"Import Orchestra", .heading = {3735, 2415, 1935, 270}, .left = 3735, .top = 2700,
     .group = &Orchestras},
    {.kind = Kind::Director, .suffix = u"Director", .word = u"Conductor", .importTip = u"Import Conductor", .heading = {5925, 2415, 1935, 270}, .left = 5925, .top = 2700,
     .group = &Conductors},
    {.kind = Kind::Interprete, .suffix = u"Interprete", .word = u"Performer", .importTip = u"Import Performer", .heading = {5925, 4725, 1440, 270}, .left = 5925, .top = 5010,
     .group = &Performers},
    {.kind = Kind::Soporte, .suffix = u"Soporte", .word = u"Format", .importTip = u"Import Format. Identifier", .heading = {8070, 3525, 1935, 270}, .left = 8070, .top = 3810,
     .labels = FormatLabels, .ana = &Module1::IdSoporteAna, .mos = &Module1::IdSoporteMos},
};

constexpr PartCaption Captions[] = {
    {u"Name", {240, 2400, 855, 240}}, {u"Surname", {240, 2670, 855, 240}}, {u"Dates", {240, 2940, 855, 240}},
    {u"Work", {4605, 120, 570, 240}}, {u"No.", {4605, 390, 570, 240}}, {u"Tonality", {6075, 390, 645, 240}},
    {u"Dates", {8295, 390, 480, 240}}, {u"Opus", {4605, 660, 570, 240}}, {u"No.", {6075, 660, 645, 240}},
    {u"Catalogue", {7365, 660, 795, 240}}, {u"No.", {8805, 660, 330, 240}}, {u"Subtitle", {4605, 930, 570, 240}},
    {u"Movements", {5220, 1200, 855, 240}, true}, {u"Duration (h-m-s)", {7545, 1200, 1305, 240}},
    {u"P", {7875, 7065, 150, 240}}, {u"C", {8910, 7065, 135, 240}},
};

} // namespace
// clang-format on

const PartInfo& partInfo(int part) { return Parts[part]; }

std::span<const PartCaption> partCaptions() { return Captions; }

} // namespace zv::editors
