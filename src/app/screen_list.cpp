#include "app/screen_list.h"

#include "editors/add_screen.h"
#include "editors/records1/group_show_edit.h"
#include "editors/records1/orchestra_screens.h"
#include "editors/records1/recording_add.h"
#include "editors/records1/recording_show_edit.h"
#include "editors/records1/work_screens.h"
#include "editors/show_edit_screen.h"
#include "listing/list_variants.h"
#include "listing/recording_list.h"
#include "report/form_acerca_de.h"
#include "report/form_informe.h"
#include "report/form_presentacion.h"
#include "report/help_page.h"
#include "selection/recording_select.h"
#include "selection/select_variants.h"

namespace zv::app {

using namespace Qt::StringLiterals;
using shell::Context;
using shell::Screen;
using store::Kind;

namespace {

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

/// Show-Edit of a kind whose records are gathered into groups.
class PlainGroupShowEdit : public editors::GroupShowEdit {
  public:
    PlainGroupShowEdit(Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind)
        : GroupShowEdit(context, parent, name, kind, editors::groupInfo(kind.kind)) {}
};

/// The four screens of a kind by function. A plain kind has those of the patterns.
std::array<shell::ScreenEntry, 4> kindEntries(const store::KindInfo& kind) {
    const auto named = [&kind](QStringView function) {
        return u"FormReg%1"_s.arg(kind.form) + function.toString() + kind.table.toString();
    };
    const QString add = named(u"Ana"), select = named(u"Sel"), show = named(u"Mos"), list = named(u"Lis");
    switch (kind.kind) {
    case Kind::Obra:
        return {entry<editors::FormReg1AnaObra>(add), entry<selection::FormReg1SelObra>(select),
                entry<editors::FormReg1MosObra>(show), entry<listing::FormReg1LisObra>(list)};
    case Kind::Orquesta:
        return {entry<editors::FormReg1AnaOrquesta>(add), entry<selection::FormReg1SelOrquesta>(select),
                entry<editors::FormReg1MosOrquesta>(show), entry<listing::FormReg1LisOrquesta>(list)};
    case Kind::Director:
    case Kind::Interprete:
        return {patternEntry<editors::AddScreen>(add, kind), patternEntry<selection::SelectScreen>(select, kind),
                patternEntry<PlainGroupShowEdit>(show, kind), patternEntry<listing::ListScreen>(list, kind)};
    case Kind::Grabacion:
        return {entry<editors::FormReg1AnaGrabacion>(add), entry<selection::FormReg1SelGrabacion>(select),
                entry<editors::FormReg1MosGrabacion>(show), entry<listing::FormReg1LisGrabacion>(list)};
    default:
        return {patternEntry<editors::AddScreen>(add, kind), patternEntry<selection::SelectScreen>(select, kind),
                patternEntry<editors::ShowEditScreen>(show, kind), patternEntry<listing::ListScreen>(list, kind)};
    }
}

} // namespace

std::vector<shell::ScreenEntry> screenList() {
    std::vector<shell::ScreenEntry> screens;
    screens.push_back(entry<report::FormPresentacion>(u"FormPresentacion"_s));
    for (int records = 1; records <= 2; ++records)
        for (int function = 0; function < 4; ++function)
            for (int tab = 0; tab < 7; ++tab)
                screens.push_back(kindEntries(store::kindOfTab(records, tab))[std::size_t(function)]);
    screens.push_back(entry<report::FormInforme>(u"FormInforme"_s));
    for (const report::HelpPage& page : report::helpPages())
        screens.push_back(
            {page.form.toString(), [&page](Context& context, QWidget* parent, const QString& as) -> Screen* {
                 return new report::HelpScreen(context, parent, as, page);
             }});
    screens.push_back(entry<report::FormAcercaDe>(u"FormAcercaDe"_s));
    return screens;
}

} // namespace zv::app
