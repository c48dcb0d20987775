// The controls of the Select screens: what stands where, and which handler each one runs.
#include "platform/forms/decoration.h"
#include "platform/forms/picture.h"
#include "selection/select_screen.h"

namespace zv::selection {

using namespace Qt::StringLiterals;
using namespace forms;

SelectScreen::SelectScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind)
    : Screen(context, parent, name), kind_(kind) {
    auto* emblem = add<Picture>({}, {240, 240, 3000, 3000});
    emblem->setAccessibleName(kind.title.toString());
    emblem->setPicture({{}, kind.drawing.toString(), {3000, 3000}});
    LabBaseDatos = addLabel(u"LabBaseDatos"_s, Role::Heading, kind.title.toString(), {240, 3360, 3000, 420},
                            type::Database, true, Qt::AlignCenter);
    addCounters();
    BtnNueva =
        addButton(u"BtnNueva"_s, u"New"_s, u"New Selection"_s, {3555, 240, 1170, 420}, [this] { BtnNueva_Click(); });
    BtnTodo = addButton(u"BtnTodo"_s, u"All"_s, u"All Records"_s, {4875, 240, 1170, 420}, [this] { BtnTodo_Click(); });
    addFilterFrame();
    ListFiltros = add<ListBox>(u"ListFiltros"_s, {3555, 2580, 6315, 2355});
    ListFiltros->setType(type::G, false);
    ListFiltros->setToolTipText(u"Filters"_s);
    LabOpcionSQL = add<Memo>(u"LabOpcionSQL"_s, {3555, 5085, 6315, 1080});
    LabOpcionSQL->setType(type::G, false);
    LabOpcionSQL->setLocked(true);
    LabOpcionSQL->setFocusPolicy(Qt::StrongFocus); // long words are scrolled by the keys
    setOpenLook(LabOpcionSQL);
    LabOpcionSQL->setToolTipText(u"Filters"_s);
    LabOpcionSQL->setAccessibleName(u"Filters in Words"_s);
    addOrderFrame();
    BtnAceptar = addButton(u"BtnAceptar"_s, u"Accept"_s, u"Accept Selection"_s, {8700, 7200, 1170, 420},
                           [this] { BtnAceptar_Click(); });
}

void SelectScreen::addCounters() {
    auto* frame = add<Frame>({}, {240, 5310, 3000, 2310});
    const auto label = [&](Role role, const QString& text, TwipsRect rect, int height, bool bold, Qt::Alignment align) {
        return addLabel({}, role, text, rect, height, bold, align, frame);
    };
    const auto value = [&](const QString& name, const QString& tip, int top) {
        auto* made = addLabel(name, Role::Value, u"0"_s, {1140, top, 1140, 315}, type::M, false, ToRight, frame);
        made->setToolTipText(tip);
        return made;
    };
    label(Role::Heading, u"RECORDS"_s, {150, 105, 2700, 270}, type::S, true, ToLeft);
    add<Rule>({}, {150, 435, 2700, 0}, frame);
    label(Role::Caption, u"Total"_s, {150, 570, 900, 315}, type::G, true, ToLeft);
    LabNumRegTotal = value(u"LabNumRegTotal"_s, u"Total No. of Records"_s, 570);
    label(Role::Unit, u"R"_s, {2325, 570, 180, 315}, type::S, false, ToLeft);
    add<Rule>({}, {150, 1050, 2700, 0}, frame);
    label(Role::Caption, u"Selection"_s, {150, 1185, 900, 315}, type::G, true, ToLeft);
    LabNumReg = value(u"LabNumReg"_s, u"No. of Selected Records"_s, 1185);
    label(Role::Unit, u"R"_s, {2325, 1185, 180, 315}, type::S, false, ToLeft);
    LabNumRegFiltros = value(u"LabNumRegFiltros"_s, u"No. of Selected Filters"_s, 1635);
    label(Role::Unit, u"Fl"_s, {2325, 1635, 240, 315}, type::S, false, ToLeft);
}

void SelectScreen::addFilterFrame() {
    auto* frame = add<Frame>({}, {3555, 810, 6315, 1620});
    ComboCampo = add<Combo>(u"ComboCampo"_s, {150, 165, 2925, 345}, frame);
    ComboCampo->setToolTipText(u"Choose Field"_s);
    ComboCampo->Click = [this] { ComboCampo_Click(); };
    ComboCriterio = add<Combo>(u"ComboCriterio"_s, {3240, 165, 2925, 345}, frame);
    ComboCriterio->setToolTipText(u"Choose Criteria"_s);
    ComboCriterio->Click = [this] { ComboCriterio_Click(); };
    TxtValFiltro = add<TextBox>(u"TxtValFiltro"_s, {150, 630, 4695, 345}, frame);
    TxtValFiltro->setMaxLength(kind_.valueLimit);
    TxtValFiltro->setText(store::ValuePlaceholder.toString());
    TxtValFiltro->setToolTipText(u"Insert Value"_s);
    TxtValFiltro->Change = [this] { TxtValFiltro_Change(); };
    if (kind_.hashKeptOut) TxtValFiltro->KeyPress = [](QChar key) { return key != u'#'; };
    TxtValFiltro->GotFocus = [this] { TxtValFiltro_GotFocus(); };
    BtnAnadir = addButton(
        u"BtnAnadir"_s, u"Add..."_s, u"Add Filter"_s, {4995, 600, 1170, 405}, [this] { BtnAnadir_Click(); }, frame);
    BtnY = addButton(
        u"BtnY"_s, u"AND"_s, u"Intersection"_s, {150, 1065, 1170, 405}, [this] { join(u" AND "_s, *BtnY); }, frame);
    BtnO = addButton(
        u"BtnO"_s, u"OR"_s, u"Union"_s, {1470, 1065, 1170, 405}, [this] { join(u" OR "_s, *BtnO); }, frame);
    LabNumFiltros =
        addLabel(u"LabNumFiltros"_s, Role::Value, u"0"_s, {4995, 1110, 810, 315}, type::M, false, ToRight, frame);
    LabNumFiltros->setToolTipText(u"No. of Selected Filters"_s);
    addLabel({}, Role::Unit, u"Fl"_s, {5850, 1110, 300, 315}, type::S, false, ToLeft, frame);
}

void SelectScreen::addOrderFrame() {
    auto* frame = add<Frame>({}, {3555, 6315, 6315, 735});
    addLabel({}, Role::Caption, u"Order"_s, {150, 195, 735, 345}, type::G, true, ToLeft, frame);
    ComboCampoOrden = add<Combo>(u"ComboCampoOrden"_s, {990, 195, 2505, 345}, frame);
    ComboCampoOrden->setToolTipText(u"Choose Field"_s);
    ComboCampoOrden->Click = [this] { ComboCampoOrden_Click(); };
    ComboCriterioOrden = add<Combo>(u"ComboCriterioOrden"_s, {3660, 195, 2505, 345}, frame);
    ComboCriterioOrden->setToolTipText(u"Choose Criteria"_s);
    ComboCriterioOrden->Click = [this] { ComboCriterioOrden_Click(); };
}

void SelectScreen::fillLists() {
    fieldRows_ = offeredFields();
    orderRows_ = store::orderRows(kind_);
    directions_ = store::orderDirections(kind_);
    for (const store::FieldRow& row : fieldRows_) ComboCampo->AddItem(row.caption);
    ComboCampo->AddItem(store::FieldPlaceholder.toString());
    for (const store::CriterionRow& row : store::Criteria) ComboCriterio->AddItem(row.caption.toString());
    ComboCriterio->AddItem(store::CriterionPlaceholder.toString());
    for (const store::FieldRow& row : orderRows_) ComboCampoOrden->AddItem(row.caption);
    ComboCampoOrden->AddItem(store::FieldPlaceholder.toString());
    for (const store::CriterionRow& row : directions_) ComboCriterioOrden->AddItem(row.caption.toString());
}

void SelectScreen::paintBehind(QPainter& painter) {
    paintBackground(painter, Background::Select, scale());
    paintSpine(painter, scale());
}

} // namespace zv::selection
