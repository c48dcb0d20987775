#include "editors/record_walk.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;

namespace {

/// Top and height of the frame, in twips.
constexpr int ExpandedTop = 3750, ExpandedHeight = 3870, ReducedTop = 4260, ReducedHeight = 2255;

} // namespace

RecordWalk::RecordWalk(shell::Screen& screen, store::Store& store, const store::KindInfo& kind,
                       const WalkLayout& layout)
    : screen_(screen), store_(store), kind_(kind) {
    addFrame(layout);
    addCounters(layout);
    addButtons(layout);
}

void RecordWalk::addFrame(const WalkLayout& layout) {
    const auto heading = [&](const QString& text, const TwipsRect& rect, int height) {
        screen_.addLabel({}, Role::Heading, text, rect, height, true, ToLeft, Frame1);
    };
    Frame1 = screen_.add<Frame>(u"Frame1"_s, layout.frame);
    heading(u"RECORDS"_s, layout.heading, type::S);
    BtnReducirAmpliar = screen_.addLabel(u"BtnReducirAmpliar"_s, Role::LabelButton, store::EtiReducir, layout.reduce,
                                         type::S, true, Qt::AlignCenter, Frame1);
    BtnReducirAmpliar->setToolTipText(u"Reduce-Extend"_s);
    BtnReducirAmpliar->Click = [this] { BtnReducirAmpliar_Click(); };
    const int left = layout.heading.Left, width = layout.frame.Width - 2 * left;
    for (const int top : layout.rules) screen_.add<Rule>({}, {left, top, width, 0}, Frame1);
    heading(u"Show"_s, layout.show, type::L);
    screen_.addLabel(u"LabOrden"_s, Role::Caption, u"Order"_s, layout.order, type::G, true, layout.orderAlignment,
                     Frame1);
    TxtOrden = screen_.add<TextBox>(u"TxtOrden"_s, layout.orderNumber, Frame1);
    TxtOrden->setMaxLength(5);
    TxtOrden->setAlignment(Qt::AlignCenter);
    TxtOrden->setText(u"1"_s);
    TxtOrden->setToolTipText(u"Order No. of the Record. Insert No."_s);
    TxtOrden->Change = [this] { TxtOrden_Change(); };
    TxtOrden->GotFocus = [this] { TxtOrden->selectWhole(); };
    HScroll = screen_.add<ScrollBar>(u"HScroll"_s, layout.bar, Frame1);
    HScroll->setDirection(Qt::Horizontal);
    HScroll->setMin(1);
    HScroll->setMax(1);
    HScroll->Change = [this] { HScroll_Change(); };
    screen_.addLabel({}, Role::Caption, u"Previous   -   Next"_s, layout.directions, layout.directionsType, true,
                     Qt::AlignCenter, Frame1);
}

void RecordWalk::addCounters(const WalkLayout& layout) {
    const QString fields = QString::number(kind_.fieldCount);
    const auto value = [&](const QString& name, const QString& text, const TwipsRect& rect, const QString& tip) {
        Label* made = screen_.addLabel(name, Role::Value, text, rect, layout.valueType, false, ToRight, Frame1);
        made->setToolTipText(tip);
        return made;
    };
    const auto heading = [&](const QString& text, const TwipsRect& rect) {
        screen_.addLabel({}, Role::Heading, text, rect, type::S, true, ToLeft, Frame1);
    };
    const auto unit = [&](const QString& text, const TwipsRect& rect) {
        screen_.addLabel({}, Role::Unit, text, rect, type::S, false, ToLeft, Frame1);
    };
    heading(u"Selection"_s, layout.selection);
    LabNumRegSeleccion = value(u"LabNumRegSeleccion"_s, u"0"_s, layout.selected, u"No. of Selected Records"_s);
    unit(u"R"_s, layout.selectedUnit);
    value(u"Label11"_s, fields, layout.selectedFields, u"No. of Fields per Selected Record"_s);
    unit(u"F"_s, layout.selectedFieldsUnit);
    LabNumFiltros = value(u"LabNumFiltros"_s, u"0"_s, layout.filters, u"No. of Selected Filters"_s);
    unit(u"Fl"_s, layout.filtersUnit);
    heading(u"Removed"_s, layout.removal);
    LabNumRegEliminados = value(u"LabNumRegEliminados"_s, u"0"_s, layout.removed, u"No. of Removed Records"_s);
    unit(u"R"_s, layout.removedUnit);
    value(u"Label14"_s, fields, layout.removedFields, u"No. of Fields per Removed Record"_s);
    unit(u"F"_s, layout.removedFieldsUnit);
}

// "Back" stands under "Modify", where it can hold the focus that locked boxes hand on; a trip moves it into view.
void RecordWalk::addButtons(const WalkLayout& layout) {
    BtnRegresar = screen_.addButton(u"BtnRegresar"_s, u"Back"_s, u"Back to \"Recording\""_s, layout.back);
    BtnRegresar->setType(layout.backType, true);
    BtnRegresar->setFocusPolicy(Qt::ClickFocus); // no stop of the tab key while nobody sees it
    BtnModificar = screen_.addButton(u"BtnModificar"_s, u"Modify"_s, u"Modify the Record"_s, layout.modify);
    BtnEliminar = screen_.addButton(u"BtnEliminar"_s, u"Remove"_s, u"Remove the Record"_s, layout.remove);
    BtnGuardar = screen_.addButton(u"BtnGuardar"_s, u"Accept"_s, u"Accept Modify-Remove the Record"_s, layout.accept);
    BtnDeshacer = screen_.addButton(u"BtnDeshacer"_s, u"Cancel"_s, u"Cancel Modify-Remove the Record"_s, layout.undo);
    ValoresInicio();
}

void RecordWalk::load() {
    LabNumRegEliminados->setCaption(QString::number(memory().ContEli));
    LabNumRegSeleccion->setCaption(QString::number(memory().ContSel));
    LabNumFiltros->setCaption(QString::number(memory().ContFil));
    if (memory().RedAmp) BtnReducirAmpliar_Click();
}

void RecordWalk::standOnRemembered() {
    rows().MoveLast();
    HScroll->setMax(rows().RecordCount());
    HScroll->setValue(std::min<qint32>(HScroll->Max(), memory().Posicion));
    rows().setAbsolutePosition(HScroll->Value() - 1);
}

void RecordWalk::HScroll_Change() {
    if (!Navegable || !hasRows()) return;
    TxtOrden->setText(QString::number(HScroll->Value()));
    rows().setAbsolutePosition(HScroll->Value() - 1);
    memory().Posicion = HScroll->Value();
    screen_.Carga();
}

void RecordWalk::TxtOrden_Change() {
    if (!Navegable) return;
    const QString text = TxtOrden->Text();
    const double v = numberOf(text).value_or(0);
    if (v >= 1 && v <= rows().RecordCount())
        HScroll->setValue(toInteger(v));
    else
        TxtOrden->setText({});
}

void RecordWalk::BtnReducirAmpliar_Click() {
    Frame1->setVisible(false);
    const bool reduce = BtnReducirAmpliar->Caption() == store::EtiReducir;
    memory().RedAmp = reduce;
    Frame1->setHeight(reduce ? ReducedHeight : ExpandedHeight);
    Frame1->setTop(reduce ? ReducedTop : ExpandedTop);
    BtnReducirAmpliar->setCaption(reduce ? store::EtiAmpliar : store::EtiReducir);
    Frame1->setVisible(true);
}

void RecordWalk::ValoresInicio() {
    BtnDeshacer->setEnabled(false);
    BtnGuardar->setEnabled(false);
    BtnModificar->setEnabled(true);
    BtnEliminar->setEnabled(true);
    markState();
}

void RecordWalk::lock(bool locked) {
    Navegable = locked;
    HScroll->setEnabled(locked);
    TxtOrden->setEnabled(locked);
    BtnDeshacer->setEnabled(!locked);
    BtnGuardar->setEnabled(!locked);
    markState();
}

void RecordWalk::startRemoval() {
    BtnModificar->setEnabled(false);
    BtnGuardar->setEnabled(true);
    BtnDeshacer->setEnabled(true);
    HScroll->setEnabled(false);
    TxtOrden->setEnabled(false);
    markState();
}

void RecordWalk::markState() {
    setInForce(BtnModificar, BtnGuardar->isEnabled() && !BtnEliminar->isEnabled());
    setInForce(BtnEliminar, BtnGuardar->isEnabled() && !BtnModificar->isEnabled());
}

void RecordWalk::stepAfterRemoval() {
    store::KindMemory& of = memory();
    if (!hasRows()) {
        // A filter's last row counts as the table's.
        of.Posicion = 1;
        of.Cont = 0;
        of.ContSel = 0;
        return;
    }
    if (of.Posicion != 1) --of.Posicion;
    --of.Cont;
    of.ContSel = rows().RecordCount();
    rows().setAbsolutePosition(std::min<qint32>(of.Posicion, of.ContSel) - 1);
}

void RecordWalk::showRemoval() {
    LabNumRegEliminados->setCaption(CStr(Val(LabNumRegEliminados->Caption()) + 1));
    memory().ContEli = toLong(Val(LabNumRegEliminados->Caption()));
    LabNumRegSeleccion->setCaption(QString::number(memory().ContSel));
}

bool RecordWalk::handFocusOn() {
    if (Navegable) BtnRegresar->setFocus(Qt::OtherFocusReason);
    return Navegable;
}

} // namespace zv::editors
