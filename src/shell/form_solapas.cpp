#include "shell/form_solapas.h"

#include "platform/forms/decoration.h"
#include <QApplication>

namespace zv::shell {

using namespace Qt::StringLiterals;
using forms::TabControl;

namespace {

using Tabs = std::vector<std::pair<QString, int>>;

const Tabs Level1 = {{u"  Records I   "_s, 1650},
                     {u"  Records II   "_s, 1650},
                     {u"  Report   "_s, 1500},
                     {u"  Help   "_s, 1350},
                     {u"  About...   "_s, 1500}};
const Tabs Functions = {{u"  Add  (New)   "_s, 1800},
                        {u"  Select   "_s, 1500},
                        {u"   Show - Edit   "_s, 1875},
                        {u"  List - Print   "_s, 1875}};
const Tabs Help = {{u"  General   "_s, 1425},
                   {u"  Add  (New)   "_s, 1800},
                   {u"  Select   "_s, 1500},
                   {u"   Show - Edit   "_s, 1875},
                   {u"  List - Print   "_s, 1875}};
const std::array<Tabs, 2> Entities = {Tabs{{u"Composer "_s, 1305},
                                           {u"Work "_s, 1050},
                                           {u"Orchestra - Ensemble "_s, 2130},
                                           {u"Conductor "_s, 1380},
                                           {u"Performer "_s, 1380},
                                           {u"Format "_s, 1170},
                                           {u"Recording "_s, 1380}},
                                      Tabs{{u"Instrument "_s, 1410},
                                           {u"Grouping "_s, 1290},
                                           {u"Event "_s, 1095},
                                           {u"Scenario "_s, 1275},
                                           {u"Publication - Video "_s, 2010},
                                           {u"Station "_s, 1185},
                                           {u"http://www. "_s, 1440}}};
constexpr QStringView FunctionNames[] = {u"Anadir", u"Seleccionar", u"Mostrar", u"Listar"};

int widthOf(const Tabs& tabs) {
    int width = 0;
    for (const auto& tab : tabs) width += tab.second;
    return width;
}

/// Rows of tabs, by twips from the top of the strip.
constexpr int RowTop[] = {0, 405, 810};

} // namespace

FormSolapas::FormSolapas(Context& context, QWidget* window, std::vector<ScreenEntry> screens)
    : Form(window, context.scale, u"FormSolapas"_s, ScreenWidth, 1275), context_(context), window_(window),
      screens_(std::move(screens)) {
    const auto row = [this](const QString& name, const QString& spoken, int level, const Tabs& tabs, int first) {
        auto* control = add<TabControl>(name, {120, RowTop[level], widthOf(tabs), 405});
        control->setType(forms::type::G, false);
        control->setTabs(tabs, first);
        control->setAccessibleName(spoken);
        return control;
    };
    // A row of tabs goes by the tab that brings it up.
    const auto word = [](const Tabs& tabs, int tab) { return tabs[std::size_t(tab)].first.simplified(); };
    TabNivel1 = row(u"TabNivel1"_s, u"Screens"_s, 0, Level1, 0);
    TabRegistros1 = row(u"TabRegistros1"_s, word(Level1, 0), 1, Functions, 2);
    TabRegistros2 = row(u"TabRegistros2"_s, word(Level1, 1), 1, Functions, 2);
    TabAyuda = row(u"TabAyuda"_s, word(Level1, 3), 1, Help, 0);
    for (int records = 0; records < 2; ++records)
        for (int f = 0; f < 4; ++f) {
            TabControl* control =
                row(u"TabReg%1"_s.arg(records + 1) + FunctionNames[f].toString(),
                    word(Level1, records) + u", "_s + word(Functions, f), 2, Entities[std::size_t(records)], 0);
            control->Click = [this, records, f] { entityClick(records + 1, static_cast<Function>(f)); };
            TabEntidad[std::size_t(records)][std::size_t(f)] = control;
        }
    TabNivel1->Click = [this] { TabNivel1_Click(); };
    TabRegistros1->Click = [this] { TabRegistros1_Click(); };
    TabRegistros2->Click = [this] { TabRegistros2_Click(); };
    TabAyuda->Click = [this] { TabAyuda_Click(); };
    showTabRows();
}

void FormSolapas::Form_Load() {
    SolapaRegistros1 = SolapaRegistros2 = 0;
    AyudaAnadir = 59;
    AyudaMostrar = 63;
    AyudaListar = 66;
    VentanaMostrandose = FirstWorkingNumber;
}

void FormSolapas::showTabRows() {
    const int level1 = TabNivel1->Tab();
    TabRegistros1->setVisible(level1 == 0);
    TabRegistros2->setVisible(level1 == 1);
    TabAyuda->setVisible(level1 == 3);
    for (int records = 0; records < 2; ++records)
        for (int f = 0; f < 4; ++f) {
            const TabControl* function = records == 0 ? TabRegistros1 : TabRegistros2;
            TabEntidad[std::size_t(records)][std::size_t(f)]->setVisible(level1 == records && function->Tab() == f);
        }
    update();
}

void FormSolapas::MostrarFormulario(int number) {
    VentanaMostrandose = static_cast<qint16>(number);
    if (number < 0 || number >= ScreenCount) return;
    show(number);
}

void FormSolapas::show(int number) {
    const double W = scale().twips(window_->width()), H = scale().twips(window_->height());
    Screen*& screen = loaded_[number];
    if (!screen) {
        const ScreenEntry& entry = screens_.at(std::size_t(number));
        screen = entry.make(context_, window_, entry.name);
    }
    Screen* shown = screen;
    const bool alone = number == PresentationNumber;
    const int below = alone ? 0 : Height();
    const int left = static_cast<int>((W - shown->Width()) / 2);
    const int top = static_cast<int>((H - (shown->Height() + below)) / 2);
    shown->setPosition(left, top);
    shown->Show();
    if (!alone) {
        setPosition(static_cast<int>((W - Width()) / 2), top + shown->Height());
        Show();
        VentanaMostrandose = static_cast<qint16>(number);
    }
    window_->update();
}

void FormSolapas::OcultarFormulario() {
    const auto found = loaded_.find(VentanaMostrandose);
    if (found == loaded_.end()) return;
    Screen* screen = found->second;
    loaded_.erase(found);
    screen->Unload();
}

void FormSolapas::CargaFormulario() {
    if (Screen* screen = loadedScreen(VentanaMostrandose)) screen->Carga();
}

void FormSolapas::unloadAll() {
    while (!loaded_.empty()) {
        Screen* screen = loaded_.begin()->second;
        loaded_.erase(loaded_.begin());
        screen->Unload();
    }
}

Screen* FormSolapas::loadedScreen(int number) const {
    const auto found = loaded_.find(number);
    return found == loaded_.end() ? nullptr : found->second;
}

void FormSolapas::applyScale() {
    Form::applyScale();
    for (const auto& [number, screen] : loaded_) screen->applyScale();
}

QRect FormSolapas::block() const {
    const Screen* screen = loadedScreen(VentanaMostrandose);
    if (!screen) return {};
    return VentanaMostrandose == PresentationNumber ? screen->geometry() : screen->geometry().united(geometry());
}

void FormSolapas::BloquearSolapas(bool disable) {
    if (context_.store.module1.SolapasFijas) return;
    for (TabControl* tabs : {TabNivel1, TabRegistros1, TabRegistros2}) tabs->setEnabled(!disable);
    for (const auto& records : TabEntidad)
        for (TabControl* tabs : records) tabs->setEnabled(!disable);
    update();
}

void FormSolapas::run(const std::function<void()>& work) {
    QWidget* focus = running_ == 0 ? QApplication::focusWidget() : nullptr;
    auto* tabs = dynamic_cast<TabControl*>(focus);
    ++running_;
    setEnabled(false);
    work();
    --running_;
    setEnabled(true);
    showTabRows();
    // The strip lost the focus while it was disabled; after a click on a tab it belongs to that tab.
    if (tabs && tabs->isVisible() && tabs->isEnabled()) tabs->setFocus(Qt::OtherFocusReason);
}

void FormSolapas::entityClick(int records, Function function) {
    run([&] {
        const int tab = TabEntidad[std::size_t(records - 1)][std::size_t(function)]->Tab();
        OcultarFormulario();
        if (records == 1) SolapaRegistros1 = static_cast<qint16>(tab);
        MostrarFormulario(screenNumber(records, function, tab));
        CargaFormulario();
        if (records == 2) SolapaRegistros2 = static_cast<qint16>(tab);
    });
}

void FormSolapas::functionClick(int records) {
    run([&] {
        const int function = (records == 1 ? TabRegistros1 : TabRegistros2)->Tab();
        const int wanted = records == 1 ? SolapaRegistros1 : SolapaRegistros2;
        TabControl* entity = TabEntidad[std::size_t(records - 1)][std::size_t(function)];
        // The same tab would fire nothing, so its handler is called.
        if (entity->Tab() != wanted)
            entity->setTab(wanted);
        else
            entityClick(records, static_cast<Function>(function));
    });
}

void FormSolapas::TabNivel1_Click() {
    run([&] {
        switch (TabNivel1->Tab()) {
        case 0: TabRegistros1_Click(); break;
        case 1: TabRegistros2_Click(); break;
        case 2:
            OcultarFormulario();
            MostrarFormulario(ReportNumber);
            break;
        case 3: TabAyuda_Click(); break;
        default:
            OcultarFormulario();
            MostrarFormulario(AboutNumber);
            break;
        }
    });
}

void FormSolapas::TabAyuda_Click() {
    run([&] {
        OcultarFormulario();
        const int numbers[] = {GeneralHelpNumber, AyudaAnadir, SelectHelpNumber, AyudaMostrar, AyudaListar};
        MostrarFormulario(numbers[TabAyuda->Tab()]);
    });
}

void FormSolapas::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const int level1 = TabNivel1->Tab();
    const auto rows = level1 < 2    ? forms::StripRows::Three
                      : level1 == 3 ? forms::StripRows::Two
                                    : forms::StripRows::One;
    forms::paintStrip(painter, rows, !TabNivel1->isEnabled() && running_ == 0, scale());
}

} // namespace zv::shell
