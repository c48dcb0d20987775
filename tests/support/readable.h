// Texts in the failures of tests as a person reads them.
#pragma once

#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }
inline void PrintTo(const QStringList& texts, std::ostream* out) { *out << texts.join(u"\n").toStdString(); }
