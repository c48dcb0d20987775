// The List screens that depart from the pattern.
#include "listing/list_desk.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class ListWork : public test::ListDesk {
  protected:
    ListWork() : ListDesk(test::memberOf(store::Kind::Obra)) {}
    QStringList blocks() {
        QStringList found;
        for (const QString& line : printers.printer.operations())
            if (line.contains(u"- /"_s)) found += line.section(u" '"_s, 1).chopped(1);
        return found;
    }
};

TEST_F(ListWork, TellsMovementsAndTimesInWords) {
    put({u"Obra"_s,
         u"Nombre, Movimientos, TiempoMovimientos, TiempoTotal, NumeroMovimientos"_s,
         {u"'a', 'Allegro#Andante#Finale#', ' 425# 59# 3725#', 3725, 3"_s, u"'b', '#', '#', 0, 0"_s,
          u"'c', 'One#', ' 60#', 60, 1"_s, u"'d', 'One#Two#', ' 3600#', 59, 2"_s, u"'e', 'One#', '#', 360000, 1"_s,
          u"'f', NULL, NULL, NULL, NULL"_s}});
    start();
    open();
    list({u"Movements"_s, u"Total Time"_s, u"No. of Movements"_s});
    EXPECT_EQ(hands->page(), u"No.|Movements|Total Time|No. of Movements\n"
                             "1|Allegro   0:7:5\nAndante   0:0:59\nFinale   1:2:5|01:02:05|3\n"
                             "2||00:00:00|0\n"
                             "3|One   0:1:0|00:01:00|1\n"
                             "4|One   1:0:0\nTwo   0:0:0|00:00:59|2\n"
                             "5|One   0:0:0|100:00:00|1\n"
                             "6||00:00:00|\n"_s);
    EXPECT_EQ(grid().ColWidth(1), grid().ColWidth(2));
    hands->click(u"BtnImprimir"_s);
    EXPECT_EQ(blocks().join(u'\n').toStdString(),
              "1- /  Allegro  0:7:5 * Andante  0:0:59 * Finale  1:2:5  /  01:02:05  /  3  /\n"
              "2- /  -  /  -  /  -  /\n"
              "3- /  One  0:1:0  /  00:01:00  /  1  /\n"
              "4- /  One  1:0:0 * Two  0:0:0  /  00:00:59  /  2  /\n"
              "5- /  One  0:0:0  /  100:00:00  /  1  /\n"
              "6- /  -  /  -  /  -  /");
}

TEST_F(ListWork, ListsItsFieldsInTheirOrder) {
    put({u"Obra"_s,
         u"Nombre, Numero, Tonalidad, Opus, NumeroOpus, Catalogo, NumeroCatalogo, Fecha1, Fecha2, Subtitulo, "
         "Movimientos, TiempoMovimientos, TiempoTotal, NumeroMovimientos, Notas, Autor"_s,
         {u"'a', 'b', 'c', 'd', 'e', 'f', 'g', 1800, 1801, 'h', 'i#', ' 1#', 1, 1, 'j', 'k'"_s,
          u"'a', '', '', '', '', '', '', 0, 0, '', '#', '#', 0, 0, '', 'k'"_s}});
    start();
    open();
    hands->tickAll();
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(hands->page(), u"No.|Work|No.|Tonality|Opus|Opus No.|Catalogue|Catalogue No.|Date 1|Date 2|Subtitle|"
                             "Movements|Total Time|No. of Movements|Notes|Author\n"
                             "1|a|b|c|d|e|f|g|1800|1801|h|i   0:0:1|00:00:01|1|j|k\n"
                             "2|a|||||||||||00:00:00|0||k\n"_s);
}

class ListOrchestra : public test::ListDesk {
  protected:
    ListOrchestra() : ListDesk(test::memberOf(store::Kind::Orquesta)) {}
};

TEST_F(ListOrchestra, ANewListStartsTheConductorsPageAnew) {
    test::Rows orchestras{u"Orquesta"_s, u"OrqGrpCor, Nombre, Genero, Fecha"_s, {u"'9', 'Vega', 'x', 0"_s}},
        conductors{u"Director"_s, u"Apellidos"_s, {}};
    for (int i = 2; i <= 41; ++i) orchestras.values += u"'1', 'N%1', 'x', 1900"_s.arg(i);
    for (int i = 1; i <= 41; ++i) conductors.values += u"'A%1'"_s.arg(i);
    put(orchestras);
    put(conductors);
    start();
    const int conductorsList = shell::screenNumber(1, shell::Function::ListPrint, 3);
    hands->go(conductorsList);
    list({u"Surname"_s});
    zoom().setValue(4);
    pages().setValue(3);
    const store::ListMemory& memory = program->store.memory.of(store::Kind::Director).MemoLis;
    EXPECT_EQ(memory.Posicion, 3);
    EXPECT_EQ(memory.Posicion2, 4);

    open();
    hands->tick({u"Name"_s, u"Gender"_s, u"Date"_s});
    zoom().setValue(1);
    hands->click(u"BtnListar"_s);
    EXPECT_TRUE(hands->page().startsWith(u"No.|Name|Gender|Date\n1|Vega|x|\n2|N2|x|1900\n"_s));
    EXPECT_EQ(memory.Posicion, 1);
    EXPECT_EQ(memory.Posicion2, 1);
    pages().setValue(2);
    zoom().setValue(2);
    leaveAndReturn();
    EXPECT_EQ(where(), u"3/5 21-30+"_s) << "its own page and zoom are those of its bars";
    hands->click(u"BtnListar"_s);
    EXPECT_EQ(memory.Posicion2, 2) << "the zoom of the orchestras";
    hands->go(conductorsList);
    EXPECT_EQ(pages().Value(), 1);
    EXPECT_EQ(zoom().Value(), 2);
}

class ListInternet : public test::ListDesk {
  protected:
    ListInternet() : ListDesk(test::memberOf(store::Kind::Internet)) {}
};

TEST_F(ListInternet, HasTicksOfItsOwn) {
    put({u"Internet"_s, u"Titulo, Url"_s, {u"'a', 'b'"_s}});
    put({u"Interprete"_s, u"Apellidos"_s, {u"'c'"_s}});
    start();
    open();
    const QString before = program->store.memory.dump();
    list({u"URL"_s});
    EXPECT_EQ(changesSince(before), QStringList{u"MemoLisNetCampo(1) = True"_s});
    hands->go(shell::screenNumber(1, shell::Function::ListPrint, 4));
    EXPECT_EQ(grid().Rows(), 0);
    open();
    EXPECT_EQ(hands->page(), u"No.|URL\n1|b\n"_s);
}

} // namespace
