// Numbers in text: what the logic calls IsNumeric, Val, CStr, and its assignments to 16- and 32-bit variables.
#pragma once

#include <QString>
#include <optional>

namespace zv {

/// Whether the whole text reads as a number: sign at either end, commas anywhere before the point, exponent with e or
/// d, currency sign, parentheses for a negative, &H and &O prefixes, blanks and tabs outside.
bool IsNumeric(QStringView text);

/// The number at the head of a text, 0 where there is none. Blanks, tabs and line feeds are dropped everywhere.
/// Error 6 if it is too large, 13 for a type suffix after a fraction.
double Val(QStringView text);

/// The number of a text that reads as one and is not too large, else nothing.
std::optional<double> numberOf(QStringView text);

/// A text as a number, by the forms of IsNumeric. Error 13 if it is none, 6 if it is too large.
double CDbl(QStringView text);

/// A number as text, without a leading blank, 15 significant digits: "0.5", "-3", "1E+20".
QString CStr(double number);

/// As CStr with a blank before a number of 0 or more, and no zero before the point: " .5", "-3".
QString Str(double number);

/// The text without its leading and trailing blanks (character 32 only).
QString Trim(QStringView text);

/// A 16-bit number, rounded half to even. Error 6 if it does not fit.
qint16 toInteger(double number);

/// A 32-bit number, rounded half to even. Error 6 if it does not fit.
qint32 toLong(double number);

} // namespace zv
