// The kinds whose screens are those of the patterns, with the fields that the suites of the families fill and read.
// A further kind is a further line.
#pragma once

#include "shell/screen_numbers.h"
#include "store/schema.h"
#include <QString>
#include <gtest/gtest.h>
#include <map>

namespace zv::test {

struct Member {
    store::Kind kind;
    QString first;                ///< caption of the first field
    QString text, textColumn;     ///< caption and column of the identifier
    QString number, numberColumn; ///< the same of a year

    const store::KindInfo& info() const { return store::info(kind); }
    QString table() const { return info().table.toString(); }
    int screen(shell::Function function) const { return shell::screenNumber(info().form, function, info().tab); }
    /// Name of the form of a function: "Ana", "Sel", "Mos" or "Lis".
    QString form(const char* function) const {
        return QStringLiteral("FormReg%1%2").arg(info().form).arg(QLatin1String(function)) + table();
    }
};

inline const std::vector<Member>& members() {
    static const std::vector<Member> all = {
        {store::Kind::Compositor, QStringLiteral("Name"), QStringLiteral("Surname"), QStringLiteral("Apellidos"),
         QStringLiteral("Date 1"), QStringLiteral("Fecha1")},
        {store::Kind::Interprete, QStringLiteral("Name"), QStringLiteral("Surname"), QStringLiteral("Apellidos"),
         QStringLiteral("Date 2"), QStringLiteral("Fecha2")},
        {store::Kind::Agrupacion, QStringLiteral("Entity"), QStringLiteral("Entity"), QStringLiteral("Entidad"),
         QStringLiteral("Date"), QStringLiteral("Fecha")},
        {store::Kind::Internet, QStringLiteral("Title"), QStringLiteral("Title"), QStringLiteral("Titulo"),
         QStringLiteral("Date"), QStringLiteral("Fecha")},
    };
    return all;
}

/// A kind alone, for the suites that bring the words of its fields themselves.
inline const Member& memberOf(store::Kind kind) {
    static std::map<store::Kind, Member> made;
    return made.try_emplace(kind, Member{kind, {}, {}, {}, {}, {}}).first->second;
}

inline std::string memberName(const ::testing::TestParamInfo<Member>& member) {
    return member.param.table().toStdString();
}

inline void PrintTo(const Member& member, std::ostream* out) { *out << member.table().toStdString(); }

} // namespace zv::test
