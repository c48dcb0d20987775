#include "editors/add_screen.h"

#include "platform/base/text.h"
#include "platform/forms/decoration.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using forms::Role;
using store::Value;

AddScreen::AddScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind)
    : EditorScreen(context, parent, name, kind) {
    for (int i = 0; i < fieldCount(); ++i) {
        if (!box(i)) continue;
        if (box(i).line) {
            box(i).line->Change = [this, i] { changed(i); };
            box(i).line->GotFocus = [this, i] { box(i).line->selectWhole(); };
        } else {
            box(i).memo->Change = [this, i] { changed(i); };
        }
        if (!field(i).identifier) continue;
        box(i).line->setBackColor(forms::colour::Missing);
        if (kind.identifierTip) box(i).line->setToolTipText(store::EtiIdentificador);
    }
    addCounters();
    BtnGuardar = addButton(u"BtnGuardar"_s, u"Save"_s, u"Save the Record"_s, {7380, 7200, 1170, 420},
                           [this] { BtnGuardar_Click(); });
    BtnDeshacer = addButton(u"BtnDeshacer"_s, u"Undo"_s, u"Remove the Last Record"_s, {8700, 7200, 1170, 420},
                            [this] { BtnDeshacer_Click(); });
    BtnImagenEliminar->Click = [this] { BtnImagenEliminar_Click(); };
    Imagen->DblClick = [this] { Imagen_DblClick(); };
}

void AddScreen::addCounters() {
    using namespace forms;
    const QString fields = QString::number(kind().fieldCount);
    auto* frame = add<Frame>({}, {240, 5985, 3000, 1635});
    addLabel({}, Role::Heading, u"Add"_s, {150, 90, 1200, 300}, type::L, true, ToLeft, frame);
    addLabel({}, Role::Heading, u"RECORDS"_s, {1500, 105, 1350, 270}, type::S, true, ToRight, frame);
    add<Rule>({}, {150, 435, 2700, 0}, frame);
    const auto value = [&](const QString& name, const QString& text, const TwipsRect& rect, const QString& tip) {
        Label* made = addLabel(name, Role::Value, text, rect, type::M, false, ToRight, frame);
        made->setToolTipText(tip);
        return made;
    };
    const auto row = [&](const QString& caption, int top, const QString& name, const QString& tip,
                         const QString& fieldsName, const QString& fieldsTip) {
        addLabel({}, Role::Caption, caption, {150, top, 660, 315}, type::G, true, ToLeft, frame);
        Label* records = value(name, u"0"_s, {900, top, 870, 315}, tip);
        addLabel({}, Role::Unit, u"R"_s, {1800, top, 180, 315}, type::S, false, ToLeft, frame);
        value(fieldsName, fields, {2070, top, 510, 315}, fieldsTip);
        addLabel({}, Role::Unit, u"F"_s, {2610, top, 180, 315}, type::S, false, ToLeft, frame);
        return records;
    };
    LabNumRegNuevos = row(u"New"_s, 555, u"LabNumRegNuevos"_s, u"No. of New Records"_s, u"Label6"_s,
                          u"No. of Fields per New Record"_s);
    LabNumRegTotal = row(u"Total"_s, 1035, u"LabNumRegTotal"_s, u"Total No. of Records"_s, u"Label11"_s,
                         u"No. of Fields per Record"_s);
}

void AddScreen::Carga() {
    BtnDeshacer->setEnabled(false);
    LabNumRegTotal->setCaption(QString::number(memory().Cont));
    LabNumRegNuevos->setCaption(QString::number(memory().ContNew));
    fillBoxes();
    const QString& path = memo(pictureField());
    bool shown = false;
    if (!path.isEmpty()) {
        DialogoImagen.FileName = path;
        shown = loadPicture();
    }
    if (shown) {
        BtnImagenEliminar->setVisible(true);
    } else {
        DialogoImagen.FileName.clear();
        showPlaceholder();
        BtnImagenEliminar->setVisible(false);
    }
    placeRemoveButton();
    Imagen->setVisible(true);
    showHeading();
    placeHeading();
}

void AddScreen::fillBoxes() {
    for (int i = 0; i < fieldCount(); ++i) box(i).setText(memo(i));
}

void AddScreen::changed(int i) {
    const store::Field& f = field(i);
    if (f.value == Value::Year) keepNumeric(i);
    if (f.identifier)
        box(i).line->setBackColor(Trim(box(i).Text()).isEmpty() ? forms::colour::Missing : forms::colour::Panel);
    if (f.heading) showHeading();
    memo(i) = box(i).Text();
}

void AddScreen::Limpiar() {
    for (int i = 0; i < fieldCount(); ++i) box(i).setText({});
    LabNombre->setCaption({});
    BtnImagenEliminar_Click();
    for (int i = 0; i < fieldCount(); ++i) memo(i).clear();
}

void AddScreen::Imagen_DblClick() {
    choosePicture();
    memo(pictureField()) = DialogoImagen.FileName;
}

void AddScreen::BtnImagenEliminar_Click() {
    removePicture();
    memo(pictureField()).clear();
}

void AddScreen::BtnGuardar_Click() {
    try {
        if (!readyToWrite()) return;
        Data().RecordSource = kind().selectAll() + kind().saveTail.toString();
        Data().Refresh();
        if (Data().Recordset().RecordCount() != 0) Data().Recordset().MoveLast();
        store().write(kind(), fillCampos(), true, Campos_);
        if (!module1().ErrorBaseDatos) {
            saved();
            return;
        }
    } catch (const RuntimeError& error) {
        module1().Err = error.number();
    }
    store().reportError();
    saveFailed();
    module1().ErrorBaseDatos = false;
}

void AddScreen::saveFailed() {
    Carga();
    Limpiar();
}

void AddScreen::saved() {
    store::KindMemory& of = memory();
    LabNumRegNuevos->setCaption(CStr(Val(LabNumRegNuevos->Caption()) + 1));
    ++of.Cont;
    ++of.ContNew;
    LabNumRegTotal->setCaption(QString::number(of.Cont));
    of.ContSel = of.Cont;
    of.ContFil = 0;
    of.MemoSel.reset();
    MsgBox(store::MensaGrabadoBien, box::Information);
    BtnDeshacer->setEnabled(true);
    BtnImagenEliminar->setVisible(false);
    Limpiar();
}

// The row that goes is the last of the table: after a save, the one just added.
void AddScreen::BtnDeshacer_Click() {
    jet::Recordset& rows = Data().Recordset();
    if (rows.RecordCount() != 0) rows.MoveLast();
    store().remove(kind());
    BtnDeshacer->setEnabled(false);
    LabNumRegNuevos->setCaption(CStr(Val(LabNumRegNuevos->Caption()) - 1));
    store::KindMemory& of = memory();
    --of.Cont;
    LabNumRegTotal->setCaption(QString::number(of.Cont));
    of.ContSel = of.Cont;
    --of.ContNew;
}

void AddScreen::paintBehind(QPainter& painter) {
    forms::paintBackground(painter, forms::Background::Add, scale());
    forms::paintSpine(painter, scale());
}

} // namespace zv::editors
