// What the opening screen and the screen about the program both say of it.
#pragma once

#include "shell/contract/screen.h"

namespace zv::report {

/// A line of the credits: its height is its font's affair, its place the screen's.
struct Credit {
    QStringView text;
    forms::TwipsRect rect;
    int typeHeight;
};

/// Where the logo, the program's name, the rule and the lines stand on a screen.
struct CreditsPlan {
    forms::TwipsRect logo, name, rule;
    std::vector<Credit> lines;
    Qt::Alignment alignment;
};

inline constexpr QStringView Product = u"Zarvelia", Edition = u"English Version";
/// The release without its last number.
inline constexpr QStringView Version = [] {
    constexpr std::u16string_view Release = u"Version " ZV_VERSION;
    return QStringView(Release.substr(0, Release.rfind(u'.')));
}();
inline constexpr QStringView Maker = u"Brumatec", WebAddress = u"www.brumatec.example";
inline constexpr QStringView MailAddress = u"info@brumatec.example", Year = u"2026";

void addCredits(forms::Form& form, const CreditsPlan& plan);

} // namespace zv::report
