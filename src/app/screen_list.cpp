#include "app/screen_list.h"

#include "editors/add_screen.h"
#include "editors/show_edit_screen.h"
#include "listing/list_screen.h"
#include "report/form_presentacion.h"
#include "selection/select_screen.h"

namespace zv::app {

using namespace Qt::StringLiterals;
using shell::Context;
using shell::Function;
using shell::Screen;
using store::Kind;

namespace {

/// A screen that is not built yet: an empty panel under its own name and number.
class EmptyScreen : public Screen {
  public:
    using Screen::Screen;
};

template <class S>
shell::ScreenEntry entry(const QString& name) {
    return {name, [](Context& context, QWidget* parent, const QString& as) { return new S(context, parent, as); }};
}

/// The screen of a kind that its pattern draws by the kind's description.
template <class Pattern>
shell::ScreenEntry patternEntry(const QString& name, const store::KindInfo& kind) {
    return {name, [&kind](Context& context, QWidget* parent, const QString& as) -> Screen* {
                return new Pattern(context, parent, as, kind);
            }};
}

/// The kinds whose four screens are those of the patterns.
bool isPlain(Kind kind) {
    switch (kind) {
    case Kind::Compositor:
    case Kind::Agrupacion: return true;
    default: return false;
    }
}

shell::ScreenEntry kindEntry(const store::KindInfo& kind, Function function) {
    constexpr QStringView abbreviations[] = {u"Ana", u"Sel", u"Mos", u"Lis"};
    const QString name =
        u"FormReg%1"_s.arg(kind.form) + abbreviations[static_cast<int>(function)].toString() + kind.table.toString();
    if (!isPlain(kind.kind)) return entry<EmptyScreen>(name);
    switch (function) {
    case Function::Add: return patternEntry<editors::AddScreen>(name, kind);
    case Function::Select: return patternEntry<selection::SelectScreen>(name, kind);
    case Function::ShowEdit: return patternEntry<editors::ShowEditScreen>(name, kind);
    case Function::ListPrint: break;
    }
    return patternEntry<listing::ListScreen>(name, kind);
}

} // namespace

std::vector<shell::ScreenEntry> screenList() {
    std::vector<shell::ScreenEntry> screens;
    screens.push_back(entry<report::FormPresentacion>(u"FormPresentacion"_s));
    for (int records = 1; records <= 2; ++records)
        for (int function = 0; function < 4; ++function)
            for (int tab = 0; tab < 7; ++tab)
                screens.push_back(kindEntry(store::kindOfTab(records, tab), static_cast<Function>(function)));
    for (const QString& name :
         {u"FormInforme"_s, u"FormAyudaGeneral"_s, u"FormAyudaAnadir1"_s, u"FormAyudaAnadir2"_s, u"FormAyudaAnadir3"_s,
          u"FormAyudaSeleccionar"_s, u"FormAyudaMostrar1"_s, u"FormAyudaMostrar2"_s, u"FormAyudaMostrar3"_s,
          u"FormAyudaListar"_s, u"FormAyudaListar2"_s, u"FormAcercaDe"_s})
        screens.push_back(entry<EmptyScreen>(name));
    return screens;
}

} // namespace zv::app
