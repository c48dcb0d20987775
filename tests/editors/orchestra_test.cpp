// The three name boxes of the orchestra screens: one of them holds the name, and which one is stored with it.
#include "editors/editor_member.h"

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

const QString Names[] = {u"TxtNombreOrquesta"_s, u"TxtNombreGrupo"_s, u"TxtNombreCoro"_s};

class Orchestra : public Desk {
  protected:
    const int addNumber = shell::screenNumber(1, shell::Function::Add, 2);
    const int showNumber = shell::screenNumber(1, shell::Function::ShowEdit, 2);

    /// Texts of the three boxes, the ground they share and their tips, and the name under the picture.
    QString names() {
        QStringList texts, tips, grounds;
        for (const QString& name : Names) {
            const auto& box = hands->get<forms::TextBox>(name);
            texts += box.Text();
            tips += box.ToolTipText();
            const QString ground = box.BackColor() == QColor(Qt::white) ? u"white"_s : box.BackColor().name();
            if (!grounds.contains(ground)) grounds += ground;
        }
        return texts.join(u'|') + u" on "_s + grounds.join(u' ') + u", tips "_s + tips.join(u'|') + u", name "_s +
               hands->text(u"LabNombre"_s);
    }
    QString remembered() {
        const auto& texts = memory(Kind::Orquesta).Memo;
        return QString::number(program->store.memory.Orquesta.Select) + u' ' +
               texts[std::size_t(store::info(Kind::Orquesta).indexOf(u"Nombre"))];
    }
    QStringList rows() { return stored(u"Orquesta"_s, u"OrqGrpCor, Nombre, Genero, Fecha"_s); }
    void openRows(const QStringList& values) {
        put({u"Orquesta"_s, u"OrqGrpCor, Nombre, Genero, Fecha"_s, values});
        start();
        hands->go(showNumber);
    }
};

const QString Empty = u"|| on white, tips Identifier|Identifier|Identifier, name "_s;

TEST_F(Orchestra, onlyOneOfTheBoxesTakesAName) {
    start();
    hands->go(addNumber);
    EXPECT_EQ(names(), Empty);
    EXPECT_EQ(remembered(), u"0 "_s);
    for (int i = 0; i < 3; ++i) {
        hands->type(Names[i], u"Vega"_s);
        QStringList texts(3), tips(3);
        texts[i] = u"Vega"_s;
        tips[i] = u"Identificador"_s;
        const QString filled = texts.join(u'|') + u" on #e0e0e0, tips "_s + tips.join(u'|') + u", name Vega"_s;
        EXPECT_EQ(names(), filled);
        EXPECT_EQ(remembered(), QString::number(i + 1) + u" Vega"_s);
        for (int other = 0; other < 3; ++other) {
            if (other == i) continue;
            hands->get<QWidget>(Names[other]).setFocus(Qt::MouseFocusReason);
            EXPECT_EQ(focus(), Names[i]);
            hands->paste(Names[other], u"x"_s);
            EXPECT_EQ(focus(), Names[i]);
            EXPECT_EQ(names(), filled);
            EXPECT_EQ(remembered(), QString::number(i + 1) + u" Vega"_s);
        }
        hands->go(57);
        hands->go(addNumber);
        EXPECT_EQ(names(), filled) << "the name comes back in its box";
        hands->type(Names[i], {});
        tips.fill(u"Identifier"_s);
        tips[i] = u"Identificador"_s;
        EXPECT_EQ(names(), u"|| on white, tips "_s + tips.join(u'|') + u", name "_s);
        EXPECT_EQ(remembered(), QString::number(i + 1) + u' ');
    }
    hands->type(Names[1], u"   "_s);
    EXPECT_TRUE(names().startsWith(u"|   | on white"_s));
    boxes.expect(u"IDENTIFIER must be Introduced."_s, box::Warning);
    hands->click(u"BtnGuardar"_s);
    hands->type(Names[0], QString(80, u'n'));
    EXPECT_EQ(hands->text(Names[0]).size(), 75) << "blanks do not keep the name out of another box";
}

TEST_F(Orchestra, theKindOfBodyIsStoredWithTheName) {
    start();
    hands->go(addNumber);
    for (const QString& box : Names) {
        hands->type(box, u"Vega"_s);
        hands->type(u"TxtGenero"_s, u"baroque"_s);
        hands->type(u"TxtFecha"_s, box == Names[2] ? u"1985"_s : u""_s);
        save();
        EXPECT_TRUE(names().startsWith(u"|| on white"_s));
        EXPECT_EQ(remembered(), u"0 "_s);
    }
    EXPECT_EQ(rows(), (QStringList{u"1|Vega|baroque|0"_s, u"2|Vega|baroque|0"_s, u"3|Vega|baroque|1985"_s}));
    hands->go(showNumber);
    for (int i = 0; i < 3; ++i) {
        hands->type(u"TxtOrden"_s, QString::number(i + 1));
        QStringList texts(3);
        texts[i] = u"Vega"_s;
        EXPECT_EQ(names(), texts.join(u'|') + u" on #e0e0e0, tips "_s + texts.join(u'|') + u", name Vega"_s);
    }
}

TEST_F(Orchestra, aBodyOfAnotherKindShowsNoName) {
    openRows({u"'9', 'Lost', 'x', 0"_s, u"NULL, 'Lost', 'y', 0"_s, u"'2', 'Found', 'z', 0"_s});
    for (const QString& order : {u"1"_s, u"2"_s}) {
        hands->type(u"TxtOrden"_s, order);
        EXPECT_EQ(names(), u"|| on #e0e0e0, tips ||, name "_s);
    }
    hands->click(u"BtnModificar"_s);
    boxes.expect(u"IDENTIFIER must be Introduced."_s, box::Warning);
    hands->click(u"BtnGuardar"_s);
    hands->type(Names[2], u"Found too"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(rows()[1], u"3|Found too|y|0"_s);
    hands->type(u"TxtOrden"_s, u"3"_s);
    EXPECT_EQ(names(), u"|Found| on #e0e0e0, tips |Found|, name Found"_s);
}

TEST_F(Orchestra, aNameMovesToAnotherBoxOnlyOnAccept) {
    openRows({u"'1', 'Vega', '', 0"_s, u"'2', 'Ruiz', '', 0"_s});
    const QString orchestra = names(), before = hands->dump();
    EXPECT_EQ(orchestra, u"Vega|| on #e0e0e0, tips Vega||, name Vega"_s);
    hands->get<QWidget>(Names[1]).setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(focus(), u"BtnRegresar"_s);
    for (const bool accepted : {false, true}) {
        hands->click(u"BtnModificar"_s);
        hands->type(Names[2], u"x"_s);
        EXPECT_EQ(names(), orchestra);
        EXPECT_EQ(focus(), Names[0]);
        hands->type(Names[0], {});
        EXPECT_EQ(names(), Empty);
        hands->type(Names[2], u"Choir"_s);
        EXPECT_EQ(names(), u"||Choir on #e0e0e0, tips ||Choir, name Choir"_s);
        hands->click(accepted ? u"BtnGuardar"_s : u"BtnDeshacer"_s);
        if (accepted) break;
        EXPECT_EQ(names(), orchestra);
        EXPECT_EQ(hands->dump().toStdString(), before.toStdString());
    }
    EXPECT_EQ(names(), u"||Choir on #e0e0e0, tips ||Choir, name Choir"_s);
    EXPECT_EQ(rows(), (QStringList{u"3|Choir||0"_s, u"2|Ruiz||0"_s}));
    // The record that takes the place of the changed one has its name in another box.
    program->store.Data(Kind::Orquesta).RecordSource = u"SELECT * FROM Orquesta WHERE Nombre <> 'Zoë'"_s;
    program->store.Data(Kind::Orquesta).Refresh();
    hands->click(u"BtnModificar"_s);
    hands->type(Names[2], u"Zoë"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(names(), u"|Ruiz| on #e0e0e0, tips |Ruiz|, name Ruiz"_s);
}

} // namespace
} // namespace zv::test
