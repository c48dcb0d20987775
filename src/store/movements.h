// The movements of a work as they are stored: two parallel lists in one text each, every element ended by "#". Names in
// one, seconds with a leading blank in the other; a work without movements holds the single "#" in both.
#pragma once

#include <QString>
#include <vector>

namespace zv::store {

inline constexpr QChar MovementEnd = u'#';

/// A time in hours, minutes and seconds.
struct Duration {
    double hours = 0, minutes = 0, seconds = 0;
};

/// Splits seconds. Below 59 they stay seconds; hours have no upper bound.
Duration splitSeconds(double seconds);

/// Three groups joined by ":", each of at least two digits: "01:07:05".
QString clockText(const Duration& duration);

/// Whether a stored text of names holds any movement.
bool hasMovements(const QString& names);

/// The names of a stored text. What stands behind the last "#" is no name.
std::vector<QString> movementNames(const QString& names);

/// The seconds of a stored text, one for each "#". Every other character counts as the digit that its value is.
std::vector<double> movementSeconds(const QString& times);

} // namespace zv::store
