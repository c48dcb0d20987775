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
    std::span<const CaptionPlace> captions;
    std::span<const BoxPlace> boxes;
};

/// The layout of a kind; empty for a kind whose editors are not built of rows of boxes.
EditorLayout editorLayout(store::Kind kind);

} // namespace zv::editors
