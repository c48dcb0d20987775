#include "editors/recording_desk.h"

namespace zv::test {

using store::Kind;

namespace {

constexpr Kind PartKind[] = {Kind::Compositor, Kind::Obra,       Kind::Orquesta,
                             Kind::Director,   Kind::Interprete, Kind::Soporte};

} // namespace

QString RecordingDesk::name(int part) { return store::info(PartKind[part]).table.toString(); }

void RecordingDesk::putParts(int count, int performers) {
    const auto fill = [this](const QString& into, const QString& values, int rows) {
        sql(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < %1) INSERT INTO %2 SELECT %3 FROM n"_s
                .arg(QString::number(rows), into, values));
    };
    fill(u"Compositor(Nombre, Apellidos, Fecha1, Fecha2)"_s, u"'Carl', 'Composer ' || i, 1700 + i, 0"_s, count);
    fill(u"Obra(Nombre, Autor)"_s, u"'Work ' || i, 'Author'"_s, count);
    fill(u"Orquesta(OrqGrpCor, Nombre)"_s, u"'1', 'Orchestra ' || i"_s, count);
    fill(u"Director(Nombre, Apellidos)"_s, u"'D', 'Conductor ' || i"_s, count);
    fill(u"Soporte(Discografica, NumeroCatalogo)"_s, u"'Label ' || i, 'No. ' || i"_s, count);
    fill(u"Interprete(Nombre, Apellidos, Instrumento)"_s, u"'P', 'Performer ' || i, 'horn'"_s, performers);
}

void RecordingDesk::putRecordings(const QList<Recording>& recordings) {
    int key = int(stored(u"Grabacion"_s, u"IdGrabacion"_s).size());
    for (const Recording& r : recordings) {
        ++key;
        put({u"Grabacion"_s,
             u"IdGrabacion, IdCompositor, IdObra, IdSoporte, Notas"_s,
             {u"%1, %2, %3, %4, '%5'"_s.arg(QString::number(key), QString::number(r.composer), QString::number(r.work),
                                            QString::number(r.format), r.notes)}});
        const auto link = [&](const QString& kind, const QList<int>& keys) {
            QStringList values;
            for (const int linked : keys) values += u"%1, %2"_s.arg(key).arg(linked);
            put({u"Relacion"_s + kind, u"IdGrabacion, Id"_s + kind, values});
        };
        link(u"Director"_s, r.conductors);
        link(u"Orquesta"_s, r.orchestras);
        link(u"Interprete"_s, r.performers);
    }
}

void RecordingDesk::stand(Part part, int order) {
    hands->go(FirstShowEdit + part);
    walk(order);
}

void RecordingDesk::gather(int order) {
    walk(order);
    hands->click(u"BtnAñadirGrupo"_s);
}

void RecordingDesk::trip(Part part) {
    hands->doubleClick(u"Imagen"_s + name(part));
    hands->screen(u"FormReg1Mos"_s + name(part));
}

QString RecordingDesk::listed(Part part) {
    const auto& grid = hands->get<forms::FlexGrid>(part == Orchestra   ? u"FlexOrquesta"_s
                                                   : part == Conductor ? u"FlexDirectores"_s
                                                                       : u"FlexInterpretes"_s);
    QStringList rows;
    for (int row = 0; row < grid.Rows(); ++row) rows += grid.TextMatrix(row, 0);
    return rows.join(u'|');
}

QString RecordingDesk::pictureOf(Part part) {
    const auto& box = hands->get<forms::Picture>(u"Imagen"_s + name(part));
    return u"%1 at %2 %3, %4 x %5"_s.arg(box.picture().image.isNull() ? u"default"_s : u"file"_s)
        .arg(box.Left())
        .arg(box.Top())
        .arg(box.Width())
        .arg(box.Height());
}

QString RecordingDesk::removable() {
    QStringList shown;
    for (int part = Composer; part <= Format; ++part)
        if (hands->get<QWidget>(u"BtnEliIma"_s + name(part)).isVisible()) shown += name(part);
    return shown.join(u' ');
}

QString RecordingDesk::links() {
    QStringList tables;
    for (const Part part : {Conductor, Orchestra, Performer})
        tables += stored(u"Relacion"_s + name(part), u"IdGrabacion || '-' || Id"_s + name(part)).join(u' ');
    return tables.join(u"; "_s);
}

QString RecordingDesk::keys(bool ana) {
    const store::Module1& m = module1();
    return ana ? u"%1 %2 %3"_s.arg(m.IdCompositorAna).arg(m.IdObraAna).arg(m.IdSoporteAna)
               : u"%1 %2 %3"_s.arg(m.IdCompositorMos).arg(m.IdObraMos).arg(m.IdSoporteMos);
}

QString RecordingDesk::marks(const store::FixedTable& table, int first, int count) {
    QStringList cells;
    for (int row = first; row < first + count; ++row) cells += table.at(row, 1);
    return cells.join(u',');
}

void RecordingDesk::expectWholeTables() {
    for (const Kind kind : PartKind)
        EXPECT_EQ(program->store.Data(kind).RecordSource, u"SELECT * FROM "_s + store::info(kind).table.toString());
    for (const int channel : {7, 8, 9}) EXPECT_FALSE(program->store.Data(1, channel).RecordSource.contains(u"WHERE"_s));
}

} // namespace zv::test
