// Where the boxes of each kind stand on its editors, in twips.
#pragma once

#include "platform/forms/scale.h"
#include "store/schema.h"

namespace zv::editors {

struct CaptionPlace {
    QStringView text;
    forms::TwipsRect rect;
    bool small = false; ///< long caption in small type
    bool left = false;  ///< aligned to the left, behind its box
};

struct BoxPlace {
    QStringView control;
    forms::TwipsRect rect;
};

struct EditorLayout {
    std::vector<CaptionPlace> captions;
    std::vector<BoxPlace> boxes;
};

/// The layout of a kind. A kind without one of its own gets a row for each box, captioned as in its list, the notes
/// last and as high as there is room.
EditorLayout editorLayout(const store::KindInfo& kind);

} // namespace zv::editors
