#include "editors/show_edit_screen.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using store::Value;

namespace {

/// What stands for the key while no record is shown.
constexpr qint32 NoKey = -2;

} // namespace

void ShowEditScreen::Form_Load() {
    LabNumRegEliminados->setCaption(QString::number(memory().ContEli));
    LabNumRegSeleccion->setCaption(QString::number(memory().ContSel));
    LabNumFiltros->setCaption(QString::number(memory().ContFil));
    if (memory().RedAmp) BtnReducirAmpliar_Click();
    if (kind().partOfRecording && (module1().RegresoMosGrabacion || module1().RegresoAnaGrabacion)) revealBack();
}

void ShowEditScreen::revealBack() {
    BtnRegresar->setLeft(3390);
    BtnRegresar->setTop(7230);
    BtnRegresar->raise();
}

void ShowEditScreen::Form_Unload() {
    if (kind().partOfRecording) module1().RegresoAnaGrabacion = false;
}

void ShowEditScreen::setKey(qint32 key) {
    if (kind().shownKey) module1().*kind().shownKey = key;
}

void ShowEditScreen::Carga() {
    Navegable = false;
    setKey(NoKey);
    jet::Recordset& rows = Data().Recordset();
    if (rows.RecordCount() == 0) {
        Limpiar();
    } else {
        rows.MoveLast();
        HScroll->setMax(rows.RecordCount());
        HScroll->setValue(std::min<qint32>(HScroll->Max(), memory().Posicion));
        rows.setAbsolutePosition(HScroll->Value() - 1);
        setKey(toLong(Val(store().bound(kind().kind, 0))));
        showRow();
        TxtOrden->setText(QString::number(HScroll->Value()));
    }
    Navegable = true;
    ValoresInicio();
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
    Navegable = false;
    HScroll->setMax(1);
    HScroll->setValue(1);
    TxtOrden->setText(u"0"_s);
    Navegable = true;
    for (int i = 0; i < fieldCount(); ++i) box(i).setText({});
    BtnImagenEliminar_Click();
}

void ShowEditScreen::ValoresInicio() {
    BtnDeshacer->setEnabled(false);
    BtnGuardar->setEnabled(false);
    BtnModificar->setEnabled(true);
    BtnEliminar->setEnabled(true);
    markState();
}

void ShowEditScreen::Bloquear(bool locked) {
    Navegable = locked;
    for (int i = 0; i < fieldCount(); ++i) box(i).setLocked(locked);
    Imagen->setEnabled(!locked);
    BtnImagenEliminar->setVisible(!locked);
    HScroll->setEnabled(locked);
    TxtOrden->setEnabled(locked);
    BtnDeshacer->setEnabled(!locked);
    BtnGuardar->setEnabled(!locked);
    markState();
}

void ShowEditScreen::markState() {
    setInForce(BtnModificar, BtnGuardar->isEnabled() && !BtnEliminar->isEnabled());
    setInForce(BtnEliminar, BtnGuardar->isEnabled() && !BtnModificar->isEnabled());
}

void ShowEditScreen::HScroll_Change() {
    if (!Navegable || !hasRows()) return;
    TxtOrden->setText(QString::number(HScroll->Value()));
    Data().Recordset().setAbsolutePosition(HScroll->Value() - 1);
    memory().Posicion = HScroll->Value();
    Carga();
}

void ShowEditScreen::TxtOrden_Change() {
    if (!Navegable) return;
    const QString text = TxtOrden->Text();
    const double v = numberOf(text).value_or(0);
    if (v >= 1 && v <= Data().Recordset().RecordCount())
        HScroll->setValue(toInteger(v));
    else
        TxtOrden->setText({});
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
    if (!BtnEliminar->isEnabled() || !hasRows()) return;
    Navegable = false;
    context().navigator->BloquearSolapas(true);
    BtnEliminar->setEnabled(false);
    Bloquear(false);
    placeRemoveButton();
    BtnImagenEliminar->setVisible(!DialogoImagen.FileName.isEmpty());
}

void ShowEditScreen::BtnEliminar_Click() {
    if (!BtnModificar->isEnabled() || !hasRows()) return;
    if (kind().partOfRecording && MsgBox(store::MensaEliRegPosibleGrabacion, box::YesNoInformation) == box::No) return;
    context().navigator->BloquearSolapas(true);
    BtnModificar->setEnabled(false);
    BtnGuardar->setEnabled(true);
    BtnDeshacer->setEnabled(true);
    HScroll->setEnabled(false);
    TxtOrden->setEnabled(false);
    markState();
}

void ShowEditScreen::accept() {
    if (BtnModificar->isEnabled())
        modify();
    else if (BtnEliminar->isEnabled())
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
    store::KindMemory& of = memory();
    jet::Recordset& rows = Data().Recordset();
    if (rows.RecordCount() != 0) {
        if (of.Posicion != 1) --of.Posicion;
        --of.Cont;
        of.ContSel = rows.RecordCount();
        rows.setAbsolutePosition(std::min<qint32>(of.Posicion, of.ContSel) - 1);
    } else {
        // A filter's last row counts as the table's.
        of.Posicion = 1;
        of.Cont = 0;
        of.ContSel = 0;
    }
    Carga();
    LabNumRegEliminados->setCaption(CStr(Val(LabNumRegEliminados->Caption()) + 1));
    of.ContEli = toLong(Val(LabNumRegEliminados->Caption()));
    LabNumRegSeleccion->setCaption(QString::number(of.ContSel));
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
    Navegable = true;
    Carga();
    context().navigator->BloquearSolapas(false);
    Bloquear(true);
}

void ShowEditScreen::BtnImagenEliminar_Click() {
    if (BtnGuardar->isEnabled()) removePicture();
}

void ShowEditScreen::Imagen_DblClick() { choosePicture(); }

void ShowEditScreen::BtnReducirAmpliar_Click() {
    Frame1->setVisible(false);
    const bool reduce = BtnReducirAmpliar->Caption() == store::EtiReducir;
    memory().RedAmp = reduce;
    Frame1->setHeight(reduce ? 2255 : 3870);
    Frame1->setTop(reduce ? 4260 : 3750);
    BtnReducirAmpliar->setCaption(reduce ? store::EtiAmpliar : store::EtiReducir);
    Frame1->setVisible(true);
}

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
        navigator.BloquearSolapas(true);
        state.SolapasFijas = true;
    }
}

} // namespace zv::editors
