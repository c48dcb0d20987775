#include "listing/list_variants.h"

#include "platform/base/text.h"
#include "store/movements.h"

namespace zv::listing {

using namespace Qt::StringLiterals;
using store::Kind;

namespace {

/// All movements of a work with their times. gap: between a name and its time; joint: between movements.
QString movementsText(const QString& names, const QString& times, const QString& gap, const QString& joint) {
    if (!store::hasMovements(names)) return {};
    const std::vector<double> seconds = store::movementSeconds(times);
    QStringList lines;
    std::size_t i = 0;
    for (const QString& name : store::movementNames(names)) {
        const store::Duration time = store::splitSeconds(i < seconds.size() ? seconds[i] : 0);
        ++i;
        lines += name + gap + CStr(time.hours) + u':' + CStr(time.minutes) + u':' + CStr(time.seconds);
    }
    return lines.join(joint);
}

} // namespace

FormReg1LisObra::FormReg1LisObra(shell::Context& context, QWidget* parent, const QString& name)
    : ListScreen(context, parent, name, store::info(Kind::Obra)) {}

QString FormReg1LisObra::cellText(int item) {
    const QString stored = ListScreen::cellText(item);
    if (columnOf(item) == u"Movimientos")
        return movementsText(stored, Data().boundText(u"TiempoMovimientos"_s), u"   "_s, u"\r"_s);
    if (columnOf(item) == u"TiempoTotal") return store::clockText(store::splitSeconds(Val(stored)));
    return stored;
}

QString FormReg1LisObra::paperText(int item) {
    const QString stored = ListScreen::cellText(item);
    if (columnOf(item) == u"Movimientos")
        return movementsText(stored, Data().boundText(u"TiempoMovimientos"_s), u"  "_s, u" * "_s);
    const bool counted = columnOf(item) == u"TiempoTotal" || columnOf(item) == u"NumeroMovimientos";
    return counted && Val(stored) == 0 ? QString() : cellText(item);
}

FormReg1LisOrquesta::FormReg1LisOrquesta(shell::Context& context, QWidget* parent, const QString& name)
    : ListScreen(context, parent, name, store::info(Kind::Orquesta)) {}

} // namespace zv::listing
