// The controls of the List screens: what stands where, and which handler each one runs.
#include "listing/list_screen.h"
#include <QWheelEvent>

namespace zv::listing {

using namespace Qt::StringLiterals;
using namespace forms;

namespace {

constexpr int PictureCount = 21;

} // namespace

ListScreen::ListScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind)
    : Screen(context, parent, name), kind_(kind) {
    for (std::size_t i = 0; i < kind.fields.size(); ++i)
        if (!kind.fields[i].listed.isEmpty()) itemFields_.push_back(static_cast<int>(i));
    CamposElegidos.assign(std::size_t(store::listItemCount(kind)), false);
    addGrid();
    addChoice();
    addBars();
    addCounters();
}

void ListScreen::addGrid() {
    LabFondo = add<Label>(u"LabFondo"_s, {165, 120, 9990, 6360});
    LabFondo->setLook(Role::Panel);
    LineImagen = add<Rule>(u"LineImagen"_s, {195, 150, 1485, 0});
    Label16 = addLabel(u"Label16"_s, Role::Heading, u"Image"_s, {195, 165, 1485, 270}, type::S, true, Qt::AlignCenter);
    Label16->setBackColor(colour::GridHead);
    Tabla = add<FlexGrid>(u"Tabla"_s, {1695, 150, 8430, 6300});
    Tabla->setType(type::G, false);
    Tabla->setDefaultColWidth(1500);
    Tabla->setColumnsResizable(true);
    Tabla->setNeverScrollsDown();
    Tabla->setFirstColumnFixed();
    Tabla->setAccessibleName(u"Listed Records"_s);
    Tabla->Wheel = [this](int steps) {
        if (!VScroll->isVisible() || !VScroll->isEnabled()) return;
        VScroll->setValue(std::clamp(VScroll->Value() - steps, VScroll->Min(), VScroll->Max()));
    };
    for (int i = 0; i < PictureCount; ++i) {
        auto* picture = add<Picture>(u"Imagen%1"_s.arg(i), {195, 450, 285, 285});
        setRole(picture, Role::PageImage);
        picture->setAccessibleName(Label16->Caption());
        picture->setVisible(false);
        Imagen.push_back(picture);
    }
    auto* hidden = add<Picture>(u"ImagenTmp"_s, {0, 0, 1005, 1005});
    hidden->setVisible(false);
    VScroll = add<ScrollBar>(u"VScroll"_s, {9885, 150, 240, 6300});
    VScroll->setDirection(Qt::Vertical);
    VScroll->setAccessibleName(u"Pages"_s);
    VScroll->setMin(1);
    VScroll->setMax(32767);
    VScroll->setSingleStep(1);
    VScroll->setPageStep(5);
    VScroll->Change = [this] { VScroll_Change(); };
}

void ListScreen::addChoice() {
    addLabel(u"Label10"_s, Role::Heading, u"Choose Fields"_s, {165, 6525, 2430, 195}, type::XS, true, ToLeft);
    List = add<CheckList>(u"List"_s, {165, 6720, 2430, 960});
    List->setType(type::G, false);
    List->setToolTipText(u"Fields"_s);
    BtnListar = addButton(u"BtnListar"_s, u"List"_s, u"List the Records"_s, {2730, 6720, 1080, 450},
                          [this] { BtnListar_Click(); });
    BtnImprimir = addButton(u"BtnImprimir"_s, u"Print"_s, u"Print the Records"_s, {2730, 7230, 1080, 450},
                            [this] { BtnImprimir_Click(); });
}

void ListScreen::addBars() {
    addLabel({}, Role::Heading, u"Expand Rows"_s, {3960, 6525, 1950, 195}, type::XS, true, ToLeft);
    HScroll = add<ScrollBar>(u"HScroll"_s, {3960, 6750, 1965, 330});
    HScroll->setDirection(Qt::Horizontal);
    HScroll->setMin(1);
    HScroll->setMax(20);
    HScroll->setSingleStep(1);
    HScroll->setPageStep(3);
    HScroll->Change = [this] { HScroll_Change(); };
    LabZoom = addLabel(u"LabZoom"_s, Role::Value, u"1"_s, {5985, 6750, 420, 330}, type::M, false, Qt::AlignCenter);
    LabZoom->setToolTipText(u"Zoom No."_s);
    BtnAImagen =
        addButton(u"BtnAImagen"_s, u"Zoom 5"_s, u"Zoom 5"_s, {3960, 7230, 1080, 450}, [this] { HScroll->setValue(5); });
    addLabel({}, Role::Heading, u"Process"_s, {5190, 7200, 1215, 195}, type::XS, true, ToLeft);
    Progress = add<ProgressBar>(u"ProgressBar"_s, {5190, 7410, 1215, 270});
}

void ListScreen::addCounters() {
    auto* frame = add<Frame>({}, {6555, 6555, 3600, 1125});
    const auto label = [&](const QString& name, Role role, const QString& text, TwipsRect rect, int height, bool bold,
                           Qt::Alignment align) {
        return addLabel(name, role, text, rect, height, bold, align, frame);
    };
    const auto value = [&](const QString& name, const QString& tip, TwipsRect rect) {
        Label* made = label(name, Role::Value, u"0"_s, rect, type::M, false, ToRight);
        made->setToolTipText(tip);
        return made;
    };
    label(u"Label3"_s, Role::Heading, u"RECORDS"_s, {120, 60, 1200, 225}, type::S, true, ToLeft);
    label(u"Label1"_s, Role::Heading, u"- Zarvelia -"_s, {1950, 60, 1530, 225}, type::XS, true, ToRight);
    const auto units = [&](int top, const QString& r, const QString& f, const QString& fl) {
        label(r, Role::Unit, u"R"_s, {1800, top, 165, 300}, type::S, false, ToLeft);
        label(f, Role::Unit, u"F"_s, {2520, top, 150, 300}, type::S, false, ToLeft);
        label(fl, Role::Unit, u"Fl"_s, {3240, top, 240, 300}, type::S, false, ToLeft);
    };
    label(u"LabSeleccion"_s, Role::Caption, u"Selection"_s, {120, 345, 840, 300}, type::G, true, ToLeft);
    LabNumRegSeleccion = value(u"LabNumRegSeleccion"_s, u"No. of Selected Records"_s, {990, 345, 780, 300});
    LabCampos = value(u"LabCampos"_s, u"No. of Fields per Selected Record"_s, {2010, 345, 480, 300});
    LabCampos->setCaption(QString::number(kind_.fieldCount));
    LabNumFiltros = value(u"LabNumFiltros"_s, u"No. of Selected Filters"_s, {2730, 345, 480, 300});
    units(345, u"LabR"_s, u"LabC"_s, u"LabF"_s);
    label(u"Label4"_s, Role::Caption, u"List"_s, {120, 720, 840, 300}, type::G, true, ToLeft);
    LabNumRegSeleccion1 = value(u"LabNumRegSeleccion1"_s, u"No. of Listed Records"_s, {990, 720, 780, 300});
    LabNumCampos = value(u"LabNumCampos"_s, u"No. of Fields per Listed Record"_s, {2010, 720, 480, 300});
    LabNumFiltros1 = value(u"LabNumFiltros1"_s, u"No. of Listed Filters"_s, {2730, 720, 480, 300});
    units(720, {}, {}, {});
}

} // namespace zv::listing
