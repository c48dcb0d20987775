// What the Select and the List screen of each kind have to say, one line for each: the heading, the characters of a
// value, and the fields in order with their columns; "*" behind a column tells a number.
#pragma once

#include "store/schema.h"
#include <QStringList>
#include <gtest/gtest.h>

namespace zv::test {

struct KindWords {
    store::Kind kind;
    QStringView title;
    int valueLimit;
    QStringView fields;

    struct FieldWords {
        QString caption, column;
        bool numeric;
    };
    std::vector<FieldWords> rows() const {
        std::vector<FieldWords> found;
        for (const QString& field : fields.toString().split(u'|')) {
            const QStringList parts = field.split(u'=');
            const bool numeric = parts[1].endsWith(u'*');
            found.push_back({parts[0], parts[1].chopped(numeric ? 1 : 0), numeric});
        }
        return found;
    }
    const store::KindInfo& info() const { return store::info(kind); }
};

/// A field of the recordings' filters: caption, table and column.
struct RecordingField {
    QString caption, table, column;
    bool numeric;
};

inline std::vector<RecordingField> recordingFields() {
    static constexpr QStringView Words =
        u"COM Name=Compositor.Nombre|COM Surname=Compositor.Apellidos|COM Date 1=Compositor.Fecha1*|"
        u"COM Date 2=Compositor.Fecha2*|WOR Work=Obra.Nombre|WOR No.=Obra.Numero|WOR Tonality=Obra.Tonalidad|"
        u"WOR Opus=Obra.Opus|WOR Opus No.=Obra.NumeroOpus|WOR Catalogue=Obra.Catalogo|"
        u"WOR Catalogue No.=Obra.NumeroCatalogo|WOR Date 1=Obra.Fecha1*|WOR Date 2=Obra.Fecha2*|"
        u"WOR Subtitle=Obra.Subtitulo|WOR Movements=Obra.Movimientos|WOR Total Time=Obra.TiempoTotal*|"
        u"WOR No. of  Movements=Obra.NumeroMovimientos*|ORC Orc-Ens-Cho=Orquesta.Nombre|CON Name=Director.Nombre|"
        u"CON Surname=Director.Apellidos|PER Name=Interprete.Nombre|PER Surname=Interprete.Apellidos|"
        u"PER Instrument-Voice=Interprete.Instrumento|FOR Record Company=Soporte.Discografica|"
        u"FOR Catalogue No.=Soporte.NumeroCatalogo|FOR Collection=Soporte.Coleccion|"
        u"FOR No.-Reference=Soporte.NumeroReferencia|FOR Format=Soporte.Formato|FOR Recording=Soporte.Grabacion|"
        u"FOR ( P )=Soporte.Recopilacion|FOR ( C )=Soporte.Edicion|FOR Location=Soporte.Emplazamiento|"
        u"REC Notes=Grabacion.Notas";
    std::vector<RecordingField> found;
    for (const QString& field : Words.toString().split(u'|')) {
        const QString column = field.section(u'.', -1);
        const bool numeric = column.endsWith(u'*');
        found.push_back({field.section(u'=', 0, 0), field.section(u'=', 1).section(u'.', 0, 0),
                         column.chopped(numeric ? 1 : 0), numeric});
    }
    return found;
}

/// All kinds but the works and the orchestras, whose screens depart from the pattern, and the recordings.
inline const KindWords PlainKinds[] = {
    {store::Kind::Compositor, u"Composer", 50,
     u"Name=Nombre|Surname=Apellidos|Date 1=Fecha1*|Date 2=Fecha2*|Notes=Notas"},
    {store::Kind::Director, u"Conductor", 50,
     u"Name=Nombre|Surname=Apellidos|Date 1=Fecha1*|Date 2=Fecha2*|Notes=Notas"},
    {store::Kind::Soporte, u"Format", 70,
     u"Record Company=Discografica|Catalogue No.=NumeroCatalogo|Collection=Coleccion|No. - Reference=NumeroReferencia|"
     u"Format=Formato|Recording=Grabacion|( P )=Recopilacion|( C )=Edicion|Notes=Notas|Location=Emplazamiento"},
    {store::Kind::Interprete, u"Performer", 50,
     u"Name=Nombre|Surname=Apellidos|Instrument - Voice=Instrumento|Date 1=Fecha1*|Date 2=Fecha2*|Notes=Notas"},
    {store::Kind::Instrumento, u"Instrument", 50,
     u"Instrument=Instrumento|Maker=Constructor|Model - Type=Modelo|Century=Siglo*|Date=Fecha*|Notes=Notas"},
    {store::Kind::Agrupacion, u"Grouping", 75,
     u"Entity=Entidad|City=Ciudad|Country=Pais|Date=Fecha*|Activity=Actividad|Notes=Notas"},
    {store::Kind::Evento, u"Event", 75,
     u"Event=Evento|City=Ciudad|Country=Pais|Date=Fecha*|Activity=Actividad|Notes=Notas"},
    {store::Kind::Escenario, u"Scenario", 75,
     u"Scenario=Escenario|City=Ciudad|Country=Pais|Date=Fecha*|Activity=Actividad|Notes=Notas"},
    {store::Kind::Publicacion, u"Publication - Video", 75,
     u"Title=Titulo|Author=Autor|Format=Formato|Subject=Tema|Id. - ISBN=ISBN|Publishers=Editorial|Date=Fecha*|"
     u"Notes=Notas|Location=Emplazamiento"},
    {store::Kind::Emisora, u"Station", 75,
     u"Station=Emisora|Media=Medio|Country=Pais|Zone=Zona|Frequency=Frecuencia|Date=Fecha*|Notes=Notas"},
    {store::Kind::Internet, u"http://www.", 75,
     u"Title=Titulo|URL=Url|E-Mail=EMail|Subject=Tema|Date=Fecha*|Notes=Notas"},
};

inline std::string kindName(const ::testing::TestParamInfo<KindWords>& words) {
    return words.param.info().table.toString().toStdString();
}

inline void PrintTo(const KindWords& words, std::ostream* out) { *out << words.info().table.toString().toStdString(); }

} // namespace zv::test
