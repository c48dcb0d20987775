// Texts in the messages of failed tests, as a person reads them.
#pragma once

#include <QString>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
