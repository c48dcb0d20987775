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

const WalkLayout Layout{
    .frame = {240, 3750, 1845, 3870},
    .heading = {105, 120, 885, 270},
    .reduce = {1005, 105, 735, 300},
    .show = {105, 570, 900, 300},
    .order = {105, 900, 585, 330},
    .orderNumber = {720, 900, 1020, 330},
    .bar = {105, 1350, 1635, 330},
    .directions = {105, 1725, 1635, 270},
    .selection = {105, 2355, 1635, 240},
    .selected = {105, 2595, 690, 300},
    .selectedUnit = {825, 2595, 120, 300},
    .selectedFields = {990, 2595, 420, 300},
    .selectedFieldsUnit = {1440, 2595, 120, 300},
    .filters = {105, 2925, 690, 300},
    .filtersUnit = {825, 2925, 240, 300},
    .removal = {105, 3270, 1635, 240},
    .removed = {105, 3510, 690, 300},
    .removedUnit = {825, 3510, 120, 300},
    .removedFields = {990, 3510, 420, 300},
    .removedFieldsUnit = {1440, 3510, 120, 300},
    .rules = {480, 2280},
    .orderAlignment = forms::ToLeft,
    .directionsType = forms::type::XS,
    .valueType = forms::type::G,
    .back = {4800, 7230, 525, 360},
    .modify = {2970, 7200, 1110, 420},
    .remove = {4230, 7200, 1110, 420},
    .accept = {5490, 7200, 1110, 420},
    .undo = {6750, 7200, 1110, 420},
    .backType = forms::type::S,
};

} // namespace

FormReg1MosGrabacion::FormReg1MosGrabacion(shell::Context& context, QWidget* parent, const QString& name)
    : RecordingScreen(context, parent, name), walk_(*this, store(), store::info(Kind::Grabacion), Layout) {
    tipsShown = true;
    addNotes(2235, 1350);
    TxtNotas->setLocked(true);
    TxtNotas->Change = [this] {
        if (!TxtNotas->Locked()) store().memory.Grabacion.MosNotas = TxtNotas->Text();
    };
    TxtNotas->GotFocus = [this] { walk_.handFocusOn(); };
    // "Back" only takes the focus that the locked notes hand on.
    walk_.BtnRegresar->setToolTipText({});
    walk_.BtnModificar->Click = [this] { BtnModificar_Click(); };
    walk_.BtnEliminar->Click = [this] { BtnEliminar_Click(); };
    walk_.BtnGuardar->Click = [this] { armed([this] { BtnGuardar_Click(); }); };
    walk_.BtnDeshacer->Click = [this] { BtnDeshacer_Click(); };
    for (forms::Picture* picture : Imagen) picture->setEnabled(false);
}

void FormReg1MosGrabacion::Form_Load() {
    walk_.load();
    RecordingScreen::Form_Load();
}

void FormReg1MosGrabacion::Carga() {
    walk_.Navegable = true;
    if (!selectionsClosed()) {
        if (module1().RegresoMosGrabacion) giveUp();
        return;
    }
    emptyScreen();
    if (!walk_.hasRows()) {
        walk_.TxtOrden->setText({});
        TxtNotas->setText({});
        walk_.ValoresInicio();
        return;
    }
    walk_.Navegable = false;
    const bool trip = module1().RegresoMosGrabacion;
    trip ? loadWorkingCopy() : loadRecording();
    showPerformerCount();
    walk_.TxtOrden->setText(QString::number(memory().Posicion));
    if (trip) return;
    walk_.Navegable = true;
    walk_.ValoresInicio();
}

void FormReg1MosGrabacion::emptyScreen() {
    const bool walking = walk_.Navegable;
    walk_.Navegable = false;
    for (int part = 0; part < PartCount; ++part) clearPart(part);
    DialogoImagen.FileName.clear();
    walk_.Navegable = walking;
}

// Back from a trip: the working copy is shown, and the screen goes on being modified.
void FormReg1MosGrabacion::loadWorkingCopy() {
    BtnModificar_Click();
    walk_.HScroll->setMax(Data().Recordset().RecordCount());
    walk_.HScroll->setValue(std::clamp<int>(memory().Posicion, walk_.HScroll->Min(), walk_.HScroll->Max()));
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
    walk_.standOnRemembered();
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
    if (walk_.Navegable) return;
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
    if (walk_.BtnGuardar->isEnabled() && chosenKey > 0) showRemoveButton(part, true);
    widen(part);
    if (part == FormatPart) markFormat(chosenKey >= 1);
}

// After the load the channel holds the links of all recordings.
QString FormReg1MosGrabacion::linkCondition(int part) {
    const double recording = key();
    QStringList found;
    jet::Recordset& rows = links(part).Recordset();
    const std::vector<QString> recordings = rows.columnTexts(u"IdGrabacion"_s);
    const std::vector<QString> keys = rows.columnTexts(partInfo(part).group->keyColumn.toString());
    for (std::size_t row = 0; row < keys.size(); ++row)
        if (Val(recordings[row]) == recording) found += CStr(Val(keys[row]));
    return groupCondition(part, found);
}

void FormReg1MosGrabacion::importGroup(int part) {
    FixedTable& table = group(part);
    const bool read = Val(table.at(0, 1)) != NotRead;
    const QStringList keys = read ? groupKeys(table, table.rows()) : QStringList();
    // A table that is full to its last row ends without showing anything.
    if (keys.size() > partInfo(part).group->limit) return;
    const QString condition = read ? groupCondition(part, keys) : linkCondition(part);
    if (condition.isEmpty()) return;
    showGroup(part, condition, &table);
    if (walk_.BtnGuardar->isEnabled() && hasGroup(table)) showRemoveButton(part, true);
}

void FormReg1MosGrabacion::Imagen_DblClick(int part) {
    if (!walk_.BtnGuardar->isEnabled()) return;
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
    if (walk_.Navegable) return;
    clearPart(part);
    if (partInfo(part).isGroup()) {
        group(part).fillColumn(0, {});
        group(part).fillColumn(1, FreeRow);
    } else {
        chosen(part) = NotRead;
    }
    if (part == FormatPart) markFormat(false);
}

void FormReg1MosGrabacion::BtnModificar_Click() {
    if (!walk_.mayModify()) return;
    walk_.Navegable = false;
    context().navigator->BloquearSolapas(true);
    walk_.BtnEliminar->setEnabled(false);
    Bloquear(false);
    for (int part = 0; part < PartCount; ++part)
        showRemoveButton(part, partInfo(part).isGroup() ? hasGroup(group(part)) : chosen(part) > 0);
}

void FormReg1MosGrabacion::BtnEliminar_Click() {
    if (!walk_.mayRemove()) return;
    context().navigator->BloquearSolapas(true);
    walk_.startRemoval();
}

void FormReg1MosGrabacion::BtnGuardar_Click() {
    // The state that was entered: the button that led into it is the one of the two that is still enabled.
    if (walk_.BtnModificar->isEnabled())
        modify();
    else if (walk_.BtnEliminar->isEnabled())
        removeRow();
}

void FormReg1MosGrabacion::modify() {
    const double recording = key();
    if (chosen(FormatPart) < 0) {
        MsgBox(store::MensaIntroducirIDentificador, box::Warning);
        return;
    }
    const auto groups = chosenGroups();
    openAlone(recording);
    removeLinks(recording);
    writeRecording(false, chosen(ComposerPart), chosen(WorkPart), chosen(FormatPart));
    if (module1().ErrorBaseDatos) {
        store().reportError();
        module1().ErrorBaseDatos = false;
        return;
    }
    if (!writeLinks(groups, recording)) {
        module1().ErrorBaseDatos = false;
        return;
    }
    reopenSelection();
    resetGroups(FreeRow);
    module1().RegresoMosGrabacion = false;
    Carga();
    unlockTabs();
}

// A save that stops half-way is completed by the next one, which has to reach the same row: also where the change has
// moved it within the selection or out of it.
void FormReg1MosGrabacion::openAlone(double recording) {
    QString& selection = module1().SeleccionGrabacion;
    if (selection.isEmpty()) selection = Data().RecordSource;
    Data().RecordSource = store::info(Kind::Grabacion).selectAll() + u" WHERE IdGrabacion="_s + CStr(recording);
    Data().Refresh();
}

void FormReg1MosGrabacion::reopenSelection() {
    QString& selection = module1().SeleccionGrabacion;
    if (selection.isEmpty()) return;
    Data().RecordSource = selection;
    selection.clear();
    Data().Refresh();
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
    walk_.stepAfterRemoval();
    resetGroups(u" -1"_s);
    module1().RegresoMosGrabacion = false;
    Carga();
    walk_.showRemoval();
    unlockTabs();
}

void FormReg1MosGrabacion::BtnDeshacer_Click() {
    unlockTabs();
    giveUp();
    Carga();
}

// Forgets the working copy, and that it was modified.
void FormReg1MosGrabacion::giveUp() {
    reopenSelection();
    resetGroups(u" -1"_s);
    module1().RegresoMosGrabacion = false;
}

void FormReg1MosGrabacion::unlockTabs() {
    for (int part = 0; part < PartCount; ++part) showRemoveButton(part, false);
    module1().SolapasFijas = false;
    walk_.Navegable = true;
    context().navigator->BloquearSolapas(false);
    Bloquear(true);
}

void FormReg1MosGrabacion::resetGroups(const QString& orchestraMark) {
    group(OrchestraPart).fillColumn(1, orchestraMark);
    group(ConductorPart).fillColumn(1, FreeRow);
    group(PerformerPart).fillColumn(1, FreeRow);
}

void FormReg1MosGrabacion::Bloquear(bool locked) {
    walk_.lock(locked);
    TxtNotas->setLocked(locked);
    for (forms::Picture* picture : Imagen) picture->setEnabled(!locked);
}

} // namespace zv::editors
