#include "editors/records1/orchestra_screens.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using store::Kind;

namespace {

/// What is written into the two fields that the name boxes feed: which box it was, and its text.
QString nameFieldText(const NameBoxes& names, const store::Field& field) {
    const int filled = names.filled(NameBoxes::Count - 1);
    return field.column == u"OrqGrpCor" ? QString::number(filled + 1) : names.box(filled).Text();
}

bool isNameField(const store::Field& field) { return field.column == u"OrqGrpCor" || field.column == u"Nombre"; }

const store::KindInfo& orchestra() { return store::info(Kind::Orquesta); }

int nameLimit() { return orchestra().fields[std::size_t(orchestra().indexOf(u"Nombre"))].limit; }

} // namespace

FormReg1AnaOrquesta::FormReg1AnaOrquesta(shell::Context& context, QWidget* parent, const QString& name)
    : AddScreen(context, parent, name, orchestra()), names_(*this, nameLimit()) {
    names_.Colorear(false);
    names_.followTabStop(BtnImagenEliminar);
    for (int i = 0; i < NameBoxes::Count; ++i) {
        names_.box(i).Change = [this, i] { nameChanged(i); };
        names_.box(i).GotFocus = [this, i] { nameGotFocus(i); };
    }
}

void FormReg1AnaOrquesta::fillBoxes() {
    const qint16 select = store().memory.Orquesta.Select;
    const QString text = memo(kind().indexOf(u"Nombre"));
    AddScreen::fillBoxes();
    if (select >= 1 && select <= NameBoxes::Count) names_.box(select - 1).setText(text);
}

void FormReg1AnaOrquesta::nameChanged(int i) {
    if (names_.yieldToOther(i)) return;
    forms::TextBox& box = names_.box(i);
    names_.Colorear(!Trim(box.Text()).isEmpty());
    box.setToolTipText(u"Identificador"_s);
    LabNombre->setCaption(box.Text());
    LabNombre->setToolTipText(box.Text());
    memo(kind().indexOf(u"Nombre")) = box.Text();
    store().memory.Orquesta.Select = static_cast<qint16>(i + 1);
}

void FormReg1AnaOrquesta::nameGotFocus(int i) {
    if (names_.yieldToOther(i)) return;
    LabNombre->setCaption(names_.box(i).Text());
    LabNombre->setToolTipText(names_.box(i).Text());
    names_.box(i).selectWhole();
}

QString FormReg1AnaOrquesta::fieldText(int i) {
    return isNameField(field(i)) ? nameFieldText(names_, field(i)) : AddScreen::fieldText(i);
}

void FormReg1AnaOrquesta::Limpiar() {
    names_.clear();
    AddScreen::Limpiar();
    store().memory.Orquesta.Select = 0;
}

FormReg1MosOrquesta::FormReg1MosOrquesta(shell::Context& context, QWidget* parent, const QString& name)
    : GroupShowEdit(context, parent, name, orchestra(), groupInfo(Kind::Orquesta)), names_(*this, nameLimit()) {
    names_.setLocked(true);
    names_.followTabStop(BtnImagenEliminar);
    for (int i = 0; i < NameBoxes::Count; ++i) {
        names_.box(i).Change = [this, i] { nameChanged(i); };
        names_.box(i).GotFocus = [this, i] { nameGotFocus(i); };
    }
}

// A kind of body that is none of the three fills no box. After a change the boxes are still free: they are emptied
// first, so that the box of the record does not give way to the one that was typed into.
void FormReg1MosOrquesta::showRow() {
    const QString text = store().bound(Kind::Orquesta, kind().indexOf(u"Nombre"));
    const double body = Val(store().bound(Kind::Orquesta, kind().indexOf(u"OrqGrpCor")));
    names_.clear();
    names_.Colorear(true);
    for (int i = 0; i < NameBoxes::Count; ++i) {
        if (body != i + 1) continue;
        names_.box(i).setText(text);
        names_.box(i).setToolTipText(text);
    }
    GroupShowEdit::showRow();
}

void FormReg1MosOrquesta::Limpiar() {
    names_.clear();
    GroupShowEdit::Limpiar();
    showHeading();
}

void FormReg1MosOrquesta::Bloquear(bool locked) {
    GroupShowEdit::Bloquear(locked);
    names_.setLocked(locked);
}

void FormReg1MosOrquesta::nameChanged(int i) {
    forms::TextBox& box = names_.box(i);
    if (box.Locked() || names_.yieldToOther(i)) return;
    const bool filled = !Trim(box.Text()).isEmpty();
    names_.Colorear(filled);
    if (filled) box.setToolTipText(box.Text());
    LabNombre->setCaption(box.Text());
    LabNombre->setToolTipText(box.Text());
}

void FormReg1MosOrquesta::nameGotFocus(int i) {
    if (walk_.handFocusOn()) return;
    if (!names_.yieldToOther(i)) names_.box(i).selectWhole();
}

QString FormReg1MosOrquesta::fieldText(int i) {
    return isNameField(field(i)) ? nameFieldText(names_, field(i)) : GroupShowEdit::fieldText(i);
}

} // namespace zv::editors
