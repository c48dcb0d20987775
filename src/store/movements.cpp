#include "store/movements.h"

#include "platform/base/text.h"
#include <cmath>

namespace zv::store {

using namespace Qt::StringLiterals;

namespace {

QString group(double value) {
    const QString digits = CStr(value);
    return value < 10 ? u"0"_s + digits : digits;
}

} // namespace

Duration splitSeconds(double seconds) {
    Duration split;
    if (seconds >= 3600) {
        split.hours = std::floor(seconds / 3600);
        seconds = std::abs(split.hours * 3600 - seconds);
    }
    if (seconds >= 59) {
        split.minutes = std::floor(seconds / 60);
        seconds = std::abs(split.minutes * 60 - seconds);
    }
    split.seconds = seconds;
    return split;
}

QString clockText(const Duration& d) { return group(d.hours) + u':' + group(d.minutes) + u':' + group(d.seconds); }

bool hasMovements(const QString& names) { return !names.isEmpty() && !names.startsWith(MovementEnd); }

std::vector<QString> movementNames(const QString& names) {
    std::vector<QString> list;
    qsizetype from = 0;
    for (qsizetype end = names.indexOf(MovementEnd); end >= 0; end = names.indexOf(MovementEnd, from)) {
        list.push_back(names.mid(from, end - from));
        from = end + 1;
    }
    return list;
}

std::vector<double> movementSeconds(const QString& times) {
    std::vector<double> list;
    QString digits;
    for (const QChar c : times) {
        if (c != MovementEnd) {
            digits += CStr(std::abs(Val(QStringView(&c, 1))));
            continue;
        }
        list.push_back(Val(digits));
        digits.clear();
    }
    return list;
}

} // namespace zv::store
