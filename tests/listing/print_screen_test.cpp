// The Print button of a List screen, from the screens that make the selection to the words on paper.
#include "listing/list_desk.h"

using namespace zv;
using namespace Qt::StringLiterals;

namespace {

class PrintButton : public test::ListDesk {
  protected:
    PrintButton() : ListDesk(test::members().front()) {}
    const QStringList& operations() { return printers.printer.operations(); }
    void print() { hands->click(u"BtnImprimir"_s); }
};

// The paper is 11500 by 16400 twips inside its margins, a character 100 wide, a line 200 high.
TEST_F(PrintButton, PrintsASelectionAsItIsFilteredAndOrdered) {
    QImage wide(300, 100, QImage::Format_RGB32);
    wide.fill(Qt::darkGreen);
    ASSERT_TRUE(wide.save(folder_.filePath(u"wide.bmp"_s)));
    put({u"Compositor"_s,
         u"Nombre, Apellidos, Fecha1, Fecha2, Notas, Imagen"_s,
         {u"'Ana', 'Vega', 1685, 0, 'First' || char(13, 10) || 'second', '%1/wide.bmp'"_s.arg(folder()),
          u"'', 'Ruiz', 0, 1750, '', ''"_s, u"'Eva', 'Sol', 1700, 1760, '', '%1/no.bmp'"_s.arg(folder()),
          u"'Old', 'Man', 1500, 1560, '', ''"_s}});
    start();
    hands->go(m.screen(shell::Function::Select));
    hands->click(u"BtnNueva"_s);
    hands->choose(u"ComboCampo"_s, u"Surname"_s);
    hands->choose(u"ComboCriterio"_s, u"Does not contain"_s);
    hands->type(u"TxtValFiltro"_s, u"Man"_s);
    hands->click(u"BtnAnadir"_s);
    hands->choose(u"ComboCampoOrden"_s, u"Surname"_s);
    hands->choose(u"ComboCriterioOrden"_s, u"Ascending"_s);
    hands->click(u"BtnAceptar"_s);
    open();
    hands->tick({u"Name"_s, u"Surname"_s, u"Date 1"_s, u"Notes"_s, u"Image"_s}); // ticked, not listed
    print();
    EXPECT_EQ(operations().join(u'\n').toStdString(),
              QStringList({
                              u"page 1"_s,
                              u"text 5150 440 8 8388608 '- Zarvelia -'"_s,
                              u"text 10096 440 8 0 '- 1 -'"_s,
                              u"text 904 1440 14 bold 8388608 ''Composer''"_s,
                              u"text 904 1840 8 0 'Selection:   '"_s,
                              u"text 2204 1840 9 8388608 '/ 3 R / 6 F / 1 Fl /'"_s,
                              u"text 904 2040 8 0 'Filters:   '"_s,
                              u"text 2004 2040 9 8388608 '/ Surname Does not contain 'Man' /'"_s,
                              u"text 904 2240 8 0 'Order:   '"_s,
                              u"text 1804 2240 9 8388608 '/ Surname / Ascending /'"_s,
                              u"text 904 2440 8 0 'Print:   '"_s,
                              u"text 1804 2440 9 8388608 '( 5 F ) '"_s,
                              u"text 2604 2440 9 8388608 '/ Image / Name / Surname / Date 1 / Notes /'"_s,
                              u"text 904 3240 9 0 '1- /  -  /  Ruiz  /  -  /  -  /'"_s,
                              u"text 904 3640 9 0 '2- /  Eva  /  Sol  /  1700  /  -  /'"_s,
                              u"picture 904 4040 1191 397"_s,
                              u"text 2295 4040 9 0 '3- /  Ana  /  Vega  /  1685  /  First  second  /'"_s,
                              u"end"_s,
                          })
                  .join(u'\n')
                  .toStdString());
    EXPECT_EQ(hands->get<forms::ProgressBar>(u"ProgressBar"_s).value(), 0);
    EXPECT_EQ(grid().Rows(), 0) << "a print lists nothing";
}

TEST_F(PrintButton, LeavesTheGridOnItsPage) {
    fill(41);
    start();
    open();
    list({u"Surname"_s});
    pages().setValue(2);
    const QString shown = hands->dump(), page = hands->page();
    printers.looks = true;
    printers.error = 32755;
    const auto& rows = program->store.Data(m.kind).Recordset();
    const int at = rows.AbsolutePosition();
    print();
    EXPECT_EQ(rows.AbsolutePosition(), at) << "the preview moves nothing";
    EXPECT_EQ(hands->dump(), shown);
    printers.error = 0;
    print();
    EXPECT_EQ(printers.preview.operations(), operations() + operations());
    EXPECT_EQ(operations().last(), u"end"_s);
    EXPECT_TRUE(operations().contains(u"text 1804 2040 9 8388608 '/ FIELD / Historical /'"_s));
    EXPECT_EQ(hands->dump(), shown);
    EXPECT_EQ(hands->page(), page);
    pages().setValue(3);
    EXPECT_EQ(where(), u"3/3 41-41"_s);
    EXPECT_EQ(hands->get<forms::ProgressBar>(u"ProgressBar"_s).value(), 0);
}

TEST_F(PrintButton, AsksNothingWithoutATickAndPrintsNothingOnCancel) {
    fill(3);
    start();
    open();
    print();
    EXPECT_EQ(printers.shown, 0);
    hands->tickAll();
    printers.error = 32755;
    print();
    EXPECT_EQ(printers.shown, 1);
    printers.error = 482;
    boxes.expect(u"Has occurred Error: 482"_s, box::Critical);
    print();
    EXPECT_EQ(operations(), QStringList());
}

TEST_F(PrintButton, PrintsTheHeadingsOfAnEmptySelection) {
    start();
    open();
    hands->tick({u"Image"_s});
    print();
    EXPECT_EQ(operations().mid(operations().size() - 2),
              QStringList({u"text 2604 2240 9 8388608 '/ Image /'"_s, u"end"_s}));
    EXPECT_EQ(hands->get<forms::ProgressBar>(u"ProgressBar"_s).value(), 0);
}

} // namespace
