// The descriptions of the 14 kinds of record: what differs from kind to kind, and nothing else.
#pragma once

#include "store/module1.h"
#include "store/schema.h"

// clang-format off
namespace zv::store::description {

inline constexpr Field Compositor[] = {
    {.column = u"Id", .value = Value::Key, .bound = u"BDReg1ComId"},
    {.column = u"Nombre", .limit = 50, .bound = u"BDReg1ComNom", .control = u"TxtNombre", .memo = u"MemoCompNombre", .listed = u"Name", .heading = true},
    {.column = u"Apellidos", .limit = 50, .bound = u"BDReg1ComApe", .control = u"TxtApellidos", .memo = u"MemoCompApellidos", .listed = u"Surname", .identifier = true, .heading = true},
    {.column = u"Fecha1", .value = Value::Year, .limit = 4, .bound = u"BDReg1ComFe1", .control = u"TxtFecha1", .memo = u"MemoCompFecha1", .listed = u"Date 1"},
    {.column = u"Fecha2", .value = Value::Year, .limit = 4, .bound = u"BDReg1ComFe2", .control = u"TxtFecha2", .memo = u"MemoCompFecha2", .listed = u"Date 2"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg1ComNot", .control = u"TxtNotas", .memo = u"MemoCompNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg1ComIma", .memo = u"MemoCompImagen", .listed = u"Image"},
};

inline constexpr Field Obra[] = {
    {.column = u"Id", .value = Value::Key, .bound = u"BDReg1ObraId"},
    {.column = u"Nombre", .limit = 75, .bound = u"BDReg1ObraObr", .control = u"TxtNombre", .memo = u"MemoObraObra", .listed = u"Work", .identifier = true, .heading = true},
    {.column = u"Numero", .limit = 15, .bound = u"BDReg1ObraNum", .control = u"TxtNumero", .memo = u"MemoObraNumero", .listed = u"No.", .heading = true},
    {.column = u"Tonalidad", .limit = 35, .bound = u"BDReg1ObraTon", .control = u"TxtTonalidad", .memo = u"MemoObraTonalidad", .listed = u"Tonality", .heading = true},
    {.column = u"Opus", .limit = 15, .bound = u"BDReg1ObraOpu", .control = u"TxtOpus", .memo = u"MemoObraOpus", .listed = u"Opus"},
    {.column = u"NumeroOpus", .limit = 15, .bound = u"BDReg1ObraNOp", .control = u"TxtNumeroOpus", .memo = u"MemoObraNumeroOpus", .listed = u"Opus No."},
    {.column = u"Catalogo", .limit = 15, .bound = u"BDReg1ObraCat", .control = u"TxtCatalogo", .memo = u"MemoObraCatalogo", .listed = u"Catalogue"},
    {.column = u"NumeroCatalogo", .limit = 15, .bound = u"BDReg1ObraNCa", .control = u"TxtNumeroCatalogo", .memo = u"MemoObraNmeroCatalogo", .listed = u"Catalogue No."},
    {.column = u"Fecha1", .value = Value::Year, .limit = 4, .bound = u"BDReg1ObraFe1", .control = u"TxtFecha1", .memo = u"MemoObraFecha1", .listed = u"Date 1"},
    {.column = u"Fecha2", .value = Value::Year, .limit = 4, .bound = u"BDReg1ObraFe2", .control = u"TxtFecha2", .memo = u"MemoObraFecha2", .listed = u"Date 2"},
    {.column = u"Subtitulo", .limit = 75, .bound = u"BDReg1ObraSub", .control = u"TxtSubtitulo", .memo = u"MemoObraSubtitulo", .listed = u"Subtitle"},
    {.column = u"Movimientos", .value = Value::Memo, .bound = u"BDReg1ObraMov", .memo = u"MemoObraMovimientosTiempo", .listed = u"Movements"},
    {.column = u"TiempoMovimientos", .value = Value::Memo, .bound = u"BDReg1ObraTMo"},
    {.column = u"TiempoTotal", .value = Value::Number, .bound = u"BDReg1ObraTTo", .memo = u"MemoObraTiempoTotal", .listed = u"Total Time"},
    {.column = u"NumeroMovimientos", .value = Value::Number, .bound = u"BDReg1ObraNMo", .memo = u"MemoObraNumeroMovimientos", .listed = u"No. of Movements"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg1ObraNot", .control = u"TxtNotas", .memo = u"MemoObraNotas", .listed = u"Notes"},
    {.column = u"Autor", .limit = 50, .bound = u"BDReg1ObraAut", .control = u"TxtAutor", .memo = u"MemoObraAutor", .listed = u"Author", .identifier = true},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg1ObraIma", .memo = u"MemoObraImagen", .listed = u"Image"},
};

inline constexpr Field Director[] = {
    {.column = u"IdDirector", .value = Value::Key, .bound = u"BDReg1DirId"},
    {.column = u"Nombre", .limit = 50, .bound = u"BDReg1DirNom", .control = u"TxtNombre", .memo = u"MemoDirNombre", .listed = u"Name", .heading = true},
    {.column = u"Apellidos", .limit = 50, .bound = u"BDReg1DirApe", .control = u"TxtApellidos", .memo = u"MemoDirApellidos", .listed = u"Surname", .identifier = true, .heading = true},
    {.column = u"Fecha1", .value = Value::Year, .limit = 4, .bound = u"BDReg1DirFe1", .control = u"TxtFecha1", .memo = u"MemoDirFecha1", .listed = u"Date 1"},
    {.column = u"Fecha2", .value = Value::Year, .limit = 4, .bound = u"BDReg1DirFe2", .control = u"TxtFecha2", .memo = u"MemoDirFecha2", .listed = u"Date 2"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg1DirNot", .control = u"TxtNotas", .memo = u"MemoDirNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg1DirIma", .memo = u"MemoDirImagen", .listed = u"Image"},
};

inline constexpr Field Orquesta[] = {
    {.column = u"IdOrquesta", .value = Value::Key, .bound = u"BDReg1OrqId"},
    {.column = u"OrqGrpCor", .limit = 1, .bound = u"BDReg1OrqOrGrpCor"},
    {.column = u"Nombre", .limit = 75, .bound = u"BDReg1OrqNom", .memo = u"MemoOrqOrqGrpCor", .listed = u"Name", .identifier = true, .heading = true},
    {.column = u"Genero", .limit = 50, .bound = u"BDReg1OrqGen", .control = u"TxtGenero", .memo = u"MemoOrqGenero", .listed = u"Gender"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg1OrqFec", .control = u"TxtFecha", .memo = u"MemoOrqFecha", .listed = u"Date"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg1OrqNot", .control = u"TxtNotas", .memo = u"MemoOrqNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg1OrqIma", .memo = u"MemoOrqImagen", .listed = u"Image"},
};

inline constexpr Field Soporte[] = {
    {.column = u"Id", .value = Value::Key, .bound = u"BDReg1SopId"},
    {.column = u"Discografica", .limit = 70, .bound = u"BDReg1SopDis", .control = u"TxtDiscografica", .memo = u"MemoSopDiscografica", .listed = u"Record Company", .identifier = true, .heading = true},
    {.column = u"NumeroCatalogo", .limit = 70, .bound = u"BDReg1SopNCa", .control = u"TxtNumeroCatalogo", .memo = u"MemoSopNumeroCatalogo", .listed = u"Catalogue No.", .identifier = true, .heading = true},
    {.column = u"Coleccion", .limit = 70, .bound = u"BDReg1SopCol", .control = u"TxtColeccion", .memo = u"MemoSopColeccion", .listed = u"Collection"},
    {.column = u"NumeroReferencia", .limit = 70, .bound = u"BDReg1SopNRe", .control = u"TxtNumeroColeccion", .memo = u"MemoSopNumeroReferencia", .listed = u"No. - Reference"},
    {.column = u"Formato", .limit = 30, .bound = u"BDReg1SopFor", .control = u"TxtFormato", .memo = u"MemoSopFormato", .listed = u"Format"},
    {.column = u"Grabacion", .limit = 30, .bound = u"BDReg1SopGra", .control = u"TxtGrabacion", .memo = u"MemoSopGrabacion", .listed = u"Recording"},
    {.column = u"Recopilacion", .limit = 20, .bound = u"BDReg1SopRec", .control = u"TxtRecopilacion", .memo = u"MemoSopRecopilacion", .listed = u"( P )"},
    {.column = u"Edicion", .limit = 20, .bound = u"BDReg1SopEdi", .control = u"TxtEdicion", .memo = u"MemoSopEdicion", .listed = u"( C )"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg1SopNot", .control = u"TxtNotas", .memo = u"MemoSopNotas", .listed = u"Notes"},
    {.column = u"Emplazamiento", .limit = 50, .bound = u"BDReg1SopEmp", .control = u"TxtEmplazamiento", .memo = u"MemoSopEmplazamiento", .listed = u"Location"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg1SopIma", .memo = u"MemoSopImagen", .listed = u"Image"},
};

inline constexpr Field Interprete[] = {
    {.column = u"IdInterprete", .value = Value::Key, .bound = u"BDReg1IntId"},
    {.column = u"Nombre", .limit = 50, .bound = u"BDReg1IntNom", .control = u"TxtNombre", .memo = u"MemoIntNombre", .listed = u"Name", .heading = true},
    {.column = u"Apellidos", .limit = 50, .bound = u"BDReg1IntApe", .control = u"TxtApellidos", .memo = u"MemoIntApellidos", .listed = u"Surname", .identifier = true, .heading = true},
    {.column = u"Instrumento", .limit = 50, .bound = u"BDReg1IntIns", .control = u"TxtInstrumento", .memo = u"MemoIntInstrumento", .listed = u"Instrument - Voice"},
    {.column = u"Fecha1", .value = Value::Year, .limit = 4, .bound = u"BDReg1IntFe1", .control = u"TxtFecha1", .memo = u"MemoIntFecha1", .listed = u"Date 1"},
    {.column = u"Fecha2", .value = Value::Year, .limit = 4, .bound = u"BDReg1IntFe2", .control = u"TxtFecha2", .memo = u"MemoIntFecha2", .listed = u"Date 2"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg1IntNot", .control = u"TxtNotas", .memo = u"MemoIntNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg1IntIma", .memo = u"MemoIntImagen", .listed = u"Image"},
};

inline constexpr Field Grabacion[] = {
    {.column = u"IdGrabacion", .value = Value::Key, .bound = u"BDReg1GraId"},
    {.column = u"IdCompositor", .value = Value::Number, .bound = u"BDReg1GraIdComp"},
    {.column = u"IdObra", .value = Value::Number, .bound = u"BDReg1GraIdObr"},
    {.column = u"IdSoporte", .value = Value::Number, .bound = u"BDReg1GraIdSop"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg1GraNot", .control = u"TxtNotas"},
};

inline constexpr Field Instrumento[] = {
    {.column = u"Id", .value = Value::Key},
    {.column = u"Instrumento", .limit = 50, .bound = u"BDReg2InsInst", .control = u"TxtInstrumento", .memo = u"MemoInsInstrumento", .listed = u"Instrument", .identifier = true, .heading = true},
    {.column = u"Constructor", .limit = 50, .bound = u"BDReg2InsCon", .control = u"TxtConstructor", .memo = u"MemoInsConstructor", .listed = u"Maker", .heading = true},
    {.column = u"Modelo", .limit = 50, .bound = u"BDReg2InsMod", .control = u"TxtModelo", .memo = u"MemoInsModelo", .listed = u"Model - Type"},
    {.column = u"Siglo", .value = Value::Year, .limit = 2, .bound = u"BDReg2InsSig", .control = u"TxtSiglo", .memo = u"MemoInsSiglo", .listed = u"Century"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg2InsFec", .control = u"TxtFecha", .memo = u"MemoInsFecha", .listed = u"Date"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg2InsNot", .control = u"TxtNotas", .memo = u"MemoInsNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg2InsIma", .memo = u"MemoInsImagen", .listed = u"Image"},
};

inline constexpr Field Agrupacion[] = {
    {.column = u"Id", .value = Value::Key},
    {.column = u"Entidad", .limit = 75, .bound = u"BDReg2AgrEnt", .control = u"TxtEntidad", .memo = u"MemoAgrEntidad", .listed = u"Entity", .identifier = true, .heading = true},
    {.column = u"Ciudad", .limit = 75, .bound = u"BDReg2AgrCiu", .control = u"TxtCiudad", .memo = u"MemoAgrCiudad", .listed = u"City"},
    {.column = u"Pais", .limit = 50, .bound = u"BDReg2AgrPai", .control = u"TxtPais", .memo = u"MemoAgrPais", .listed = u"Country"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg2AgrFec", .control = u"TxtFecha", .memo = u"MemoAgrFecha", .listed = u"Date"},
    {.column = u"Actividad", .limit = 75, .bound = u"BDReg2AgrAct", .control = u"TxtActividad", .memo = u"MemoAgrActividad", .listed = u"Activity"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg2AgrNot", .control = u"TxtNotas", .memo = u"MemoAgrNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg2AgrIma", .memo = u"MemoAgrImagen", .listed = u"Image"},
};

inline constexpr Field Evento[] = {
    {.column = u"Id", .value = Value::Key},
    {.column = u"Evento", .limit = 75, .bound = u"BDReg2EveEve", .control = u"TxtEvento", .memo = u"MemoEveEvento", .listed = u"Event", .identifier = true, .heading = true},
    {.column = u"Ciudad", .limit = 75, .bound = u"BDReg2EveCiu", .control = u"TxtCiudad", .memo = u"MemoEveCiudad", .listed = u"City"},
    {.column = u"Pais", .limit = 50, .bound = u"BDReg2EvePai", .control = u"TxtPais", .memo = u"MemoEvePais", .listed = u"Country"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg2EveFec", .control = u"TxtFecha", .memo = u"MemoEveFecha", .listed = u"Date"},
    {.column = u"Actividad", .limit = 75, .bound = u"BDReg2EveAct", .control = u"TxtActividad", .memo = u"MemoEveActividad", .listed = u"Activity"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg2EveNot", .control = u"TxtNotas", .memo = u"MemoEveNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg2EveIma", .memo = u"MemoEveImagen", .listed = u"Image"},
};

inline constexpr Field Escenario[] = {
    {.column = u"Id", .value = Value::Key},
    {.column = u"Escenario", .limit = 75, .bound = u"BDReg2EscEsc", .control = u"TxtEscenario", .memo = u"MemoEscEscenario", .listed = u"Scenario", .identifier = true, .heading = true},
    {.column = u"Ciudad", .limit = 75, .bound = u"BDReg2EscCiu", .control = u"TxtCiudad", .memo = u"MemoEscCiudad", .listed = u"City"},
    {.column = u"Pais", .limit = 50, .bound = u"BDReg2EscPai", .control = u"TxtPais", .memo = u"MemoEscPais", .listed = u"Country"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg2EscFec", .control = u"TxtFecha", .memo = u"MemoEscFecha", .listed = u"Date"},
    {.column = u"Actividad", .limit = 75, .bound = u"BDReg2EscAct", .control = u"TxtActividad", .memo = u"MemoEscActividad", .listed = u"Activity"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg2EscNot", .control = u"TxtNotas", .memo = u"MemoEscNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg2EscIma", .memo = u"MemoEscImagen", .listed = u"Image"},
};

inline constexpr Field Publicacion[] = {
    {.column = u"Id", .value = Value::Key},
    {.column = u"Titulo", .limit = 75, .bound = u"BDReg2PubTit", .control = u"TxtTitulo", .memo = u"MemoPubTitulo", .listed = u"Title", .identifier = true, .heading = true},
    {.column = u"Autor", .limit = 75, .bound = u"BDReg2PubAut", .control = u"TxtAutor", .memo = u"MemoPubAutor", .listed = u"Author"},
    {.column = u"Formato", .limit = 30, .bound = u"BDReg2PubFor", .control = u"TxtFormato", .memo = u"MemoPubFormato", .listed = u"Format"},
    {.column = u"Tema", .limit = 35, .bound = u"BDReg2PubTem", .control = u"TxtTema", .memo = u"MemoPubTema", .listed = u"Subject"},
    {.column = u"ISBN", .limit = 75, .bound = u"BDReg2PubISB", .control = u"TxtISBN", .memo = u"MemoPubISBN", .listed = u"Id. - ISBN"},
    {.column = u"Editorial", .limit = 50, .bound = u"BDReg2PubEdi", .control = u"TxtEditorial", .memo = u"MemoPubEditorial", .listed = u"Publishers"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg2PubFec", .control = u"TxtFecha", .memo = u"MemoPubFecha", .listed = u"Date"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg2PubNot", .control = u"TxtNotas", .memo = u"MemoPubNotas", .listed = u"Notes"},
    {.column = u"Emplazamiento", .limit = 50, .bound = u"BDReg2PubEmp", .control = u"TxtEmplazamiento", .memo = u"MemoPubEmplazamiento", .listed = u"Location"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg2PubIma", .memo = u"MemoPubImagen", .listed = u"Image"},
};

inline constexpr Field Emisora[] = {
    {.column = u"Id", .value = Value::Key},
    {.column = u"Emisora", .limit = 75, .bound = u"BDReg2EmiEmi", .control = u"TxtEmisora", .memo = u"MemoEmiEmisora", .listed = u"Station", .identifier = true, .heading = true},
    {.column = u"Medio", .limit = 25, .bound = u"BDReg2EmiMed", .control = u"TxtMedio", .memo = u"MemoEmiMedio", .listed = u"Media"},
    {.column = u"Pais", .limit = 50, .bound = u"BDReg2EmiPai", .control = u"TxtPais", .memo = u"MemoEmiPais", .listed = u"Country"},
    {.column = u"Zona", .limit = 75, .bound = u"BDReg2EmiZon", .control = u"TxtZona", .memo = u"MemoEmiZona", .listed = u"Zone"},
    {.column = u"Frecuencia", .limit = 30, .bound = u"BDReg2EmiFre", .control = u"TxtFrecuencia", .memo = u"MemoEmiFrecuencia", .listed = u"Frequency"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg2EmiFec", .control = u"TxtFecha", .memo = u"MemoEmiFecha", .listed = u"Date"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg2EmiNot", .control = u"TxtNotas", .memo = u"MemoEmiNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg2EmiIma", .memo = u"MemoEmiImagen", .listed = u"Image"},
};

inline constexpr Field Internet[] = {
    {.column = u"Id", .value = Value::Key},
    {.column = u"Titulo", .limit = 75, .bound = u"BDReg2IntTit", .control = u"TxtTitulo", .memo = u"MemoIntTitulo", .listed = u"Title", .identifier = true, .heading = true},
    {.column = u"Url", .limit = 75, .bound = u"BDReg2IntUrl", .control = u"TxtUrl", .memo = u"MemoIntUrl", .listed = u"URL"},
    {.column = u"EMail", .limit = 75, .bound = u"BDReg2IntEMa", .control = u"TxtEMail", .memo = u"MemoIntEMail", .listed = u"E-Mail"},
    {.column = u"Tema", .limit = 75, .bound = u"BDReg2IntTem", .control = u"TxtTema", .memo = u"MemoIntTema", .listed = u"Subject"},
    {.column = u"Fecha", .value = Value::Year, .limit = 4, .bound = u"BDReg2IntFec", .control = u"TxtFecha", .memo = u"MemoIntFecha", .listed = u"Date"},
    {.column = u"Notas", .value = Value::Memo, .bound = u"BDReg2IntNot", .control = u"TxtNotas", .memo = u"MemoIntNotas", .listed = u"Notes"},
    {.column = u"Imagen", .value = Value::Picture, .bound = u"BDReg2IntIma", .memo = u"MemoIntImagen", .listed = u"Image"},
};

inline constexpr QStringView RecordingClauses[] = {u"Compositor", u"Obra", u"Orquesta", u"Director", u"Interprete", u"Soporte", u"Grabacion"};
inline constexpr QStringView RecordingOrder[] = {u"Field", u"Histórical"};
inline constexpr QStringView OrchestraNames[] = {u"Orchestra", u"Ensemble", u"Choir"};

inline constexpr KindInfo Kinds[] = {
    {.kind = Kind::Compositor, .table = u"Compositor", .shortName = u"Comp", .channel = 0, .tab = 0, .title = u"Composer", .fieldCount = 6, .valueLimit = 50, .partOfRecording = true, .shownKey = &Module1::IdCompositorMos, .identifierTip = false, .listTicks = u"MemoLisCompCampo", .listLoad = {.margin = 30, .movesToLast = true, .clampsBelow = true}, .drawing = u"compositor", .fields = Compositor},
    {.kind = Kind::Obra, .table = u"Obra", .shortName = u"Obra", .channel = 1, .tab = 1, .title = u"Work", .fieldCount = 16, .partOfRecording = true, .shownKey = &Module1::IdObraMos, .hashKeptOut = true, .listTicks = u"MemoLisObraCampo", .drawing = u"obra", .fields = Obra},
    {.kind = Kind::Director, .table = u"Director", .shortName = u"Dir", .channel = 2, .tab = 3, .title = u"Conductor", .fieldCount = 6, .valueLimit = 50, .partOfRecording = true, .identifierTip = false, .listTicks = u"MemoLisDirCampo", .drawing = u"director", .fields = Director},
    {.kind = Kind::Orquesta, .table = u"Orquesta", .shortName = u"Orq", .channel = 3, .tab = 2, .title = u"Orchestra-Ensemble", .fieldCount = 5, .partOfRecording = true, .listTicks = u"MemoLisOrqCampo", .drawing = u"orquesta", .fields = Orquesta, .nameRows = OrchestraNames},
    {.kind = Kind::Soporte, .table = u"Soporte", .shortName = u"Sop", .channel = 4, .tab = 5, .title = u"Format", .fieldCount = 11, .valueLimit = 70, .partOfRecording = true, .shownKey = &Module1::IdSoporteMos, .saveTail = u"", .listTicks = u"MemoLisSopCampo", .drawing = u"soporte", .fields = Soporte},
    {.kind = Kind::Interprete, .table = u"Interprete", .shortName = u"Int", .channel = 5, .tab = 4, .title = u"Performer", .fieldCount = 7, .valueLimit = 50, .partOfRecording = true, .identifierTip = false, .listTicks = u"MemoLisIntCampo", .drawing = u"interprete", .fields = Interprete},
    {.kind = Kind::Grabacion, .table = u"Grabacion", .shortName = u"Gra", .channel = 6, .tab = 6, .title = u"Recording", .fieldCount = 39, .hashKeptOut = true, .listTicks = u"MemoLisGraCampo", .drawing = u"grabacion", .fields = Grabacion, .listItems = 34, .clauses = RecordingClauses, .onlyOrder = RecordingOrder},
    {.kind = Kind::Instrumento, .table = u"Instrumento", .shortName = u"Ins", .form = 2, .channel = 0, .tab = 0, .title = u"Instrument", .fieldCount = 7, .valueLimit = 50, .listTicks = u"MemoLisInsCampo", .drawing = u"instrumento", .fields = Instrumento},
    {.kind = Kind::Agrupacion, .table = u"Agrupacion", .shortName = u"Agr", .form = 2, .channel = 1, .tab = 1, .title = u"Grouping", .fieldCount = 7, .listTicks = u"MemoLisAgrCampo", .drawing = u"agrupacion", .fields = Agrupacion},
    {.kind = Kind::Evento, .table = u"Evento", .shortName = u"Eve", .form = 2, .channel = 2, .tab = 2, .title = u"Event", .fieldCount = 7, .listTicks = u"MemoLisEveCampo", .drawing = u"evento", .fields = Evento},
    {.kind = Kind::Escenario, .table = u"Escenario", .shortName = u"Esc", .form = 2, .channel = 3, .tab = 3, .title = u"Scenario", .fieldCount = 7, .listTicks = u"MemoLisEscCampo", .drawing = u"escenario", .fields = Escenario},
    {.kind = Kind::Publicacion, .table = u"Publicacion", .shortName = u"Pub", .form = 2, .channel = 4, .tab = 4, .title = u"Publication - Video", .fieldCount = 10, .listTicks = u"MemoLisPubCampo", .drawing = u"publicacion", .fields = Publicacion},
    {.kind = Kind::Emisora, .table = u"Emisora", .shortName = u"Emi", .form = 2, .channel = 5, .tab = 5, .title = u"Station", .fieldCount = 8, .listTicks = u"MemoLisEmiCampo", .drawing = u"emisora", .fields = Emisora},
    {.kind = Kind::Internet, .table = u"Internet", .shortName = u"Int", .form = 2, .channel = 6, .tab = 6, .title = u"http://www.", .fieldCount = 7, .acceptTrapped = false, .laterByValue = true, .listTicks = u"MemoLisNetCampo", .drawing = u"internet", .fields = Internet},
};

static_assert(std::size(Kinds) == KindCount);
static_assert([] {
    for (int i = 0; i < KindCount; ++i)
        if (Kinds[i].kind != static_cast<Kind>(i)) return false;
    return true;
}());

inline constexpr LinkInfo Links[] = {
    {u"RelacionDirector", 7, {{{.column = u"IdGrabacion", .value = Value::Number, .bound = u"BDReg1RDIdGra"}, {.column = u"IdDirector", .value = Value::Number, .bound = u"BDReg1RDIdDir"}}}},
    {u"RelacionOrquesta", 8, {{{.column = u"IdGrabacion", .value = Value::Number, .bound = u"BDReg1ROIdGrabacion"}, {.column = u"IdOrquesta", .value = Value::Number, .bound = u"BDReg1ROIdOrquesta"}}}},
    {u"RelacionInterprete", 9, {{{.column = u"IdGrabacion", .value = Value::Number, .bound = u"BDReg1RIIdGrabacion"}, {.column = u"IdInterprete", .value = Value::Number, .bound = u"BDReg1RIIdInterprete"}}}},
};

} // namespace zv::store::description
// clang-format on
