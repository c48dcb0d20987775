#include "editors/show_edit_screen.h"

#include "platform/base/text.h"
#include "platform/forms/decoration.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using store::Value;

namespace {

/// What stands for the key while no record is shown.
constexpr qint32 NoKey = -2;

const WalkLayout Layout{
    .frame = {240, 3750, 3000, 3870},
    .heading = {150, 120, 1500, 270},
    .reduce = {1950, 105, 900, 300},
    .show = {150, 660, 810, 330},
    .order = {1005, 660, 735, 330},
    .orderNumber = {1830, 660, 1020, 330},
    .bar = {150, 1215, 2700, 345},
    .directions = {150, 1620, 2700, 270},
    .selection = {150, 2385, 2700, 270},
    .selected = {150, 2670, 870, 315},
    .selectedUnit = {1050, 2670, 180, 315},
    .selectedFields = {1260, 2670, 435, 315},
    .selectedFieldsUnit = {1725, 2670, 150, 315},
    .filters = {1935, 2670, 585, 315},
    .filtersUnit = {2550, 2670, 300, 315},
    .removal = {150, 3120, 2700, 270},
    .removed = {150, 3405, 870, 315},
    .removedUnit = {1050, 3405, 180, 315},
    .removedFields = {1260, 3405, 435, 315},
    .removedFieldsUnit = {1725, 3405, 150, 315},
    .rules = {480, 2280},
    .orderAlignment = forms::ToRight,
    .directionsType = forms::type::G,
    .valueType = forms::type::M,
    .back = {4800, 7230, 1050, 360},
    .modify = {4740, 7200, 1170, 420},
    .remove = {6060, 7200, 1170, 420},
    .accept = {7380, 7200, 1170, 420},
    .undo = {8700, 7200, 1170, 420},
    .backType = forms::type::M,
};

} // namespace

ShowEditScreen::ShowEditScreen(shell::Context& context, QWidget* parent, const QString& name,
                               const store::KindInfo& kind)
    : EditorScreen(context, parent, name, kind), walk_(*this, store(), kind, Layout) {
    connectButtons();
    connectBoxes();
    for (int i = 0; i < fieldCount(); ++i) box(i).setLocked(true);
    Imagen->setEnabled(false);
    Imagen->DblClick = [this] { Imagen_DblClick(); };
    BtnImagenEliminar->Click = [this] { BtnImagenEliminar_Click(); };
}

void ShowEditScreen::connectButtons() {
    walk_.BtnRegresar->Click = [this] { BtnRegresar_Click(); };
    walk_.BtnModificar->Click = [this] { BtnModificar_Click(); };
    walk_.BtnEliminar->Click = [this] { BtnEliminar_Click(); };
    walk_.BtnGuardar->Click = [this] { BtnGuardar_Click(); };
    walk_.BtnDeshacer->Click = [this] { BtnDeshacer_Click(); };
}

void ShowEditScreen::connectBoxes() {
    for (int i = 0; i < fieldCount(); ++i) {
        if (box(i).line) {
            box(i).line->Change = [this, i] { changed(i); };
            box(i).line->GotFocus = [this, i] {
                if (!walk_.handFocusOn()) box(i).line->selectWhole();
            };
        } else if (box(i).memo) {
            box(i).memo->GotFocus = [this] { walk_.handFocusOn(); };
        }
    }
}

void ShowEditScreen::paintBehind(QPainter& painter) {
    paintBackground(painter, forms::Background::ShowEdit, scale());
    paintSpine(painter, scale());
}

void ShowEditScreen::Form_Load() {
    walk_.load();
    if (kind().partOfRecording && (module1().RegresoMosGrabacion || module1().RegresoAnaGrabacion)) revealBack();
}

void ShowEditScreen::revealBack() {
    walk_.BtnRegresar->setLeft(3390);
    walk_.BtnRegresar->setTop(7230);
    walk_.BtnRegresar->raise();
    walk_.BtnRegresar->setFocusPolicy(Qt::StrongFocus);
}

void ShowEditScreen::Form_Unload() {
    if (kind().partOfRecording) module1().RegresoAnaGrabacion = false;
}

void ShowEditScreen::setKey(qint32 key) {
    if (kind().shownKey) module1().*kind().shownKey = key;
}

void ShowEditScreen::Carga() {
    walk_.Navegable = false;
    setKey(NoKey);
    if (!walk_.hasRows()) {
        Limpiar();
    } else {
        walk_.standOnRemembered();
        setKey(toLong(Val(store().bound(kind().kind, 0))));
        showRow();
        walk_.TxtOrden->setText(QString::number(walk_.HScroll->Value()));
    }
    walk_.Navegable = true;
    walk_.ValoresInicio();
}

void ShowEditScreen::showRow() {
    for (int i = 0; i < fieldCount(); ++i) {
        if (!box(i)) continue;
        const QString value = store().bound(kind().kind, i);
        box(i).setText(field(i).value == Value::Year && Val(value) == 0 ? QString() : value);
        if (field(i).value == Value::Text) box(i).line->setToolTipText(value);
    }
    const QString path = store().bound(kind().kind, pictureField());
    bool shown = false;
    if (!path.isEmpty()) {
        DialogoImagen.FileName = path;
        shown = loadPicture();
    }
    if (!shown) {
        DialogoImagen.FileName.clear();
        showPlaceholder();
    }
    placeRemoveButton();
    placeHeading();
    Imagen->setVisible(true);
    showHeading();
}

// The order number stays "0": it is set while the walk is off.
void ShowEditScreen::Limpiar() {
    walk_.Navegable = false;
    walk_.HScroll->setMax(1);
    walk_.HScroll->setValue(1);
    walk_.TxtOrden->setText(u"0"_s);
    walk_.Navegable = true;
    for (int i = 0; i < fieldCount(); ++i) box(i).setText({});
    BtnImagenEliminar_Click();
}

void ShowEditScreen::Bloquear(bool locked) {
    walk_.lock(locked);
    for (int i = 0; i < fieldCount(); ++i) box(i).setLocked(locked);
    Imagen->setEnabled(!locked);
    BtnImagenEliminar->setVisible(!locked);
}

void ShowEditScreen::changed(int i) {
    const store::Field& f = field(i);
    if (f.value == Value::Year) keepNumeric(i);
    if (f.value != Value::Text) return;
    const QString text = box(i).Text();
    const bool missing = f.identifier && Trim(text).isEmpty();
    if (f.identifier) box(i).line->setBackColor(missing ? forms::colour::Missing : forms::colour::Panel);
    box(i).line->setToolTipText(missing ? store::EtiIdentificador : text);
    if (f.heading) showHeading();
}

void ShowEditScreen::BtnModificar_Click() {
    if (!walk_.mayModify()) return;
    walk_.Navegable = false;
    context().navigator->BloquearSolapas(true);
    walk_.BtnEliminar->setEnabled(false);
    Bloquear(false);
    placeRemoveButton();
    BtnImagenEliminar->setVisible(!DialogoImagen.FileName.isEmpty());
}

void ShowEditScreen::BtnEliminar_Click() {
    if (!walk_.mayRemove()) return;
    if (kind().partOfRecording && MsgBox(store::MensaEliRegPosibleGrabacion, box::YesNoInformation) == box::No) return;
    context().navigator->BloquearSolapas(true);
    walk_.startRemoval();
}

void ShowEditScreen::accept() {
    if (walk_.BtnModificar->isEnabled())
        modify();
    else if (walk_.BtnEliminar->isEnabled())
        removeRow();
}

void ShowEditScreen::BtnGuardar_Click() {
    if (!kind().acceptTrapped) {
        accept();
        return;
    }
    try {
        accept();
    } catch (const RuntimeError& error) {
        module1().Err = error.number();
        reportAndReload();
    }
}

void ShowEditScreen::modify() {
    if (!readyToWrite()) return;
    store().write(kind(), fillCampos(), false, Campos_);
    if (module1().ErrorBaseDatos) {
        reportAndReload();
        return;
    }
    Carga();
    relock();
}

void ShowEditScreen::removeRow() {
    store().remove(kind());
    if (module1().ErrorBaseDatos) {
        reportAndReload();
        return;
    }
    walk_.stepAfterRemoval();
    Carga();
    walk_.showRemoval();
    relock();
}

void ShowEditScreen::reportAndReload() {
    store().reportError();
    Carga();
    relock();
    module1().ErrorBaseDatos = false;
}

void ShowEditScreen::relock() {
    context().navigator->BloquearSolapas(false);
    Bloquear(true);
    accepted();
}

void ShowEditScreen::BtnDeshacer_Click() {
    walk_.Navegable = true;
    Carga();
    context().navigator->BloquearSolapas(false);
    Bloquear(true);
}

void ShowEditScreen::BtnImagenEliminar_Click() {
    if (walk_.BtnGuardar->isEnabled()) removePicture();
}

void ShowEditScreen::Imagen_DblClick() { choosePicture(); }

// Both jumps unload this form; what follows them reaches only what outlives it.
void ShowEditScreen::BtnRegresar_Click() {
    store::Module1& state = module1();
    shell::Navigator& navigator = *context().navigator;
    if (!state.RegresoAnaGrabacion && !state.RegresoMosGrabacion) return;
    if (state.RegresoAnaGrabacion) {
        state.SolapasFijas = false;
        navigator.SolapaRegistros1 = 6;
        navigator.setTabRegistros1(0);
        navigator.TabRegistros1_Click();
    }
    if (state.SolapasFijas) {
        state.SolapasFijas = false;
        navigator.BloquearSolapas(false);
        navigator.SolapaRegistros1 = 6;
        navigator.setTabRegistros1(2);
        navigator.TabRegistros1_Click();
        // Sent to another screen for its selection, the user has given the change up: the tabs stay free.
        if (!state.RegresoMosGrabacion) return;
        navigator.BloquearSolapas(true);
        state.SolapasFijas = true;
    }
}

} // namespace zv::editors
