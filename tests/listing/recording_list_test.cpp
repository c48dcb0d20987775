// The list of recordings on screen and on paper: rows put together from other tables, groups of several, parts whose
// rows are gone, and the channels when the screen is left.
#include "support/desk.h"
#include "support/kind_words.h"

using namespace zv;
using namespace Qt::StringLiterals;
using store::Kind;

namespace {

constexpr int ListNumber = 28;

class RecordingList : public test::Desk {
  protected:
    /// Recording 1 has everything, 2 only its format, 3 points to rows that are gone.
    void fill() {
        QImage cover(100, 100, QImage::Format_RGB32);
        cover.fill(Qt::darkRed);
        ASSERT_TRUE(cover.save(folder_.filePath(u"cover.bmp"_s)));
        put({u"Compositor"_s, u"Nombre, Apellidos, Fecha1, Fecha2"_s, {u"'Ana', 'Vega', 1685, 0"_s}});
        put({u"Obra"_s,
             u"Nombre, Numero, Fecha1, Movimientos, TiempoMovimientos, TiempoTotal, NumeroMovimientos"_s,
             {u"'Suite', '2', 1720, 'Air#Gigue#', ' 59# 3725#', 3784, 2"_s}});
        put({u"Orquesta"_s, u"Nombre"_s, {u"'City'"_s, u"'Choir'"_s}});
        put({u"Director"_s, u"Nombre, Apellidos"_s, {u"'Leo', 'Berg'"_s, u"'Kim', 'Solo'"_s}});
        put({u"Interprete"_s,
             u"Nombre, Apellidos, Instrumento"_s,
             {u"'Ida', 'Lund', 'Viola'"_s, u"'Max', 'Orr', 'Oboe'"_s}});
        put({u"Soporte"_s, u"Discografica, Formato, Imagen"_s, {u"'Acme', 'CD', '%1/cover.bmp'"_s.arg(folder())}});
        put({u"Grabacion"_s,
             u"IdCompositor, IdObra, IdSoporte, Notas"_s,
             {u"1, 1, 1, 'live'"_s, u"-1, -1, 1, ''"_s, u"99, 99, 99, ''"_s}});
        put({u"RelacionOrquesta"_s, u"IdGrabacion, IdOrquesta"_s, {u"1, 2"_s, u"1, 1"_s, u"3, 88"_s, u"3, NULL"_s}});
        put({u"RelacionDirector"_s,
             u"IdGrabacion, IdDirector"_s,
             {u"1, 1"_s, u"3, 1"_s, u"3, 77"_s, u"3, 2"_s, u"1, 2"_s}});
        put({u"RelacionInterprete"_s, u"IdGrabacion, IdInterprete"_s, {u"1, 2"_s, u"1, 1"_s}});
    }
    void begin() {
        fill();
        start();
        hands->go(ListNumber);
    }
    void list(const QStringList& ticks) {
        hands->tick(ticks);
        hands->click(u"BtnListar"_s);
    }
    /// The grid by rows; "^" for the end of a line in a cell.
    QStringList page() {
        auto& grid = hands->get<forms::FlexGrid>(u"Tabla"_s);
        QStringList rows;
        for (int row = 0; row < grid.Rows(); ++row) {
            QStringList cells;
            for (int col = 0; col < grid.Cols(); ++col) cells += grid.TextMatrix(row, col).replace(u'\n', u'^');
            rows += cells.join(u'|');
        }
        return rows;
    }
    /// The printed texts from the order on, in characters that fit on one line.
    QStringList printed() {
        printers.printer.characterWidth = 5;
        hands->click(u"BtnImprimir"_s);
        QStringList texts;
        for (const QString& operation : printers.printer.operations()) {
            if (operation.startsWith(u"picture"_s)) texts += u"picture"_s;
            if (operation.startsWith(u"text"_s)) texts += operation.section(u'\'', 1).chopped(1);
        }
        return texts.mid(texts.indexOf(u"Order:   "_s) + 1);
    }
};

TEST_F(RecordingList, PutsRowsTogetherFromOtherTables) {
    begin();
    EXPECT_EQ(hands->text(u"LabCampos"_s), u"39"_s);
    EXPECT_EQ(hands->get<forms::CheckList>(u"List"_s).ListCount(), 34);
    list({u"COM Name"_s, u"COM Date 2"_s, u"WOR Movements"_s, u"WOR Total Time"_s, u"WOR No. of  Mov"_s,
          u"ORC Orc-Ens-Cho"_s, u"CON Name"_s, u"CON Surname"_s, u"PER Ins-Voice"_s, u"FOR Rec Company"_s,
          u"REC Notes"_s});
    EXPECT_EQ(page().join(u'\n').toStdString(),
              QStringList({
                              u"No.|COM Name|COM Date 2|WOR Movements|WOR Total Time|WOR No. of  Mov|ORC Orc-Ens-Cho|"
                              "CON Name|CON Surname|PER Ins-Voice|FOR Rec Company|REC Notes"_s,
                              u"1|Ana||Air   0:0:59^Gigue   1:2:5|01:03:04|2|Choir^City|Leo^Kim|Berg^Solo|Oboe^Viola|"
                              "Acme|live"_s,
                              u"2||||||||||Acme|"_s,
                              u"3||||||^|Leo^^Kim|Berg^^Solo|||"_s,
                          })
                  .join(u'\n')
                  .toStdString());
    list({u"FOR Image"_s});
    EXPECT_EQ(page(), QStringList({u"No."_s, u"1"_s, u"2"_s, u"3"_s}));
    const auto shown = [this](int i) { return hands->get<forms::Picture>(u"Imagen%1"_s.arg(i)).isVisible(); };
    EXPECT_TRUE(shown(0) && shown(1));
    EXPECT_FALSE(shown(2)) << "the picture of the recording before";
}

TEST_F(RecordingList, ListsTheFieldsOfSevenTablesInOrder) {
    QStringList captions{u"No."_s}, cells{u"1"_s};
    std::map<QString, test::Rows> tables;
    for (const test::RecordingField& field : test::recordingFields()) {
        captions += field.listed;
        if (field.column.contains(u"Movimientos"_s) || field.column == u"TiempoTotal"_s) {
            cells += field.column == u"TiempoTotal"_s ? u"00:00:00"_s : QString();
            continue;
        }
        cells += QString::number(10 + captions.size());
        auto [table, isNew] = tables.try_emplace(field.table, test::Rows{field.table, {}, {{}}});
        table->second.columns += (isNew ? u""_s : u", "_s) + field.column;
        table->second.values[0] += (isNew ? u"'"_s : u", '"_s) + cells.last() + u'\'';
    }
    tables.at(u"Grabacion"_s).columns += u", IdCompositor, IdObra, IdSoporte"_s;
    tables.at(u"Grabacion"_s).values[0] += u", 1, 1, 1"_s;
    for (const auto& [name, rows] : tables) put(rows);
    for (const QString& person : {u"Orquesta"_s, u"Director"_s, u"Interprete"_s})
        put({u"Relacion"_s + person, u"IdGrabacion, Id"_s + person, {u"1, 1"_s}});
    start();
    hands->go(ListNumber);
    hands->tickAll();
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(page().value(0), captions.join(u'|'));
    EXPECT_EQ(page().value(1), cells.join(u'|'));
    EXPECT_EQ(hands->text(u"LabNumCampos"_s), u"34"_s) << "with the picture";
    printed();
    const QString paper = printers.printer.operations().join(u'\n');
    EXPECT_TRUE(paper.contains(u"''Recording''"_s) && paper.contains(u"'/ 1 R / 39 F / 0 Fl /'"_s));
}

TEST_F(RecordingList, PrintsAGroupAsOneField) {
    begin();
    hands->tick({u"COM Name"_s, u"COM Date 2"_s, u"WOR Movements"_s, u"WOR Total Time"_s, u"WOR No. of  Mov"_s,
                 u"ORC Orc-Ens-Cho"_s, u"CON Name"_s, u"CON Surname"_s, u"PER Name"_s, u"PER Surname"_s,
                 u"PER Ins-Voice"_s, u"FOR Rec Company"_s, u"REC Notes"_s, u"FOR Image"_s});
    EXPECT_EQ(
        printed().join(u'\n').toStdString(),
        QStringList({
                        u"/ FIELD / Histórical /"_s,
                        u"Print:   "_s,
                        u"( 14 F ) "_s,
                        u"/ FOR Image / COM Name / COM Date 2 / WOR Movements / WOR Total Time / WOR No. of  Mov "
                        "/ ORC Orc-Ens-Cho / CON Name / CON Surname / PER Name / PER Surname / PER Ins-Voice / "
                        "FOR Rec Company / REC Notes /"_s,
                        u"picture"_s,
                        u"1- /  Ana  /  -  /  Air  0:0:59 * Gigue  1:2:5  /  01:03:04  /  2  /  Choir * City  /  "
                        "Leo Berg * Kim Solo  /  Max Orr, Oboe * Ida Lund, Viola  /  Acme  /  live  /"_s,
                        u"picture"_s,
                        u"2- /  -  /  -  /  -  /  -  /  -  /  -  /  -  /  -  /  Acme  /  -  /"_s,
                        u"3- /  -  /  -  /  -  /  -  /  -  /  -  /  Leo Berg *   * Kim Solo  /  -  /  -  /  -  /"_s,
                    })
            .join(u'\n')
            .toStdString());
}

TEST_F(RecordingList, LeavesOutWhatIsNotTickedOfAGroup) {
    begin();
    hands->tick({u"CON Surname"_s, u"PER Name"_s, u"PER Ins-Voice"_s});
    EXPECT_EQ(printed().value(4), u"1- /  Berg * Solo  /  Max, Oboe * Ida, Viola  /"_s);
}

TEST_F(RecordingList, TakesAHundredPerformersWithTheLongestNames) {
    test::Rows people{u"Interprete"_s, u"Nombre, Apellidos, Instrumento"_s, {}},
        links{u"RelacionInterprete"_s, u"IdGrabacion, IdInterprete"_s, {}};
    const QString name(50, u'W');
    for (int i = 1; i <= 100; ++i) {
        people.values += u"'%1', '%1', '%1'"_s.arg(name);
        links.values += u"1, %1"_s.arg(i);
    }
    put(people);
    put(links);
    put({u"Grabacion"_s, u"IdCompositor, IdObra, IdSoporte"_s, {u"-1, -1, 1"_s}});
    start();
    hands->go(ListNumber);
    list({u"PER Name"_s, u"PER Surname"_s, u"PER Ins-Voice"_s});
    auto& grid = hands->get<forms::FlexGrid>(u"Tabla"_s);
    EXPECT_EQ(grid.TextMatrix(1, 3).count(name), 100);
    EXPECT_EQ(grid.TextMatrix(1, 3).count(u'\n'), 99);
    hands->get<forms::ScrollBar>(u"HScroll"_s).setValue(20);
    EXPECT_EQ(printed().mid(3).join(QString()).count(u'W'), 100 * 3 * 50) << "over several lines, none lost";
    EXPECT_EQ(printers.printer.operations().last(), u"end"_s);
}

TEST_F(RecordingList, LeavesTheChannelsOnWholeTablesAtTheirPositions) {
    put({u"Orquesta"_s, u"Nombre"_s, {u"'City'"_s, u"'Choir'"_s, u"'Band'"_s}});
    put({u"Grabacion"_s, u"IdCompositor, IdObra, IdSoporte"_s, {u"-1, -1, 1"_s}});
    put({u"RelacionOrquesta"_s, u"IdGrabacion, IdOrquesta"_s, {u"1, 1"_s}});
    start();
    hands->go(ListNumber);
    list({u"ORC Orc-Ens-Cho"_s});
    memory(Kind::Orquesta).Posicion = 2;
    auto& orchestras = program->store.Data(Kind::Orquesta);
    orchestras.RecordSource = u"SELECT * FROM Orquesta WHERE IdOrquesta=3"_s;
    orchestras.Refresh();
    hands->go(shell::ReportNumber);
    EXPECT_EQ(orchestras.RecordSource, u"SELECT * FROM Orquesta"_s);
    EXPECT_EQ(orchestras.boundText(u"Nombre"_s), u"Choir"_s);
    EXPECT_EQ(program->store.Data(1, 8).RecordSource, u"SELECT * FROM RelacionOrquesta"_s);
    EXPECT_EQ(program->store.Data(1, 8).Recordset().RecordCount(), 1);
}

} // namespace
