// The Add screens: what is typed is kept, checked, saved and taken back.
#include "editors/editor_member.h"

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

using store::Field;
using store::Value;

class Add : public EditorMember {
  protected:
    bool isEnabled(const char* control) { return hands->isEnabled(QString::fromLatin1(control)); }
    /// The two counters of the screen and those of the memory behind them.
    QString counters() {
        return u"New %1, Total %2; Cont %3, ContSel %4, ContNew %5"_s
            .arg(hands->text(u"LabNumRegNuevos"_s), hands->text(u"LabNumRegTotal"_s))
            .arg(memory().Cont)
            .arg(memory().ContSel)
            .arg(memory().ContNew);
    }
};

INSTANTIATE_TEST_SUITE_P(Editors, Add, EditorMembers, memberName);

TEST_P(Add, typedTextOutlivesOtherScreensButNotTheProgram) {
    start();
    hands->go(addNumber);
    const QString empty = hands->dump();
    for (const Field* field : textBoxes())
        hands->type(name(*field), field->value == Value::Year ? u"17"_s : u"Ñandú"_s);
    const QString typed = hands->dump();
    EXPECT_NE(typed, empty);
    for (const int other : {57, showNumber, kind.form == 1 ? 30 : 1, 68}) {
        hands->go(other);
        hands->go(addNumber);
        EXPECT_EQ(hands->dump().toStdString(), typed.toStdString()) << other;
    }
    restart();
    hands->go(addNumber);
    EXPECT_EQ(hands->dump().toStdString(), empty.toStdString());
    EXPECT_EQ(identifiers(), QStringList{});
}

TEST_P(Add, whatIsNoNumberEmptiesTheBoxOfAYear) {
    start();
    hands->go(addNumber);
    for (const Field* field : textBoxesOf(Value::Year)) {
        const auto& memo = memory().Memo[std::size_t(kind.indexOf(field->column))];
        for (const QString& text : {u"1a"_s, u"-"_s, u" "_s, u"."_s}) {
            hands->type(name(*field), text);
            EXPECT_EQ(shown(*field), u"") << text.toStdString();
            EXPECT_EQ(memo, u"") << text.toStdString();
        }
        // "1", then "1e", which empties the box, then "3".
        hands->type(name(*field), u"1e3"_s);
        EXPECT_EQ(shown(*field), u"3"_s);
        EXPECT_EQ(memo, u"3"_s);
    }
}

TEST_P(Add, aPastedNumberIsKeptAndItsLeadingValueIsSaved) {
    start();
    hands->go(addNumber);
    // The box holds four characters, and only what is a number.
    for (const auto& [pasted, inBox] : {std::pair{u"1,700"_s, u"1,70"_s}, std::pair{u"MDCC"_s, QString()}}) {
        identify(pasted);
        hands->paste(name(year()), pasted);
        EXPECT_EQ(shown(year()), inBox);
        save();
        EXPECT_EQ(shown(year()), QString()) << "ready for the next record";
    }
    EXPECT_EQ(column(year()), (QStringList{u"1"_s, u"0"_s}));
}

TEST_P(Add, undoTakesTheLastSaveBackOnce) {
    fill(2);
    start();
    hands->go(addNumber);
    EXPECT_EQ(counters(), u"New 0, Total 2; Cont 2, ContSel 2, ContNew 0"_s);
    EXPECT_FALSE(isEnabled("BtnDeshacer"));
    for (const QString& added : {u"third"_s, u"fourth"_s}) {
        identify(added);
        save();
        EXPECT_TRUE(isEnabled("BtnDeshacer"));
    }
    EXPECT_EQ(counters(), u"New 2, Total 4; Cont 4, ContSel 4, ContNew 2"_s);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_FALSE(isEnabled("BtnDeshacer"));
    EXPECT_EQ(counters(), u"New 1, Total 3; Cont 3, ContSel 3, ContNew 1"_s);
    EXPECT_EQ(identifiers(), (QStringList{u"Row 1"_s, u"Row 2"_s, u"third"_s}));
    // Leaving the screen gives the undo up; the counts of this run stay.
    identify(u"fourth again"_s);
    save();
    hands->go(68);
    hands->go(addNumber);
    EXPECT_FALSE(isEnabled("BtnDeshacer"));
    EXPECT_EQ(counters(), u"New 2, Total 4; Cont 4, ContSel 4, ContNew 2"_s);
}

TEST_P(Add, undoOnATableThatWasEmptiedMeanwhile) {
    start();
    hands->go(addNumber);
    identify(u"one"_s);
    save();
    sql(u"DELETE FROM "_s + table);
    channel().Refresh();
    boxes.expect(u"A record has been not chosen."_s, box::Critical);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(counters(), u"New 0, Total 0; Cont 0, ContSel 0, ContNew 0"_s);
    EXPECT_FALSE(program->store.module1.ErrorBaseDatos);
    // A removal that fails is told by the next save only, which itself succeeds.
    identify(u"two"_s);
    save();
    sql(u"DELETE FROM "_s + table);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(counters(), u"New 0, Total 0; Cont 0, ContSel 0, ContNew 0"_s);
    EXPECT_TRUE(program->store.module1.ErrorBaseDatos);
    identify(u"three"_s);
    boxes.expect(u"Has occurred Error: 3167"_s, box::Critical);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(identifiers(), QStringList{u"three"_s});
    EXPECT_FALSE(program->store.module1.ErrorBaseDatos);
}

TEST_P(Add, aSaveBringsAllRowsBackAndForgetsTheSelection) {
    fill(3);
    start();
    narrow(u"= 'Row 2'"_s);
    memory().MemoSel = {0, u"x"_s, u"words"_s, u"row#"_s, 1, 0, {}};
    hands->go(addNumber);
    const QString before = program->store.memory.dump();
    identify(u"Row 4"_s);
    save();
    const QString s = u"MemoSel"_s + kind.shortName.toString();
    const QStringList wanted = {u"Cont%1 = 4"_s.arg(table),
                                u"ContSel%1 = 4"_s.arg(table),
                                u"ContNew%1 = 1"_s.arg(table),
                                u"ContFil%1 = 0"_s.arg(table),
                                s + u"NT = 2"_s,
                                s + u"OpcionSQL = \"\""_s,
                                s + u"ValorFiltro = \"\""_s,
                                s + u"Lista = \"#\""_s,
                                s + u"CampoOrden = -1"_s,
                                s + u"CriterioOrden = -1"_s};
    EXPECT_EQ(changesSince(before).join(u'\n').toStdString(), wanted.join(u'\n').toStdString());
    hands->go(showNumber);
    EXPECT_EQ(hands->text(u"LabNumRegSeleccion"_s), u"4"_s);
    EXPECT_EQ(hands->get<forms::ScrollBar>(u"HScroll"_s).Max(), 4);
}

TEST_P(Add, theNameUnderThePictureFollowsItsBoxes) {
    start();
    hands->go(addNumber);
    QStringList parts;
    for (const Field* field : textBoxes()) {
        if (!field->heading) continue;
        parts += u"<b>&"_s + field->column.toString();
        hands->type(name(*field), parts.back());
    }
    const auto& label = hands->get<forms::Label>(u"LabNombre"_s);
    EXPECT_EQ(label.Caption(), parts.join(u' '));
    EXPECT_EQ(label.ToolTipText(), parts.join(u' '));
    hands->go(68);
    hands->go(addNumber);
    EXPECT_EQ(hands->text(u"LabNombre"_s), parts.join(u' '));
    save();
    EXPECT_EQ(hands->text(u"LabNombre"_s), u"");
}

TEST_P(Add, aBoxThatIsEnteredIsSelectedWhole) {
    start();
    hands->go(addNumber);
    identify(u"abc"_s);
    hands->get<QWidget>(u"BtnGuardar"_s).setFocus();
    for (const Field* field : textBoxes()) {
        if (field->value == Value::Memo) continue;
        hands->get<QWidget>(name(*field)).setFocus(Qt::TabFocusReason);
        EXPECT_EQ(hands->get<forms::TextBox>(name(*field)).selectedText(), shown(*field)) << name(*field).toStdString();
    }
}

} // namespace
} // namespace zv::test
