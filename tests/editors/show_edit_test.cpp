// The Show-Edit screens: the walk, and the removal of rows.
#include "editors/editor_member.h"

#include <QTest>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

class ShowEdit : public EditorMember {
  protected:
    forms::ScrollBar& bar() { return hands->get<forms::ScrollBar>(u"HScroll"_s); }
    /// Clicks on an arrow of the bar.
    void step(bool forward) {
        QTest::mouseClick(&bar(), Qt::LeftButton, {}, {forward ? bar().width() - 4 : 3, bar().height() / 2});
    }
    /// Replaces the order number by one that typing could not bring about.
    void pasteOrder(const QString& text) {
        hands->type(u"TxtOrden"_s, {});
        hands->paste(u"TxtOrden"_s, text);
    }
    /// Row on display, order number, bar and remembered position.
    QString place() {
        return u"%1, order %2, bar %3/%4, position %5"_s.arg(
            shown(identifier()), hands->text(u"TxtOrden"_s), QString::number(bar().Value()),
            QString::number(bar().Max()), QString::number(memory().Posicion));
    }
    void removeRow() {
        expectQuestion();
        hands->click(u"BtnEliminar"_s);
        hands->click(u"BtnGuardar"_s);
    }
    QString counters() {
        return u"Removed %1, Selection %2; Cont %3, ContSel %4, ContEli %5"_s
            .arg(hands->text(u"LabNumRegEliminados"_s), hands->text(u"LabNumRegSeleccion"_s))
            .arg(memory().Cont)
            .arg(memory().ContSel)
            .arg(memory().ContEli);
    }
};

INSTANTIATE_TEST_SUITE_P(Editors, ShowEdit, EditorMembers, memberName);

TEST_P(ShowEdit, theBarWalksTheRows) {
    open(7);
    EXPECT_EQ(place(), u"Row 1, order 1, bar 1/7, position 1"_s);
    step(false);
    EXPECT_EQ(place(), u"Row 1, order 1, bar 1/7, position 1"_s);
    step(true);
    step(true);
    EXPECT_EQ(place(), u"Row 3, order 3, bar 3/7, position 3"_s);
    for (int i = 0; i < 5; ++i) step(true);
    EXPECT_EQ(place(), u"Row 7, order 7, bar 7/7, position 7"_s);
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(place(), u"Row 7, order 7, bar 7/7, position 7"_s);
}

TEST_P(ShowEdit, theOrderNumberLeadsToItsRow) {
    open(7);
    hands->type(u"TxtOrden"_s, u"5"_s);
    EXPECT_EQ(place(), u"Row 5, order 5, bar 5/7, position 5"_s);
    for (const QString& nowhere : {u"0"_s, u"8"_s, u"x"_s, u"-"_s}) {
        hands->type(u"TxtOrden"_s, nowhere);
        EXPECT_EQ(place(), u"Row 5, order , bar 5/7, position 5"_s) << nowhere.toStdString();
    }
    for (const QString& nowhere : {u"-2"_s, u"0.4"_s, u"99999"_s, u"(3)"_s}) {
        pasteOrder(nowhere);
        EXPECT_EQ(place(), u"Row 5, order , bar 5/7, position 5"_s) << nowhere.toStdString();
    }
    // Halves go to the even number: 1.5 and 2.5 are both the second row.
    pasteOrder(u"1.5"_s);
    EXPECT_EQ(place(), u"Row 2, order 2, bar 2/7, position 2"_s);
    hands->type(u"TxtOrden"_s, u"7"_s);
    pasteOrder(u"2.5"_s);
    EXPECT_EQ(place(), u"Row 2, order 2, bar 2/7, position 2"_s);
    pasteOrder(u"1e0"_s);
    EXPECT_EQ(place(), u"Row 1, order 1, bar 1/7, position 1"_s);
}

TEST_P(ShowEdit, anEmptyTableShowsZeroAndOffersNothing) {
    start();
    hands->go(showNumber);
    EXPECT_EQ(place(), u", order 0, bar 1/1, position 1"_s);
    const QString before = hands->dump();
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnEliminar"_s);
    EXPECT_EQ(hands->dump().toStdString(), before.toStdString());
    EXPECT_TRUE(program->window.Solapas().TabNivel1->isEnabled());
    hands->type(u"TxtOrden"_s, u"1"_s);
    EXPECT_EQ(place(), u", order , bar 1/1, position 1"_s);
}

TEST_P(ShowEdit, aPositionBeyondANarrowerSelectionShowsItsLastRow) {
    open(7);
    hands->type(u"TxtOrden"_s, u"6"_s);
    narrow(u"< 'Row 4'"_s);
    EXPECT_EQ(place(), u"Row 3, order 3, bar 3/3, position 6"_s);
    step(false);
    EXPECT_EQ(place(), u"Row 2, order 2, bar 2/3, position 2"_s);
}

// The row before the remembered position does not exist in the selection: the row is removed, the report follows.
TEST_P(ShowEdit, aRemovalBeyondTheSelectionStandsOnItsLastRow) {
    open(7);
    hands->type(u"TxtOrden"_s, u"6"_s);
    narrow(u"< 'Row 4'"_s);
    removeRow();
    EXPECT_EQ(place(), u"Row 2, order 2, bar 2/2, position 5"_s);
    EXPECT_EQ(counters(), u"Removed 1, Selection 2; Cont 6, ContSel 2, ContEli 1"_s);
    EXPECT_TRUE(hands->isEnabled(u"BtnModificar"_s));
    EXPECT_FALSE(hands->isEnabled(u"BtnGuardar"_s));
    EXPECT_TRUE(program->window.Solapas().TabNivel1->isEnabled());
}

TEST_P(ShowEdit, removingStepsBackOneRow) {
    open(7);
    hands->type(u"TxtOrden"_s, u"5"_s);
    removeRow();
    EXPECT_EQ(place(), u"Row 4, order 4, bar 4/6, position 4"_s);
    EXPECT_EQ(counters(), u"Removed 1, Selection 6; Cont 6, ContSel 6, ContEli 1"_s);
    hands->type(u"TxtOrden"_s, u"1"_s);
    removeRow();
    EXPECT_EQ(place(), u"Row 2, order 1, bar 1/5, position 1"_s);
    hands->type(u"TxtOrden"_s, u"5"_s);
    removeRow();
    EXPECT_EQ(place(), u"Row 6, order 4, bar 4/4, position 4"_s);
    EXPECT_EQ(counters(), u"Removed 3, Selection 4; Cont 4, ContSel 4, ContEli 3"_s);
    EXPECT_EQ(identifiers(), (QStringList{u"Row 2"_s, u"Row 3"_s, u"Row 4"_s, u"Row 6"_s}));
    // The count of this run is that of the memory when the screen comes again.
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(counters(), u"Removed 3, Selection 4; Cont 4, ContSel 4, ContEli 3"_s);
}

TEST_P(ShowEdit, theOnlyRowOfAFilterCountsAsTheTables) {
    open(7);
    hands->type(u"TxtOrden"_s, u"4"_s);
    narrow(u"= 'Row 2'"_s);
    EXPECT_EQ(hands->text(u"LabNumFiltros"_s), u"1"_s);
    removeRow();
    EXPECT_EQ(place(), u", order 0, bar 1/1, position 1"_s);
    EXPECT_EQ(counters(), u"Removed 1, Selection 0; Cont 0, ContSel 0, ContEli 1"_s);
    EXPECT_EQ(identifiers().size(), 6);
}

TEST_P(ShowEdit, onlyARecordThatARecordingMayUseAsksBeforeItGoes) {
    open(2);
    if (!kind.partOfRecording) {
        hands->click(u"BtnEliminar"_s);
        EXPECT_TRUE(hands->isEnabled(u"BtnGuardar"_s));
        return;
    }
    const QString question =
        u"ATTENTION:\r\rThis record will be also removed from 'Recording'.\r\rWould you like to continue?"_s;
    const QString before = hands->dump();
    boxes.expect(question, 68, box::No);
    hands->click(u"BtnEliminar"_s);
    EXPECT_EQ(hands->dump().toStdString(), before.toStdString());
    // Any other answer goes on: closing the box is no No.
    boxes.expect(question, 68, box::Cancel);
    hands->click(u"BtnEliminar"_s);
    EXPECT_TRUE(hands->isEnabled(u"BtnGuardar"_s));
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(hands->dump().toStdString(), before.toStdString());
    EXPECT_EQ(identifiers().size(), 2);
}

TEST_P(ShowEdit, theBarHoldsAsManyRowsAsItHasNumbers) {
    fill(32767);
    std::vector<int> fatal;
    setFatalErrorHandler([&](const RuntimeError& error) { fatal.push_back(error.number()); });
    start();
    hands->go(showNumber);
    EXPECT_EQ(bar().Max(), 32767);
    hands->type(u"TxtOrden"_s, u"32767"_s);
    EXPECT_EQ(place(), u"Row 32767, order 32767, bar 32767/32767, position 32767"_s);
    EXPECT_EQ(fatal, std::vector<int>{});
    close();
    stop();
    sql(u"INSERT INTO %1(%2) VALUES('one too many')"_s.arg(table, identifier().column));
    start();
    if (fatal.empty()) hands->go(showNumber);
    EXPECT_EQ(fatal, std::vector<int>{6});
    stop();
    setFatalErrorHandler(nullptr);
}

} // namespace
} // namespace zv::test
