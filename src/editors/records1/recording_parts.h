// The six parts of a recording, in the order of their tabs: what each is called, where it stands, which keys choose it.
#pragma once

#include "platform/forms/scale.h"
#include "store/module1.h"
#include "store/schema.h"

namespace zv::editors {

inline constexpr int PartCount = 6;
/// Side of a part's picture in twips.
inline constexpr int PartPicture = 1935;

/// A label that shows a column of a part.
struct PartLabel {
    QStringView control, column;
    forms::TwipsRect rect;
    bool bold = false, centred = false;
};

/// The list of a part that may have several records, and the table of links behind it.
struct PartGroup {
    QStringView grid;
    forms::TwipsRect rect;
    int rowHeight = 0, columnWidth = 0;
    int twoLinesPitch = 0; ///< pitch of two lines in a row, 0 for rows of one line
    int type = 0;
    int limit = 0;
    int linkChannel = 0;
    QStringView linkTable, keyColumn, suffixColumn = {};
    store::FixedTable store::Module1::*ana = nullptr;
    store::FixedTable store::Module1::*mos = nullptr;
};

struct PartInfo {
    store::Kind kind;
    QStringView suffix; ///< in the names of LabX, ImagenX, BtnEliImaX
    QStringView word;   ///< caption of the heading
    QStringView importTip;
    forms::TwipsRect heading;
    int left, top; ///< anchor of the picture
    std::span<const PartLabel> labels = {};
    qint32 store::Module1::*ana = nullptr; ///< chosen key of a part that is one record
    qint32 store::Module1::*mos = nullptr;
    const PartGroup* group = nullptr;

    bool isGroup() const { return group != nullptr; }
};

/// By the number of the entity tab: composer, work, orchestra, conductor, performer, format.
const PartInfo& partInfo(int part);

inline constexpr int ComposerPart = 0, WorkPart = 1, OrchestraPart = 2, ConductorPart = 3, PerformerPart = 4,
                     FormatPart = 5;

/// A caption on the recording's screens.
struct PartCaption {
    QStringView text;
    forms::TwipsRect rect;
    bool left = false;
};
std::span<const PartCaption> partCaptions();

} // namespace zv::editors
