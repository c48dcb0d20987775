#include "listing/work_texts.h"

#include "platform/base/text.h"
#include "store/movements.h"
#include <QStringList>

namespace zv::listing {

using namespace Qt::StringLiterals;

namespace {

/// All movements of a work with their times. gap: between a name and its time; joint: between movements.
QString movementsText(const WorkText& stored, const QString& gap, const QString& joint) {
    const QString names = stored(u"Movimientos");
    if (!store::hasMovements(names)) return {};
    const std::vector<double> seconds = store::movementSeconds(stored(u"TiempoMovimientos"));
    QStringList lines;
    std::size_t i = 0;
    for (const QString& name : store::movementNames(names)) {
        const store::Duration time = store::splitSeconds(i < seconds.size() ? seconds[i] : 0);
        ++i;
        lines += name + gap + CStr(time.hours) + u':' + CStr(time.minutes) + u':' + CStr(time.seconds);
    }
    return lines.join(joint);
}

bool isYear(QStringView column) { return column == u"Fecha1" || column == u"Fecha2"; }

} // namespace

QString workCell(QStringView column, const WorkText& stored) {
    if (column == u"Movimientos") return movementsText(stored, u"   "_s, u"\r"_s);
    const QString text = stored(column);
    if (column == u"TiempoTotal") return store::clockText(store::splitSeconds(Val(text)));
    return isYear(column) && Val(text) == 0 ? QString() : text;
}

QString workOnPaper(QStringView column, const WorkText& stored) {
    if (column == u"Movimientos") return movementsText(stored, u"  "_s, u" * "_s);
    const bool counted = column == u"TiempoTotal" || column == u"NumeroMovimientos";
    return counted && Val(stored(column)) == 0 ? QString() : workCell(column, stored);
}

} // namespace zv::listing
