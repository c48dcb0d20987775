// The list of recordings on screen and on paper: rows put together from other tables, groups of several, parts whose
// rows are gone, and the channels when the screen is left.
#include "support/desk.h"

using namespace zv;
using namespace Qt::StringLiterals;
using store::Kind;

namespace {

constexpr int ListNumber = 28;

class RecordingList : public test::Desk {
  protected:
    /// Recording 1 has everything, 2 only its format, 3 points to rows that are gone.
    void fill() {
        put({u"Compositor"_s, u"Apellidos"_s, {u"'Vega'"_s}});
        put({u"Orquesta"_s, u"Nombre"_s, {u"'City'"_s, u"'Choir'"_s}});
        put({u"Director"_s, u"Nombre, Apellidos"_s, {u"'Leo', 'Berg'"_s, u"'Kim', 'Solo'"_s}});
        put({u"Interprete"_s,
             u"Nombre, Apellidos, Instrumento"_s,
             {u"'Ida', 'Lund', 'Viola'"_s, u"'Max', 'Orr', 'Oboe'"_s}});
        put({u"Soporte"_s,
             u"Discografica, Formato, Imagen"_s,
             {u"'Acme', 'CD', '%1'"_s.arg(picture(u"cover.bmp"_s, {100, 100}))}});
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

TEST_F(RecordingList, LeavesAnEmptyLineForWhomIsGone) {
    begin();
    EXPECT_EQ(hands->text(u"LabCampos"_s), u"39"_s);
    list({u"COM Surname"_s, u"ORC Orc-Ens-Cho"_s, u"CON Name"_s, u"CON Surname"_s, u"FOR Rec Company"_s});
    EXPECT_EQ(hands->page(), u"No.|COM Surname|ORC Orc-Ens-Cho|CON Name|CON Surname|FOR Rec Company\n"
                             "1|Vega|Choir\nCity|Leo\nKim|Berg\nSolo|Acme\n"
                             "2|||||Acme\n"
                             "3||\n|Leo\n\nKim|Berg\n\nSolo|\n"_s);
    EXPECT_EQ(printed().mid(4), (QStringList{u"1- /  Vega  /  Choir * City  /  Leo Berg * Kim Solo  /  Acme  /"_s,
                                             u"2- /  -  /  -  /  -  /  Acme  /"_s,
                                             u"3- /  -  /  -  /  Leo Berg *   * Kim Solo  /  -  /"_s}));
}

TEST_F(RecordingList, ShowsThePictureOfItsOwnFormat) {
    begin();
    list({u"FOR Image"_s});
    EXPECT_EQ(hands->page(), u"No.\n1\n2\n3\n"_s);
    const auto shown = [this](int i) { return hands->get<forms::Picture>(u"Imagen%1"_s.arg(i)).isVisible(); };
    EXPECT_TRUE(shown(0) && shown(1));
    EXPECT_FALSE(shown(2)) << "the picture of the recording before";
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
