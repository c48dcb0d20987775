#include "editors/records1/recording_show_edit.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using store::FixedTable;
using store::Kind;

namespace {

/// What stands for a key of which nothing has been read, or that was removed on this screen; for no key at all.
constexpr qint32 NotRead = -2, None = -1;
const QString NotReadRow = u"-2"_s, FreeRow = u"-1"_s;

/// The columns of a recording that point to its single parts.
QStringView keyColumn(int part) {
    return part == ComposerPart ? u"IdCompositor" : part == WorkPart ? u"IdObra" : u"IdSoporte";
}

} // namespace

void FormReg1MosGrabacion::Form_Load() {
    if (memory().RedAmp) BtnReducirAmpliar_Click();
    LabNumRegEliminados->setCaption(QString::number(memory().ContEli));
    LabNumRegSeleccion->setCaption(QString::number(memory().ContSel));
    LabNumFiltros->setCaption(QString::number(memory().ContFil));
    RecordingScreen::Form_Load();
}

void FormReg1MosGrabacion::Carga() {
    Navegable = true;
    if (!selectionsClosed()) return;
    emptyScreen();
    if (!hasRows()) {
        TxtOrden->setText({});
        TxtNotas->setText({});
        ValoresInicio();
        return;
    }
    Navegable = false;
    const bool trip = module1().RegresoMosGrabacion;
    trip ? loadWorkingCopy() : loadRecording();
    showPerformerCount();
    TxtOrden->setText(QString::number(memory().Posicion));
    if (trip) return;
    Navegable = true;
    ValoresInicio();
}

void FormReg1MosGrabacion::emptyScreen() {
    const bool walking = Navegable;
    Navegable = false;
    for (int part = 0; part < PartCount; ++part) clearPart(part);
    DialogoImagen.FileName.clear();
    Navegable = walking;
}

// Back from a trip: the working copy is shown, and the screen goes on being modified.
void FormReg1MosGrabacion::loadWorkingCopy() {
    BtnModificar_Click();
    HScroll->setMax(Data().Recordset().RecordCount());
    HScroll->setValue(std::clamp<int>(memory().Posicion, HScroll->Min(), HScroll->Max()));
    if (chosen(ComposerPart) >= 1) Lab_Click(ComposerPart);
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart})
        if (hasGroup(group(part))) Lab_Click(part);
    if (chosen(FormatPart) >= 1)
        Lab_Click(FormatPart);
    else
        markFormat(false);
    if (chosen(WorkPart) >= 1) Lab_Click(WorkPart);
    TxtNotas->setText(store().memory.Grabacion.MosNotas);
}

void FormReg1MosGrabacion::loadRecording() {
    // Rows beyond the tenth keep what stood there: a save reads on into them.
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart})
        for (int row = 0; row <= 10; ++row) group(part).at(row, 1) = NotReadRow;
    for (const int part : {ComposerPart, WorkPart, FormatPart}) chosen(part) = NotRead;
    jet::Recordset& rows = Data().Recordset();
    rows.MoveLast();
    HScroll->setMax(rows.RecordCount());
    HScroll->setValue(std::min<qint32>(HScroll->Max(), memory().Posicion));
    rows.setAbsolutePosition(HScroll->Value() - 1);
    importSingle(ComposerPart);
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart}) {
        links(part).RecordSource =
            u"SELECT * FROM "_s + partInfo(part).group->linkTable.toString() + u" WHERE  IdGrabacion="_s + CStr(key());
        links(part).Refresh();
        if (links(part).Recordset().RecordCount() != 0) {
            links(part).Recordset().MoveLast();
            Lab_Click(part);
        } else {
            group(part).at(0, 1) = FreeRow;
        }
    }
    importSingle(FormatPart);
    importSingle(WorkPart);
    const QString notes = Data().boundText(u"Notas"_s);
    TxtNotas->setText(notes);
    store().memory.Grabacion.MosNotas = notes;
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart}) openLinks(part);
}

void FormReg1MosGrabacion::importSingle(int part) {
    if (valueOf(keyColumn(part)) > 0) {
        Lab_Click(part);
        return;
    }
    chosen(part) = None;
    if (part == FormatPart) markFormat(false);
}

void FormReg1MosGrabacion::Lab_Click(int part) {
    if (Navegable) return;
    if (partInfo(part).isGroup()) {
        importGroup(part);
        return;
    }
    qint32& chosenKey = chosen(part);
    narrow(part, chosenKey == NotRead ? valueOf(keyColumn(part)) : chosenKey);
    if (Data(part).Recordset().RecordCount() != 0) {
        showSingle(part);
        chosenKey = toLong(Val(Data(part).boundText(u"Id"_s)));
    }
    if (BtnGuardar->isEnabled() && chosenKey > 0) showRemoveButton(part, true);
    widen(part);
    if (part == FormatPart) markFormat(chosenKey >= 1);
}

// After the load the channel holds the links of all recordings.
QString FormReg1MosGrabacion::linkCondition(int part) {
    const double recording = key();
    QStringList terms;
    const QString column = partInfo(part).group->keyColumn.toString();
    jet::Recordset& rows = links(part).Recordset();
    for (int row = 0; row < rows.RecordCount(); ++row) {
        rows.setAbsolutePosition(row);
        if (Val(links(part).boundText(u"IdGrabacion"_s)) != recording) continue;
        terms += column + u'=' + CStr(Val(links(part).boundText(column)));
    }
    return terms.join(u" OR "_s);
}

void FormReg1MosGrabacion::importGroup(int part) {
    FixedTable& table = group(part);
    const bool read = Val(table.at(0, 1)) != NotRead;
    const QString condition = read ? groupCondition(part, table, table.rows()) : linkCondition(part);
    // A table that is full to its last row ends without showing anything.
    if (read && condition.count(u'=') > partInfo(part).group->limit) return;
    if (condition.isEmpty()) return;
    showGroup(part, condition, &table);
    if (BtnGuardar->isEnabled() && hasGroup(table)) showRemoveButton(part, true);
}

void FormReg1MosGrabacion::Imagen_DblClick(int part) {
    if (!BtnGuardar->isEnabled()) return;
    if (!partInfo(part).isGroup() && chosen(part) == NotRead) chosen(part) = None;
    store::Module1& state = module1();
    shell::Navigator& navigator = *context().navigator;
    state.SolapasFijas = false;
    state.RegresoMosGrabacion = true;
    navigator.BloquearSolapas(false);
    navigator.SolapaRegistros1 = static_cast<qint16>(part);
    navigator.setTabRegistros1(2);
    navigator.TabRegistros1_Click();
    navigator.BloquearSolapas(true);
    state.SolapasFijas = true;
}

void FormReg1MosGrabacion::BtnEliIma_Click(int part) {
    if (Navegable) return;
    clearPart(part);
    if (partInfo(part).isGroup()) {
        group(part).fillColumn(0, {});
        group(part).fillColumn(1, FreeRow);
    } else {
        chosen(part) = NotRead;
    }
    if (part == FormatPart) markFormat(false);
}

void FormReg1MosGrabacion::HScroll_Change() {
    if (!Navegable || !hasRows()) return;
    TxtOrden->setText(QString::number(HScroll->Value()));
    Data().Recordset().setAbsolutePosition(HScroll->Value() - 1);
    memory().Posicion = HScroll->Value();
    Carga();
}

void FormReg1MosGrabacion::TxtOrden_Change() {
    if (!Navegable) return;
    const QString text = TxtOrden->Text();
    const double v = numberOf(text).value_or(0);
    if (v >= 1 && v <= Data().Recordset().RecordCount())
        HScroll->setValue(toInteger(v));
    else
        TxtOrden->setText({});
}

void FormReg1MosGrabacion::BtnModificar_Click() {
    if (!BtnEliminar->isEnabled() || !hasRows()) return;
    Navegable = false;
    context().navigator->BloquearSolapas(true);
    BtnEliminar->setEnabled(false);
    Bloquear(false);
    for (int part = 0; part < PartCount; ++part)
        showRemoveButton(part, partInfo(part).isGroup() ? hasGroup(group(part)) : chosen(part) > 0);
}

void FormReg1MosGrabacion::BtnEliminar_Click() {
    if (!BtnModificar->isEnabled() || !hasRows()) return;
    context().navigator->BloquearSolapas(true);
    BtnModificar->setEnabled(false);
    BtnGuardar->setEnabled(true);
    BtnDeshacer->setEnabled(true);
    HScroll->setEnabled(false);
    TxtOrden->setEnabled(false);
    markState();
}

void FormReg1MosGrabacion::BtnGuardar_Click() {
    // The state that was entered: the button that led into it is the one of the two that is still enabled.
    if (BtnModificar->isEnabled())
        modify();
    else if (BtnEliminar->isEnabled())
        removeRow();
}

void FormReg1MosGrabacion::modify() {
    const double recording = key();
    if (chosen(FormatPart) < 0) {
        MsgBox(store::MensaIntroducirIDentificador, box::Warning);
        return;
    }
    removeLinks(recording);
    writeRecording(false, chosen(ComposerPart), chosen(WorkPart), chosen(FormatPart));
    standOnRecording();
    if (module1().ErrorBaseDatos) {
        store().reportError();
        module1().ErrorBaseDatos = false;
        return;
    }
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart}) {
        if (writeLinks(part, group(part), recording)) continue;
        module1().ErrorBaseDatos = false;
        return;
    }
    resetGroups(FreeRow);
    module1().RegresoMosGrabacion = false;
    Carga();
    unlockTabs();
}

// A write leaves the channel on its first row, and a save that stops half-way is completed by the next one.
void FormReg1MosGrabacion::standOnRecording() {
    jet::Recordset& rows = Data().Recordset();
    if (rows.RecordCount() == 0) return;
    rows.MoveLast();
    rows.setAbsolutePosition(std::min(HScroll->Value(), rows.RecordCount()) - 1);
}

void FormReg1MosGrabacion::removeRow() {
    removeLinks(key());
    store().EliminarRegistro(store::info(Kind::Grabacion).channel);
    if (module1().ErrorBaseDatos) {
        store().reportError();
        Carga();
        unlockTabs();
        module1().ErrorBaseDatos = false;
        return;
    }
    store::KindMemory& of = memory();
    jet::Recordset& rows = Data().Recordset();
    if (rows.RecordCount() == 0) {
        of.Posicion = 1;
        of.Cont = 0;
        of.ContSel = 0;
    } else {
        if (of.Posicion != 1) --of.Posicion;
        --of.Cont;
        of.ContSel = rows.RecordCount();
        rows.setAbsolutePosition(std::min<qint32>(of.Posicion, of.ContSel) - 1);
    }
    resetGroups(u" -1"_s);
    module1().RegresoMosGrabacion = false;
    Carga();
    LabNumRegEliminados->setCaption(CStr(Val(LabNumRegEliminados->Caption()) + 1));
    of.ContEli = toLong(Val(LabNumRegEliminados->Caption()));
    LabNumRegSeleccion->setCaption(QString::number(of.ContSel));
    unlockTabs();
}

void FormReg1MosGrabacion::BtnDeshacer_Click() {
    unlockTabs();
    resetGroups(u" -1"_s);
    module1().RegresoMosGrabacion = false;
    Carga();
}

void FormReg1MosGrabacion::unlockTabs() {
    for (int part = 0; part < PartCount; ++part) showRemoveButton(part, false);
    module1().SolapasFijas = false;
    Navegable = true;
    context().navigator->BloquearSolapas(false);
    Bloquear(true);
}

void FormReg1MosGrabacion::resetGroups(const QString& orchestraMark) {
    group(OrchestraPart).fillColumn(1, orchestraMark);
    group(ConductorPart).fillColumn(1, FreeRow);
    group(PerformerPart).fillColumn(1, FreeRow);
}

void FormReg1MosGrabacion::Bloquear(bool locked) {
    Navegable = locked;
    TxtNotas->setLocked(locked);
    for (forms::Picture* picture : Imagen) picture->setEnabled(!locked);
    HScroll->setEnabled(locked);
    TxtOrden->setEnabled(locked);
    BtnDeshacer->setEnabled(!locked);
    BtnGuardar->setEnabled(!locked);
    markState();
}

void FormReg1MosGrabacion::ValoresInicio() {
    BtnDeshacer->setEnabled(false);
    BtnGuardar->setEnabled(false);
    BtnModificar->setEnabled(true);
    BtnEliminar->setEnabled(true);
    markState();
}

void FormReg1MosGrabacion::markState() {
    setInForce(BtnModificar, BtnGuardar->isEnabled() && !BtnEliminar->isEnabled());
    setInForce(BtnEliminar, BtnGuardar->isEnabled() && !BtnModificar->isEnabled());
}

} // namespace zv::editors
