#include "editors/records1/recording_add.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;
using store::Kind;

FormReg1AnaGrabacion::FormReg1AnaGrabacion(shell::Context& context, QWidget* parent, const QString& name)
    : RecordingScreen(context, parent, name) {
    addNotes(240, 3345);
    TxtNotas->Change = [this] { store().memory.Grabacion.AnaNotas = TxtNotas->Text(); };
    addCounters();
    BtnGuardar = addButton(u"BtnGuardar"_s, u"Save"_s, u"Save the Record"_s, {5490, 7200, 1110, 420},
                           [this] { armed([this] { BtnGuardar_Click(); }); });
    BtnDeshacer = addButton(u"BtnDeshacer"_s, u"Undo"_s, u"Remove the Last Record"_s, {6750, 7200, 1110, 420},
                            [this] { BtnDeshacer_Click(); });
    BtnDeshacer->setEnabled(false);
}

void FormReg1AnaGrabacion::addCounters() {
    auto* frame = add<Frame>({}, {240, 5685, 1845, 1935});
    addLabel({}, Role::Heading, u"Add"_s, {120, 75, 700, 300}, type::L, true, ToLeft, frame);
    addLabel({}, Role::Heading, u"RECORDS"_s, {825, 90, 900, 270}, type::S, true, ToRight, frame);
    add<Rule>({}, {120, 420, 1605, 0}, frame);
    const auto row = [&](const QString& caption, int top, const QString& name, const QString& tip,
                         const QString& fieldsTip) {
        addLabel({}, Role::Caption, caption, {120, top, 900, 240}, type::G, true, ToLeft, frame);
        Label* value = addLabel(name, Role::Value, u"0"_s, {120, top + 255, 690, 300}, type::G, false, ToRight, frame);
        value->setToolTipText(tip);
        addLabel({}, Role::Unit, u"R"_s, {840, top + 255, 150, 300}, type::S, false, ToLeft, frame);
        addLabel({}, Role::Value, u"39"_s, {1080, top + 255, 450, 300}, type::G, false, ToRight, frame)
            ->setToolTipText(fieldsTip);
        addLabel({}, Role::Unit, u"F"_s, {1560, top + 255, 150, 300}, type::S, false, ToLeft, frame);
        return value;
    };
    LabNumRegNuevos =
        row(u"New"_s, 495, u"LabNumRegNuevos"_s, u"No. of New Records"_s, u"No. of Fields per New Record"_s);
    LabNumRegTotal =
        row(u"Total"_s, 1185, u"LabNumRegTotal"_s, u"Total No. of Records"_s, u"No. of Fields per Record"_s);
}

void FormReg1AnaGrabacion::Carga() {
    if (!selectionsClosed()) return;
    LabNumRegTotal->setCaption(QString::number(memory().Cont));
    LabNumRegNuevos->setCaption(QString::number(memory().ContNew));
    // A chosen row is made the current one, the import then widens the channel again.
    for (const int part : {ComposerPart, WorkPart})
        if (chosen(part) > 0) narrow(part, chosen(part));
    if (chosen(FormatPart) < 1)
        markFormat(false);
    else
        narrow(FormatPart, chosen(FormatPart));
    if (chosen(ComposerPart) > 0) Lab_Click(ComposerPart);
    for (const int part : {ConductorPart, OrchestraPart, PerformerPart})
        if (hasGroup(group(part))) Lab_Click(part);
    if (chosen(FormatPart) > 0) Lab_Click(FormatPart);
    if (chosen(WorkPart) > 0) Lab_Click(WorkPart);
    TxtNotas->setText(store().memory.Grabacion.AnaNotas);
}

void FormReg1AnaGrabacion::Limpiar() {
    for (int part = 0; part < PartCount; ++part) BtnEliIma_Click(part);
    TxtNotas->setText({});
    LabInterpreteNumeroInterprete->setCaption({});
}

void FormReg1AnaGrabacion::Lab_Click(int part) {
    if (partInfo(part).isGroup()) {
        if (!hasGroup(group(part))) return;
        showRemoveButton(part, true);
        showGroup(part, groupCondition(part, groupKeys(group(part))), nullptr);
        return;
    }
    if (Data(part).Recordset().RecordCount() == 0) {
        widen(part);
        return;
    }
    showRemoveButton(part, true);
    showSingle(part);
    chosen(part) = toLong(Val(Data(part).boundText(u"Id"_s)));
    widen(part);
    if (part == FormatPart) markFormat(chosen(part) >= 0);
}

void FormReg1AnaGrabacion::Imagen_DblClick(int part) {
    module1().RegresoAnaGrabacion = true;
    context().navigator->SolapaRegistros1 = static_cast<qint16>(part);
    context().navigator->setTabRegistros1(2);
}

void FormReg1AnaGrabacion::BtnEliIma_Click(int part) {
    clearPart(part);
    if (partInfo(part).isGroup()) {
        group(part).fillColumn(0, {});
        group(part).fillColumn(1, u" -1"_s);
    } else {
        chosen(part) = -1;
    }
    if (part == FormatPart) markFormat(false);
}

void FormReg1AnaGrabacion::BtnGuardar_Click() {
    if (chosen(FormatPart) < 0) {
        MsgBox(store::MensaIntroducirIDentificador, box::Warning);
        return;
    }
    const auto groups = chosenGroups();
    Data().RecordSource = u"SELECT * FROM Grabacion "_s;
    Data().Refresh();
    if (Data().Recordset().RecordCount() != 0) Data().Recordset().MoveLast();
    writeRecording(true, chosen(ComposerPart), chosen(WorkPart), chosen(FormatPart));
    if (module1().ErrorBaseDatos) {
        store().reportError();
        Limpiar();
        module1().ErrorBaseDatos = false;
        return;
    }
    Data().Recordset().MoveLast();
    const double recording = key();
    // A link that can't be written ends the save: what was written stays, and nothing is said.
    if (!writeLinks(groups, recording)) {
        Limpiar();
        module1().ErrorBaseDatos = false;
        return;
    }
    saved();
}

void FormReg1AnaGrabacion::saved() {
    store::KindMemory& of = memory();
    LabNumRegNuevos->setCaption(CStr(Val(LabNumRegNuevos->Caption()) + 1));
    ++of.Cont;
    of.ContSel = of.Cont;
    ++of.ContNew;
    LabNumRegTotal->setCaption(QString::number(of.Cont));
    of.ContFil = 0;
    of.MemoSel.Lista = u"#"_s;
    of.MemoSel.NT = 2;
    of.MemoSel.Opciones.fill({});
    of.MemoSel.ValorFiltro.clear();
    MsgBox(store::MensaGrabadoBien, box::Information);
    BtnDeshacer->setEnabled(true);
    Limpiar();
}

void FormReg1AnaGrabacion::BtnDeshacer_Click() {
    Data().RecordSource = u"SELECT * FROM Grabacion"_s;
    Data().Refresh();
    if (Data().Recordset().RecordCount() != 0) Data().Recordset().MoveLast();
    removeLinks(key());
    store().EliminarRegistro(store::info(Kind::Grabacion).channel);
    Limpiar();
    if (module1().ErrorBaseDatos) {
        store().reportError();
        Carga();
        module1().ErrorBaseDatos = false;
        return;
    }
    store::KindMemory& of = memory();
    BtnDeshacer->setEnabled(false);
    LabNumRegNuevos->setCaption(CStr(Val(LabNumRegNuevos->Caption()) - 1));
    --of.Cont;
    LabNumRegTotal->setCaption(QString::number(of.Cont));
    of.ContSel = of.Cont;
    --of.ContNew;
}

} // namespace zv::editors
