// The controls of the Show-Edit screens: what stands where, and which handler each one runs.
#include "editors/show_edit_screen.h"
#include "platform/forms/decoration.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;

ShowEditScreen::ShowEditScreen(shell::Context& context, QWidget* parent, const QString& name,
                               const store::KindInfo& kind)
    : EditorScreen(context, parent, name, kind) {
    addFrame();
    addCounters();
    addButtons();
    connectBoxes();
    for (int i = 0; i < fieldCount(); ++i) box(i).setLocked(true);
    Imagen->setEnabled(false);
    Imagen->DblClick = [this] { Imagen_DblClick(); };
    BtnImagenEliminar->Click = [this] { BtnImagenEliminar_Click(); };
}

void ShowEditScreen::addFrame() {
    Frame1 = add<Frame>(u"Frame1"_s, {240, 3750, 3000, 3870});
    addLabel({}, Role::Heading, u"RECORDS"_s, {150, 120, 1500, 270}, type::S, true, ToLeft, Frame1);
    BtnReducirAmpliar = addLabel(u"BtnReducirAmpliar"_s, Role::LabelButton, store::EtiReducir, {1950, 105, 900, 300},
                                 type::S, true, Qt::AlignCenter, Frame1);
    BtnReducirAmpliar->setToolTipText(u"Reduce-Extend"_s);
    BtnReducirAmpliar->Click = [this] { BtnReducirAmpliar_Click(); };
    add<Rule>({}, {150, 480, 2700, 0}, Frame1);
    addLabel({}, Role::Heading, u"Show"_s, {150, 660, 810, 330}, type::L, true, ToLeft, Frame1);
    addLabel(u"LabOrden"_s, Role::Caption, u"Order"_s, {1005, 660, 735, 330}, type::G, true, ToRight, Frame1);
    TxtOrden = add<TextBox>(u"TxtOrden"_s, {1830, 660, 1020, 330}, Frame1);
    TxtOrden->setMaxLength(5);
    TxtOrden->setAlignment(Qt::AlignCenter);
    TxtOrden->setText(u"1"_s);
    TxtOrden->setToolTipText(u"Order No. of the Record. Insert No."_s);
    TxtOrden->Change = [this] { TxtOrden_Change(); };
    TxtOrden->GotFocus = [this] { TxtOrden->selectWhole(); };
    HScroll = add<ScrollBar>(u"HScroll"_s, {150, 1215, 2700, 345}, Frame1);
    HScroll->setDirection(Qt::Horizontal);
    HScroll->setMin(1);
    HScroll->setMax(1);
    HScroll->Change = [this] { HScroll_Change(); };
    addLabel({}, Role::Caption, u"Previous   -   Next"_s, {150, 1620, 2700, 270}, type::G, true, Qt::AlignCenter,
             Frame1);
}

void ShowEditScreen::addCounters() {
    const QString fields = QString::number(kind().fieldCount);
    const auto unit = [this](const QString& text, TwipsRect rect) {
        addLabel({}, Role::Unit, text, rect, type::S, false, ToLeft, Frame1);
    };
    add<Rule>({}, {150, 2280, 2700, 0}, Frame1);
    addLabel({}, Role::Heading, u"Selection"_s, {150, 2385, 2700, 270}, type::S, true, ToLeft, Frame1);
    LabNumRegSeleccion =
        addValue(u"LabNumRegSeleccion"_s, u"0"_s, {150, 2670, 870, 315}, u"No. of Selected Records"_s, Frame1);
    unit(u"R"_s, {1050, 2670, 180, 315});
    addValue(u"Label11"_s, fields, {1260, 2670, 435, 315}, u"No. of Fields per Selected Record"_s, Frame1);
    unit(u"F"_s, {1725, 2670, 150, 315});
    LabNumFiltros = addValue(u"LabNumFiltros"_s, u"0"_s, {1935, 2670, 585, 315}, u"No. of Selected Filters"_s, Frame1);
    unit(u"Fl"_s, {2550, 2670, 300, 315});
    addLabel({}, Role::Heading, u"Removed"_s, {150, 3120, 2700, 270}, type::S, true, ToLeft, Frame1);
    LabNumRegEliminados =
        addValue(u"LabNumRegEliminados"_s, u"0"_s, {150, 3405, 870, 315}, u"No. of Removed Records"_s, Frame1);
    unit(u"R"_s, {1050, 3405, 180, 315});
    addValue(u"Label14"_s, fields, {1260, 3405, 435, 315}, u"No. of Fields per Removed Record"_s, Frame1);
    unit(u"F"_s, {1725, 3405, 150, 315});
}

// "Back" stands under "Modify", where it can hold the focus that locked boxes hand on; a trip moves it into view.
void ShowEditScreen::addButtons() {
    BtnRegresar = addButton(u"BtnRegresar"_s, u"Back"_s, u"Back to \"Recording\""_s, {4800, 7230, 1050, 360});
    BtnModificar = addButton(u"BtnModificar"_s, u"Modify"_s, u"Modify the Record"_s, {4740, 7200, 1170, 420});
    BtnEliminar = addButton(u"BtnEliminar"_s, u"Remove"_s, u"Remove the Record"_s, {6060, 7200, 1170, 420});
    BtnGuardar = addButton(u"BtnGuardar"_s, u"Accept"_s, u"Accept Modify-Remove the Record"_s, {7380, 7200, 1170, 420});
    BtnDeshacer =
        addButton(u"BtnDeshacer"_s, u"Cancel"_s, u"Cancel Modify-Remove the Record"_s, {8700, 7200, 1170, 420});
    BtnRegresar->Click = [this] { BtnRegresar_Click(); };
    BtnModificar->Click = [this] { BtnModificar_Click(); };
    BtnEliminar->Click = [this] { BtnEliminar_Click(); };
    BtnGuardar->Click = [this] { BtnGuardar_Click(); };
    BtnDeshacer->Click = [this] { BtnDeshacer_Click(); };
    ValoresInicio();
}

void ShowEditScreen::connectBoxes() {
    for (int i = 0; i < fieldCount(); ++i) {
        if (box(i).line) {
            box(i).line->Change = [this, i] { changed(i); };
            box(i).line->GotFocus = [this, i] {
                if (Navegable)
                    BtnRegresar->setFocus(Qt::OtherFocusReason);
                else
                    box(i).line->selectWhole();
            };
        } else if (box(i).memo) {
            box(i).memo->GotFocus = [this] {
                if (Navegable) BtnRegresar->setFocus(Qt::OtherFocusReason);
            };
        }
    }
}

void ShowEditScreen::paintBehind(QPainter& painter) {
    paintBackground(painter, Background::ShowEdit, scale());
    paintSpine(painter, scale());
}

} // namespace zv::editors
