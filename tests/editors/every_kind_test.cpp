// What the editors of every kind do whose boxes are those of its fields: a record of full boxes is kept, checked,
// changed and removed.
#include "editors/editor_member.h"

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

using store::Field;
using store::Value;

class EveryKind : public EditorMember {
  protected:
    /// Text of exactly that many characters, with letters outside ASCII, quotes and wild cards among them.
    static QString letters(qsizetype count) {
        const QString alphabet = u"Dvořák ñÑ ß œ Шостакович 音楽 ' \" * # % _ [x] é"_s;
        return alphabet.repeated(count / alphabet.size() + 1).left(count - 1) + u'z';
    }
};

INSTANTIATE_TEST_SUITE_P(Editors, EveryKind,
                         ::testing::Values(Kind::Compositor, Kind::Obra, Kind::Director, Kind::Soporte,
                                           Kind::Interprete, Kind::Instrumento, Kind::Agrupacion, Kind::Evento,
                                           Kind::Escenario, Kind::Publicacion, Kind::Emisora, Kind::Internet),
                         memberName);

TEST_P(EveryKind, aRecordOfFullBoxesIsTheSameAfterARestart) {
    start();
    hands->go(addNumber);
    const QString block = u"One line.\n\tA tab, a no-break\u00A0blank, a #.\n"_s;
    const QString notes = block.repeated(25000 / block.size() + 1).left(25000);
    std::map<const Field*, QString> wanted;
    for (const Field* field : textBoxes()) {
        if (field->value == Value::Memo) {
            hands->paste(name(*field), notes);
            wanted[field] = QString(notes).replace(u'\n', u"\r\n"_s);
        } else if (field->value == Value::Year) {
            hands->type(name(*field), u"19857"_s);
            wanted[field] = u"19857"_s.left(field->limit);
        } else {
            wanted[field] = letters(field->limit);
            hands->paste(name(*field), wanted[field] + u"beyond"_s);
        }
        EXPECT_EQ(shown(*field), wanted[field]) << name(*field).toStdString();
    }
    save();
    restart();
    hands->go(showNumber);
    for (const Field* field : textBoxes()) {
        EXPECT_EQ(shown(*field), wanted[field]) << name(*field).toStdString();
        EXPECT_EQ(column(*field), QStringList{wanted[field]}) << name(*field).toStdString();
    }
}

TEST_P(EveryKind, noIdentifierMayBeBlank) {
    start();
    hands->go(addNumber);
    const auto ground = [this](const Field& field) { return hands->get<forms::TextBox>(name(field)).BackColor(); };
    for (const Field* field : textBoxes())
        if (!field->identifier) hands->type(name(*field), u"7"_s);
    for (const Field* field : textBoxes()) {
        if (!field->identifier) continue;
        identify(u"named"_s);
        hands->type(name(*field), u"   "_s);
        for (const Field* other : textBoxes())
            if (other->identifier) {
                EXPECT_EQ(ground(*other), other == field ? QColor(Qt::white) : QColor(0xE0, 0xE0, 0xE0));
            }
        boxes.expect(u"IDENTIFIER must be Introduced."_s, box::Warning);
        hands->click(u"BtnGuardar"_s);
    }
    for (const Field* field : textBoxes())
        if (!field->identifier) {
            EXPECT_EQ(shown(*field), u"7"_s) << name(*field).toStdString();
        }
    EXPECT_EQ(identifiers(), QStringList{});
    EXPECT_EQ(channel().Recordset().RecordCount(), 0);
}

TEST_P(EveryKind, aRecordIsChangedInEveryFieldAndRemoved) {
    fill(3);
    start();
    hands->go(showNumber);
    hands->type(u"TxtOrden"_s, u"2"_s);
    const QString memory = program->store.memory.dump();
    hands->click(u"BtnModificar"_s);
    int n = 10;
    for (const Field* field : textBoxes()) hands->type(name(*field), QString::number(++n));
    hands->click(u"BtnGuardar"_s);
    n = 10;
    for (const Field* field : textBoxes()) {
        EXPECT_EQ(column(*field)[1], QString::number(++n)) << name(*field).toStdString();
        EXPECT_EQ(shown(*field), QString::number(n)) << name(*field).toStdString();
    }
    EXPECT_EQ(identifiers(), (QStringList{u"Row 1"_s, identifiers()[1], u"Row 3"_s}));
    EXPECT_EQ(program->store.memory.dump().toStdString(), memory.toStdString());
    // An emptied year is a zero.
    hands->click(u"BtnModificar"_s);
    for (const Field* year : textBoxesOf(Value::Year)) hands->type(name(*year), u"x"_s);
    hands->click(u"BtnGuardar"_s);
    for (const Field* year : textBoxesOf(Value::Year)) {
        EXPECT_EQ(shown(*year), QString()) << name(*year).toStdString();
        EXPECT_EQ(column(*year)[1], u"0"_s) << name(*year).toStdString();
    }
    expectQuestion();
    hands->click(u"BtnEliminar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(identifiers(), (QStringList{u"Row 1"_s, u"Row 3"_s}));
    EXPECT_EQ(shown(identifier()), u"Row 1"_s);
}

// A count of removals that no variable holds: the removal is done, what follows fails.
TEST_P(EveryKind, aFailureBesideTheWritesIsReportedExceptOnInternet) {
    fill(2);
    start();
    hands->go(addNumber);
    memory().ContEli = 2147483647;
    hands->go(showNumber);
    std::vector<int> fatal;
    setFatalErrorHandler([&](const RuntimeError& error) { fatal.push_back(error.number()); });
    expectQuestion();
    hands->click(u"BtnEliminar"_s);
    if (kind.kind != Kind::Internet) boxes.expect(u"Has occurred Error: 6"_s, box::Critical);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(fatal, kind.kind == Kind::Internet ? std::vector{6} : std::vector<int>{});
    EXPECT_EQ(identifiers(), QStringList{u"Row 2"_s});
    if (fatal.empty()) {
        EXPECT_TRUE(program->window.Solapas().TabNivel1->isEnabled());
        EXPECT_EQ(shown(identifier()), u"Row 2"_s);
    }
    stop();
    setFatalErrorHandler(nullptr);
}

} // namespace
} // namespace zv::test
