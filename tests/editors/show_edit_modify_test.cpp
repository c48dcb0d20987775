// The Show-Edit screens: modifying a record, the three states, the picture, the frame.
#include "editors/editor_member.h"

#include <QFile>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

using store::Field;
using store::Value;

class Modify : public EditorMember {
  protected:
    /// A field of text that does not identify the record.
    const Field& plainText() const {
        return *std::ranges::find_if(kind.fields,
                                     [](const Field& f) { return f.value == Value::Text && !f.identifier; });
    }
    QStringList rows() { return stored(table, u"*"_s); }

    /// What can be done on the screen, as one text.
    QString state() {
        QStringList on, locked;
        for (const char* control :
             {"BtnModificar", "BtnEliminar", "BtnGuardar", "BtnDeshacer", "HScroll", "TxtOrden", "Imagen", "TabNivel1",
              "TabRegistros1", "TabRegistros2", "TabReg1Mostrar", "TabReg2Mostrar", "TabReg1Anadir", "TabReg2Listar"})
            if (hands->isEnabled(QString::fromLatin1(control))) on += QString::fromLatin1(control);
        for (const Field* field : textBoxes()) {
            const bool readOnly = field->value == Value::Memo ? hands->get<forms::Memo>(name(*field)).Locked()
                                                              : hands->get<forms::TextBox>(name(*field)).Locked();
            if (locked.isEmpty() || locked.last() != (readOnly ? u"locked"_s : u"free"_s))
                locked += readOnly ? u"locked"_s : u"free"_s;
        }
        return on.join(u' ') + u"; boxes "_s + locked.join(u' ') +
               (hands->get<QWidget>(u"BtnImagenEliminar"_s).isVisible() ? u"; picture removable"_s : QString());
    }
};

const QString Viewing = u"BtnModificar BtnEliminar HScroll TxtOrden TabNivel1 TabRegistros1 TabRegistros2 "
                        "TabReg1Mostrar TabReg2Mostrar TabReg1Anadir TabReg2Listar; boxes locked"_s;
const QString Modifying = u"BtnModificar BtnGuardar BtnDeshacer Imagen; boxes free"_s;
const QString Removing = u"BtnEliminar BtnGuardar BtnDeshacer; boxes locked"_s;

INSTANTIATE_TEST_SUITE_P(Editors, Modify, EditorMembers, memberName);

TEST_P(Modify, theThreeStatesAndTheWaysBetweenThem) {
    open(3);
    EXPECT_EQ(state(), Viewing);
    hands->click(u"BtnModificar"_s);
    EXPECT_EQ(state(), Modifying);
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnEliminar"_s);
    EXPECT_EQ(state(), Modifying);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(state(), Viewing);
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(state(), Viewing);
    for (const QString& end : {u"BtnDeshacer"_s, u"BtnGuardar"_s}) {
        expectQuestion();
        hands->click(u"BtnEliminar"_s);
        EXPECT_EQ(state(), Removing);
        hands->click(u"BtnModificar"_s);
        EXPECT_EQ(state(), Removing);
        hands->click(end);
        EXPECT_EQ(state(), Viewing);
    }
    EXPECT_EQ(identifiers().size(), 2);
}

TEST_P(Modify, cancelLeavesTheCatalogueAndTheMemoryUntouched) {
    open(3);
    hands->type(u"TxtOrden"_s, u"2"_s);
    const QString screen = hands->dump(), memory = program->store.memory.dump();
    const QStringList before = rows();
    hands->click(u"BtnModificar"_s);
    for (const Field* field : textBoxes())
        hands->type(name(*field), field->value == Value::Year ? u"17"_s : u"other"_s);
    files.choose(picture(u"a.bmp"_s, {400, 200}));
    hands->doubleClick(u"Imagen"_s);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(hands->dump().toStdString(), screen.toStdString());
    EXPECT_EQ(program->store.memory.dump().toStdString(), memory.toStdString());
    EXPECT_EQ(rows(), before);
}

TEST_P(Modify, aChangedRowMayLeaveItsSelection) {
    open(3);
    narrow(u"< 'Row 3'"_s);
    hands->click(u"BtnModificar"_s);
    hands->type(identifierBox(), u"Zoë"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(shown(identifier()), u"Row 2"_s);
    EXPECT_EQ(hands->get<forms::ScrollBar>(u"HScroll"_s).Max(), 1);
    EXPECT_EQ(identifiers(), (QStringList{u"Zoë"_s, u"Row 2"_s, u"Row 3"_s}));
}

TEST_P(Modify, anEmptiedIdentifierKeepsTheState) {
    open(2);
    const QStringList before = rows();
    hands->click(u"BtnModificar"_s);
    hands->type(name(plainText()), u"kept"_s);
    identify(u"  "_s);
    boxes.expect(u"IDENTIFIER must be Introduced."_s, box::Warning);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(state(), Modifying);
    EXPECT_EQ(shown(identifier()), u"");
    EXPECT_EQ(shown(plainText()), u"kept"_s);
    EXPECT_EQ(hands->get<forms::TextBox>(identifierBox()).BackColor(), QColor(Qt::white));
    EXPECT_EQ(hands->get<forms::TextBox>(identifierBox()).ToolTipText(), u"Identifier"_s);
    EXPECT_EQ(rows(), before);
    identify(u"back"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(state(), Viewing);
    EXPECT_EQ(column(plainText())[0], u"kept"_s);
}

TEST_P(Modify, notesThatNobodyTouchesStayAsTheyAre) {
    const QString block = u"CR LF\r\nLF\ntab\tno-break\u00A0blank  two blanks\r\n\r\nline\u2028separator \U0001D11E "_s;
    const QString notes = block.repeated(25000 / block.size() + 1).left(25000);
    fill(1);
    sql(u"UPDATE "_s + table + u" SET Notas = '"_s + notes + u'\'');
    start();
    hands->go(showNumber);
    EXPECT_EQ(hands->text(u"TxtNotas"_s), notes);
    hands->click(u"BtnModificar"_s);
    hands->get<QWidget>(u"TxtNotas"_s).setFocus(Qt::TabFocusReason);
    hands->type(name(plainText()), u"changed"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(stored(table, u"Notas"_s), QStringList{notes});
    EXPECT_EQ(column(plainText()), QStringList{u"changed"_s});
}

TEST_P(Modify, aLockedBoxHandsTheFocusOn) {
    open(1);
    for (const Field* field : textBoxes()) {
        hands->get<QWidget>(name(*field)).setFocus(Qt::MouseFocusReason);
        ASSERT_NE(QApplication::focusWidget(), nullptr);
        EXPECT_EQ(QApplication::focusWidget()->objectName(), u"BtnRegresar"_s) << name(*field).toStdString();
    }
    hands->click(u"BtnModificar"_s);
    for (const Field* field : textBoxes()) {
        auto& box = hands->get<QWidget>(name(*field));
        box.setFocus(Qt::MouseFocusReason);
        EXPECT_TRUE(box.hasFocus()) << name(*field).toStdString();
        if (field->value != Value::Memo) {
            EXPECT_EQ(static_cast<forms::TextBox&>(box).selectedText(), shown(*field));
        }
    }
    // Nothing can be typed into a locked box.
    hands->click(u"BtnDeshacer"_s);
    hands->type(identifierBox(), u"typed"_s);
    EXPECT_EQ(shown(identifier()), u"Row 1"_s);
}

TEST_P(Modify, thePictureBelongsToTheRowOnlyOnAccept) {
    const Field& field = kind.fields.back();
    const QString wide = picture(u"wide.bmp"_s, {400, 200});
    open(2);
    const QString none = u"Imagen 240 240 3000 3000, LabNombre 3265, Remove hidden, name unseen"_s;
    hands->doubleClick(u"Imagen"_s);
    EXPECT_EQ(pictureState(), none) << "The picture is disabled while the record is only shown.";
    hands->click(u"BtnModificar"_s);
    files.choose(wide);
    hands->doubleClick(u"Imagen"_s);
    EXPECT_EQ(pictureState(), u"Imagen 240 990 3000 1500, LabNombre 2515, Remove 2100, name black"_s);
    EXPECT_EQ(column(field), (QStringList{u""_s, u""_s}));
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(column(field), (QStringList{wide, u""_s}));
    EXPECT_EQ(pictureState(), u"Imagen 240 990 3000 1500, LabNombre 2515, Remove hidden, name black"_s);
    hands->click(u"BtnModificar"_s);
    EXPECT_EQ(state(), Modifying + u"; picture removable"_s);
    hands->click(u"BtnImagenEliminar"_s);
    EXPECT_EQ(pictureState(), none);
    hands->click(u"BtnDeshacer"_s);
    EXPECT_EQ(pictureState(), u"Imagen 240 990 3000 1500, LabNombre 2515, Remove hidden, name black"_s);
    // The next row has no picture, and the button is of no use there.
    hands->type(u"TxtOrden"_s, u"2"_s);
    EXPECT_EQ(pictureState(), none);
    hands->click(u"BtnModificar"_s);
    EXPECT_EQ(state(), Modifying);
    hands->click(u"BtnDeshacer"_s);
    hands->type(u"TxtOrden"_s, u"1"_s);
    // A missing file keeps its path until the record is accepted.
    ASSERT_TRUE(QFile::remove(wide));
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(pictureState(), none);
    EXPECT_EQ(column(field)[0], wide);
    hands->click(u"BtnModificar"_s);
    hands->click(u"BtnGuardar"_s);
    EXPECT_EQ(column(field)[0], u"");
}

TEST_P(Modify, theFrameStaysAsItWasFolded) {
    open(1);
    const auto frame = [this] {
        const auto& shown = hands->get<forms::Frame>(u"Frame1"_s);
        return u"%1 top %2 height %3 %4"_s.arg(hands->text(u"BtnReducirAmpliar"_s), QString::number(shown.Top()),
                                               QString::number(shown.Height()),
                                               memory().RedAmp ? u"True"_s : u"False"_s);
    };
    const QString wide = u"Reduce top 3750 height 3870 False"_s, reduced = u"Extend top 4260 height 2255 True"_s;
    EXPECT_EQ(frame(), wide);
    hands->click(u"BtnReducirAmpliar"_s);
    EXPECT_EQ(frame(), reduced);
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(frame(), reduced);
    hands->click(u"BtnReducirAmpliar"_s);
    EXPECT_EQ(frame(), wide);
    hands->go(57);
    hands->go(showNumber);
    EXPECT_EQ(frame(), wide);
}

} // namespace
} // namespace zv::test
