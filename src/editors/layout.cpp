#include "editors/layout.h"

namespace zv::editors {

using store::Kind;

namespace {

constexpr int CaptionLeft = 3390, CaptionWidth = 1275, LongLeft = 3270, LongWidth = 1395;
constexpr int BoxLeft = 4740, BoxWidth = 5130, YearWidth = 720, LineHeight = 315;

constexpr CaptionPlace caption(QStringView text, int top) {
    return {text, {CaptionLeft, top, CaptionWidth, LineHeight}};
}
constexpr CaptionPlace longCaption(QStringView text, int top) { return {text, {LongLeft, top, LongWidth, 405}, true}; }
constexpr CaptionPlace secondCaption(QStringView text, int top) { return {text, {6870, top, 870, LineHeight}}; }
constexpr BoxPlace line(QStringView control, int top) { return {control, {BoxLeft, top, BoxWidth, LineHeight}}; }
constexpr BoxPlace year(QStringView control, int top, int left = BoxLeft) {
    return {control, {left, top, YearWidth, LineHeight}};
}
constexpr BoxPlace half(QStringView control, int top) { return {control, {BoxLeft, top, 2085, LineHeight}}; }
constexpr BoxPlace secondHalf(QStringView control, int top) { return {control, {7815, top, 2055, LineHeight}}; }
constexpr BoxPlace notes(int top, int bottom = 7050) { return {u"TxtNotas", {BoxLeft, top, BoxWidth, bottom - top}}; }

constexpr CaptionPlace PersonCaptions[] = {caption(u"Name", 240), caption(u"Surname", 645), caption(u"Dates", 1050),
                                           caption(u"Notes", 1455)};
constexpr BoxPlace PersonBoxes[] = {line(u"TxtNombre", 240), line(u"TxtApellidos", 645), year(u"TxtFecha1", 1050),
                                    year(u"TxtFecha2", 1050, 5580), notes(1455)};

constexpr CaptionPlace PerformerCaptions[] = {caption(u"Name", 240), caption(u"Surname", 645),
                                              longCaption(u"Instrument - Voice", 1005), caption(u"Dates", 1455),
                                              caption(u"Notes", 1860)};
constexpr BoxPlace PerformerBoxes[] = {line(u"TxtNombre", 240),        line(u"TxtApellidos", 645),
                                       line(u"TxtInstrumento", 1050),  year(u"TxtFecha1", 1455),
                                       year(u"TxtFecha2", 1455, 5580), notes(1860)};

constexpr CaptionPlace OrchestraCaptions[] = {caption(u"Orchestra", 240), caption(u"Ensemble", 645),
                                              caption(u"Choir", 1050),    caption(u"Gender", 1455),
                                              caption(u"  Date", 1860),   caption(u"  Notes", 2265)};
constexpr BoxPlace OrchestraBoxes[] = {line(u"TxtGenero", 1455), year(u"TxtFecha", 1860), notes(2265)};

constexpr CaptionPlace WorkCaptions[] = {
    caption(u"Author", 240),
    caption(u"Work", 645),
    caption(u"No.", 1050),
    {u"Tonality", {6030, 1050, 735, LineHeight}},
    caption(u"Opus", 1455),
    {u"No.", {5475, 1455, 300, LineHeight}},
    {u"Catalogue", {6525, 1455, 930, LineHeight}},
    {u"No.", {8475, 1455, 300, LineHeight}},
    caption(u"Dates", 1860),
    {u"Subtitle", {6030, 1860, 735, LineHeight}},
    {u"Movements", {4740, 2295, 990, 270}, false, true},
    {u"Duration (h-m-s)", {7140, 2295, 1500, 270}},
    caption(u"Notes", 5220),
};
constexpr BoxPlace WorkBoxes[] = {
    line(u"TxtAutor", 240),
    line(u"TxtNombre", 645),
    {u"TxtNumero", {BoxLeft, 1050, 1245, LineHeight}},
    {u"TxtTonalidad", {6840, 1050, 3030, LineHeight}},
    {u"TxtOpus", {BoxLeft, 1455, YearWidth, LineHeight}},
    {u"TxtNumeroOpus", {5850, 1455, 660, LineHeight}},
    {u"TxtCatalogo", {7530, 1455, 930, LineHeight}},
    {u"TxtNumeroCatalogo", {8850, 1455, 1020, LineHeight}},
    {u"TxtFecha1", {BoxLeft, 1860, 585, LineHeight}},
    {u"TxtFecha2", {5400, 1860, 585, LineHeight}},
    {u"TxtSubtitulo", {6840, 1860, 3030, LineHeight}},
    notes(5220),
};

constexpr CaptionPlace FormatCaptions[] = {longCaption(u"Record Company", 195),
                                           longCaption(u"Catalogue Number", 600),
                                           caption(u"Collection", 1050),
                                           longCaption(u"No. - Reference", 1410),
                                           caption(u"Format", 1860),
                                           secondCaption(u"Recording", 1860),
                                           caption(u"P", 2265),
                                           secondCaption(u"C", 2265),
                                           caption(u"Notes", 2670),
                                           caption(u"Location", 6735)};
constexpr BoxPlace FormatBoxes[] = {
    line(u"TxtDiscografica", 240),     line(u"TxtNumeroCatalogo", 645), line(u"TxtColeccion", 1050),
    line(u"TxtNumeroColeccion", 1455), half(u"TxtFormato", 1860),       secondHalf(u"TxtGrabacion", 1860),
    half(u"TxtRecopilacion", 2265),    secondHalf(u"TxtEdicion", 2265), notes(2670, 6645),
    line(u"TxtEmplazamiento", 6735)};

constexpr CaptionPlace InstrumentCaptions[] = {caption(u"Instrument", 240),
                                               caption(u"Maker", 645),
                                               caption(u"Model - Type", 1050),
                                               caption(u"Century", 1455),
                                               {u"Date", {5535, 1455, 600, LineHeight}},
                                               caption(u"Notes", 1860)};
constexpr BoxPlace InstrumentBoxes[] = {line(u"TxtInstrumento", 240),  line(u"TxtConstructor", 645),
                                        line(u"TxtModelo", 1050),      year(u"TxtSiglo", 1455),
                                        year(u"TxtFecha", 1455, 6210), notes(1860)};

constexpr std::array<CaptionPlace, 6> placeCaptions(QStringView first) {
    return {caption(first, 240),    caption(u"City", 645),      caption(u"Country", 1050),
            caption(u"Date", 1455), caption(u"Activity", 1860), caption(u"Notes", 2265)};
}
constexpr std::array<BoxPlace, 6> placeBoxes(QStringView first) {
    return {line(first, 240),        line(u"TxtCiudad", 645),     line(u"TxtPais", 1050),
            year(u"TxtFecha", 1455), line(u"TxtActividad", 1860), notes(2265)};
}
constexpr auto GroupingCaptions = placeCaptions(u"Entity"), EventCaptions = placeCaptions(u"Event"),
               ScenarioCaptions = placeCaptions(u"Scenario");
constexpr auto GroupingBoxes = placeBoxes(u"TxtEntidad"), EventBoxes = placeBoxes(u"TxtEvento"),
               ScenarioBoxes = placeBoxes(u"TxtEscenario");

constexpr CaptionPlace PublicationCaptions[] = {
    caption(u"Title", 240),          caption(u"Author", 645),      caption(u"Format", 1050),
    secondCaption(u"Subject", 1050), caption(u"Id. - ISBN", 1455), caption(u"Publishers", 1860),
    caption(u"Date", 2265),          caption(u"Notes", 2670),      caption(u"Location", 6735)};
constexpr BoxPlace PublicationBoxes[] = {
    line(u"TxtTitulo", 240),      line(u"TxtAutor", 645), half(u"TxtFormato", 1050),
    secondHalf(u"TxtTema", 1050), line(u"TxtISBN", 1455), line(u"TxtEditorial", 1860),
    year(u"TxtFecha", 2265),      notes(2670, 6645),      line(u"TxtEmplazamiento", 6735)};

constexpr CaptionPlace StationCaptions[] = {
    caption(u"Station", 240), caption(u"Media", 645),      caption(u"Country", 1050),
    caption(u"Zone", 1455),   caption(u"Frequency", 1860), {u"MHz", {8115, 1860, 600, LineHeight}, false, true},
    caption(u"Date", 2265),   caption(u"Notes", 2670)};
constexpr BoxPlace StationBoxes[] = {line(u"TxtEmisora", 240),
                                     line(u"TxtMedio", 645),
                                     line(u"TxtPais", 1050),
                                     line(u"TxtZona", 1455),
                                     {u"TxtFrecuencia", {BoxLeft, 1860, 3285, LineHeight}},
                                     year(u"TxtFecha", 2265),
                                     notes(2670)};

constexpr CaptionPlace InternetCaptions[] = {caption(u"Title", 240),   caption(u"URL", 645),
                                             caption(u"E-Mail", 1050), caption(u"Subject", 1455),
                                             caption(u"Date", 1860),   caption(u"Notes", 2265)};
constexpr BoxPlace InternetBoxes[] = {line(u"TxtTitulo", 240), line(u"TxtUrl", 645),    line(u"TxtEMail", 1050),
                                      line(u"TxtTema", 1455),  year(u"TxtFecha", 1860), notes(2265)};

} // namespace

EditorLayout editorLayout(Kind kind) {
    switch (kind) {
    case Kind::Compositor:
    case Kind::Director: return {PersonCaptions, PersonBoxes};
    case Kind::Interprete: return {PerformerCaptions, PerformerBoxes};
    case Kind::Soporte: return {FormatCaptions, FormatBoxes};
    case Kind::Instrumento: return {InstrumentCaptions, InstrumentBoxes};
    case Kind::Agrupacion: return {GroupingCaptions, GroupingBoxes};
    case Kind::Evento: return {EventCaptions, EventBoxes};
    case Kind::Escenario: return {ScenarioCaptions, ScenarioBoxes};
    case Kind::Publicacion: return {PublicationCaptions, PublicationBoxes};
    case Kind::Emisora: return {StationCaptions, StationBoxes};
    case Kind::Internet: return {InternetCaptions, InternetBoxes};
    case Kind::Obra: return {WorkCaptions, WorkBoxes};
    case Kind::Orquesta: return {OrchestraCaptions, OrchestraBoxes};
    case Kind::Grabacion: break;
    }
    return {};
}

} // namespace zv::editors
