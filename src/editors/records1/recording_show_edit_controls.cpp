// The controls of Show-Edit Recording: what stands where, and which handler each one runs.
#include "editors/records1/recording_show_edit.h"
#include "platform/forms/decoration.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;

FormReg1MosGrabacion::FormReg1MosGrabacion(shell::Context& context, QWidget* parent, const QString& name)
    : RecordingScreen(context, parent, name) {
    tipsShown = true;
    addNotes(2235, 1350);
    TxtNotas->setLocked(true);
    TxtNotas->Change = [this] {
        if (!TxtNotas->Locked()) store().memory.Grabacion.MosNotas = TxtNotas->Text();
    };
    TxtNotas->GotFocus = [this] {
        if (Navegable) BtnRegresar->setFocus(Qt::OtherFocusReason);
    };
    addFrame();
    addCounters();
    addButtons();
    for (Picture* picture : Imagen) picture->setEnabled(false);
}

void FormReg1MosGrabacion::addFrame() {
    Frame1 = add<Frame>(u"Frame1"_s, {240, 3750, 1845, 3870});
    addLabel({}, Role::Heading, u"RECORDS"_s, {105, 120, 885, 270}, type::S, true, ToLeft, Frame1);
    BtnReducirAmpliar = addLabel(u"BtnReducirAmpliar"_s, Role::LabelButton, store::EtiReducir, {1005, 105, 735, 300},
                                 type::S, true, Qt::AlignCenter, Frame1);
    BtnReducirAmpliar->setToolTipText(u"Reduce-Extend"_s);
    BtnReducirAmpliar->Click = [this] { BtnReducirAmpliar_Click(); };
    add<Rule>({}, {105, 480, 1635, 0}, Frame1);
    addLabel({}, Role::Heading, u"Show"_s, {105, 570, 900, 300}, type::L, true, ToLeft, Frame1);
    addLabel(u"LabOrden"_s, Role::Caption, u"Order"_s, {105, 900, 585, 330}, type::G, true, ToLeft, Frame1);
    TxtOrden = add<TextBox>(u"TxtOrden"_s, {720, 900, 1020, 330}, Frame1);
    TxtOrden->setMaxLength(5);
    TxtOrden->setAlignment(Qt::AlignCenter);
    TxtOrden->setText(u"1"_s);
    TxtOrden->setToolTipText(u"Order No. of the Record. Insert No."_s);
    TxtOrden->Change = [this] { TxtOrden_Change(); };
    TxtOrden->GotFocus = [this] { TxtOrden->selectWhole(); };
    HScroll = add<ScrollBar>(u"HScroll"_s, {105, 1350, 1635, 330}, Frame1);
    HScroll->setDirection(Qt::Horizontal);
    HScroll->setMin(1);
    HScroll->setMax(1);
    HScroll->Change = [this] { HScroll_Change(); };
    addLabel({}, Role::Caption, u"Previous   -   Next"_s, {105, 1725, 1635, 270}, type::XS, true, Qt::AlignCenter,
             Frame1);
}

void FormReg1MosGrabacion::addCounters() {
    const auto unit = [this](const QString& text, TwipsRect rect) {
        addLabel({}, Role::Unit, text, rect, type::S, false, ToLeft, Frame1);
    };
    const auto value = [this](const QString& name, const QString& text, TwipsRect rect, const QString& tip) {
        Label* made = addLabel(name, Role::Value, text, rect, type::G, false, ToRight, Frame1);
        made->setToolTipText(tip);
        return made;
    };
    add<Rule>({}, {105, 2280, 1635, 0}, Frame1);
    addLabel({}, Role::Heading, u"Selection"_s, {105, 2355, 1635, 240}, type::S, true, ToLeft, Frame1);
    LabNumRegSeleccion = value(u"LabNumRegSeleccion"_s, u"0"_s, {105, 2595, 690, 300}, u"No. of Selected Records"_s);
    unit(u"R"_s, {825, 2595, 120, 300});
    value({}, u"39"_s, {990, 2595, 420, 300}, u"No. of Fields per Selected Record"_s);
    unit(u"F"_s, {1440, 2595, 120, 300});
    LabNumFiltros = value(u"LabNumFiltros"_s, u"0"_s, {105, 2925, 690, 300}, u"No. of Selected Filters"_s);
    unit(u"Fl"_s, {825, 2925, 240, 300});
    addLabel({}, Role::Heading, u"Removed"_s, {105, 3270, 1635, 240}, type::S, true, ToLeft, Frame1);
    LabNumRegEliminados = value(u"LabNumRegEliminados"_s, u"0"_s, {105, 3510, 690, 300}, u"No. of Removed Records"_s);
    unit(u"R"_s, {825, 3510, 120, 300});
    value({}, u"39"_s, {990, 3510, 420, 300}, u"No. of Fields per Removed Record"_s);
    unit(u"F"_s, {1440, 3510, 120, 300});
}

// "Back" only takes the focus that the locked notes hand on.
void FormReg1MosGrabacion::addButtons() {
    BtnRegresar = addButton(u"BtnRegresar"_s, u"Back"_s, {}, {4800, 7230, 525, 360});
    BtnRegresar->setType(type::S, true);
    BtnModificar = addButton(u"BtnModificar"_s, u"Modify"_s, u"Modify the Record"_s, {2970, 7200, 1110, 420});
    BtnEliminar = addButton(u"BtnEliminar"_s, u"Remove"_s, u"Remove the Record"_s, {4230, 7200, 1110, 420});
    BtnGuardar = addButton(u"BtnGuardar"_s, u"Accept"_s, u"Accept Modify-Remove the Record"_s, {5490, 7200, 1110, 420});
    BtnDeshacer =
        addButton(u"BtnDeshacer"_s, u"Cancel"_s, u"Cancel Modify-Remove the Record"_s, {6750, 7200, 1110, 420});
    BtnModificar->Click = [this] { BtnModificar_Click(); };
    BtnEliminar->Click = [this] { BtnEliminar_Click(); };
    BtnGuardar->Click = [this] { BtnGuardar_Click(); };
    BtnDeshacer->Click = [this] { BtnDeshacer_Click(); };
    ValoresInicio();
}

void FormReg1MosGrabacion::BtnReducirAmpliar_Click() {
    Frame1->setVisible(false);
    const bool reduce = BtnReducirAmpliar->Caption() == store::EtiReducir;
    memory().RedAmp = reduce;
    Frame1->setHeight(reduce ? 2255 : 3870);
    Frame1->setTop(reduce ? 4260 : 3750);
    BtnReducirAmpliar->setCaption(reduce ? store::EtiAmpliar : store::EtiReducir);
    Frame1->setVisible(true);
}

} // namespace zv::editors
