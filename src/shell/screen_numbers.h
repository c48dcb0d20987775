// Numbers of the screens: 0 the presentation, 1 to 56 the four functions of the 14 kinds, then report, help and about.
#pragma once

namespace zv::shell {

enum class Function { Add, Select, ShowEdit, ListPrint };

inline constexpr int PresentationNumber = 0;
inline constexpr int FirstWorkingNumber = 15;
inline constexpr int ReportNumber = 57;
inline constexpr int GeneralHelpNumber = 58;
inline constexpr int SelectHelpNumber = 62;
inline constexpr int AboutNumber = 68;
inline constexpr int ScreenCount = 69;

/// Number of the screen of an entity tab (0 to 6) of Records I or II (1 or 2).
constexpr int screenNumber(int records, Function function, int tab) {
    return (records == 1 ? 1 : 29) + 7 * static_cast<int>(function) + tab;
}

} // namespace zv::shell
