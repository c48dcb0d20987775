// What the filters and the list of recordings offer: fields of the tables that a recording points to or is tied to.
#pragma once

#include "store/schema.h"

namespace zv::store {

/// A field on offer. The first three letters of its words tell the table.
struct RecordingItem {
    Kind source;
    QStringView column;
    QStringView filtered;     ///< its words in Select; empty where it is not on offer
    QStringView shorter = {}; ///< its words in List where they differ

    QStringView listed() const { return shorter.isEmpty() ? filtered : shorter; }
    const Field& field() const {
        const KindInfo& kind = info(source);
        return kind.fields[static_cast<std::size_t>(kind.indexOf(column))];
    }
    bool isNumber() const { return field().value == Value::Year || field().value == Value::Number; }
};

/// In the order of both lists. The picture is the last one.
inline constexpr RecordingItem RecordingItems[] = {
    {Kind::Compositor, u"Nombre", u"COM Name"},
    {Kind::Compositor, u"Apellidos", u"COM Surname"},
    {Kind::Compositor, u"Fecha1", u"COM Date 1"},
    {Kind::Compositor, u"Fecha2", u"COM Date 2"},
    {Kind::Obra, u"Nombre", u"WOR Work"},
    {Kind::Obra, u"Numero", u"WOR No."},
    {Kind::Obra, u"Tonalidad", u"WOR Tonality"},
    {Kind::Obra, u"Opus", u"WOR Opus"},
    {Kind::Obra, u"NumeroOpus", u"WOR Opus No."},
    {Kind::Obra, u"Catalogo", u"WOR Catalogue"},
    {Kind::Obra, u"NumeroCatalogo", u"WOR Catalogue No."},
    {Kind::Obra, u"Fecha1", u"WOR Date 1"},
    {Kind::Obra, u"Fecha2", u"WOR Date 2"},
    {Kind::Obra, u"Subtitulo", u"WOR Subtitle"},
    {Kind::Obra, u"Movimientos", u"WOR Movements"},
    {Kind::Obra, u"TiempoTotal", u"WOR Total Time"},
    {Kind::Obra, u"NumeroMovimientos", u"WOR No. of  Movements", u"WOR No. of  Mov"},
    {Kind::Orquesta, u"Nombre", u"ORC Orc-Ens-Cho"},
    {Kind::Director, u"Nombre", u"CON Name"},
    {Kind::Director, u"Apellidos", u"CON Surname"},
    {Kind::Interprete, u"Nombre", u"PER Name"},
    {Kind::Interprete, u"Apellidos", u"PER Surname"},
    {Kind::Interprete, u"Instrumento", u"PER Instrument-Voice", u"PER Ins-Voice"},
    {Kind::Soporte, u"Discografica", u"FOR Record Company", u"FOR Rec Company"},
    {Kind::Soporte, u"NumeroCatalogo", u"FOR Catalogue No."},
    {Kind::Soporte, u"Coleccion", u"FOR Collection"},
    {Kind::Soporte, u"NumeroReferencia", u"FOR No.-Reference"},
    {Kind::Soporte, u"Formato", u"FOR Format"},
    {Kind::Soporte, u"Grabacion", u"FOR Recording"},
    {Kind::Soporte, u"Recopilacion", u"FOR ( P )"},
    {Kind::Soporte, u"Edicion", u"FOR ( C )"},
    {Kind::Soporte, u"Emplazamiento", u"FOR Location"},
    {Kind::Grabacion, u"Notas", u"REC Notes"},
    {Kind::Soporte, u"Imagen", u"", u"FOR Image"},
};

} // namespace zv::store
