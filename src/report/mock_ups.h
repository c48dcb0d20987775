// The drawings of the help pages: the screens' own places and sizes, as plain shapes.
#pragma once

#include "report/mock_up.h"
#include <span>

namespace zv::report::mock_ups {

// Editors: mock_ups_editors.cpp.
Shapes addComposerEmpty();
Shapes addComposerWithPicture();
Shapes addOrchestra();
Shapes addWorkWide();
Shapes showComposer();
Shapes showComposerReduced();
Shapes modifyComposer();
Shapes modifyComposerFromRecording();
Shapes showConductorWithGroup();
Shapes showPerformerWithGroup();

// mock_ups_recording.cpp.
Shapes addRecording();

// The other screens, and paper: mock_ups_lists.cpp.
Shapes selectComposer();
Shapes listOfTexts();
Shapes listOfPictures();
Shapes report();
Shapes printedPage();

// What they are made of.

/// Width of the bar for a text of so many letters, in twips.
constexpr int barWidth(int letters) { return 105 * letters; }
/// A caption that ends at `right`, a heading that begins at `left`; top: that of its row.
constexpr Shape captionBar(int right, int top, int letters) {
    return {Draw::Bar, {right - barWidth(letters), top, barWidth(letters), 270}};
}
constexpr Shape headingBar(int left, int top, int letters) { return {Draw::Bar, {left, top, barWidth(letters), 270}}; }

void append(Shapes& shapes, std::span<const Shape> more, int right = 0, int down = 0);
inline void append(Shapes& shapes, std::initializer_list<Shape> more) {
    append(shapes, std::span(more.begin(), more.size()));
}

} // namespace zv::report::mock_ups
