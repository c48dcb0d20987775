// The editors in small: the picture, the boxes, the counters, the groups.
#include "report/mock_ups.h"

namespace zv::report::mock_ups {

void append(Shapes& shapes, std::span<const Shape> more, int right, int down) {
    for (Shape shape : more) {
        shape.rect.Left += right;
        shape.rect.Top += down;
        shapes.push_back(shape);
    }
}

namespace {

constexpr int CaptionRight = 4665, BoxLeft = 4740, BoxWidth = 5130, Line = 315;
constexpr forms::TwipsRect PictureRect{240, 240, 3000, 3000};

constexpr Shape box(int left, int top, int width, int height = Line) { return {Draw::Box, {left, top, width, height}}; }
constexpr Shape caption(int top, int letters) { return captionBar(CaptionRight, top, letters); }
constexpr Shape line(int top, Draw draw = Draw::Box) { return {draw, {BoxLeft, top, BoxWidth, Line}}; }
constexpr Shape memo(int top, int foot = 7050) { return box(BoxLeft, top, BoxWidth, foot - top); }
constexpr Shape button(int left, QStringView text, Draw draw = Draw::Button) {
    return {draw, {left, 7200, 1170, 420}, text};
}

/// Counters of Add, in their frame at 240, 5985.
constexpr Shape AddCounters[] = {
    {Draw::Frame, {0, 0, 3000, 1635}}, headingBar(150, 90, 4), captionBar(2850, 105, 7),
    headingBar(150, 555, 3),           box(900, 555, 870),     box(2070, 555, 510),
    headingBar(150, 1035, 4),          box(900, 1035, 870),    box(2070, 1035, 510),
};

/// Upper counters of Show-Edit, which stay when the frame is reduced, and the lower ones.
constexpr Shape ShowCounters[] = {
    headingBar(150, 120, 7),
    headingBar(150, 660, 5),
    captionBar(1740, 660, 5),
    box(1830, 660, 1020, 330),
    {Draw::ScrollBar, {150, 1215, 2700, 345}},
    headingBar(600, 1620, 17),
};
constexpr Shape SelectionCounters[] = {
    headingBar(150, 2385, 9), box(150, 2670, 870), box(1260, 2670, 435), box(1935, 2670, 585),
    headingBar(150, 3120, 7), box(150, 3405, 870), box(1260, 3405, 435),
};

void appendPicture(Shapes& shapes, QStringView placeholder) {
    if (placeholder.isEmpty())
        shapes.push_back({Draw::Sleeve, PictureRect});
    else
        shapes.push_back({Draw::Placeholder, PictureRect, placeholder});
}

void appendAddParts(Shapes& shapes) {
    append(shapes, AddCounters, 240, 5985);
    append(shapes, {button(7380, u"Save"), button(8700, u"Undo")});
}

void appendShowFrame(Shapes& shapes, bool reduced) {
    const int top = reduced ? 4260 : 3750;
    shapes.push_back({Draw::Frame, {240, top, 3000, reduced ? 2255 : 3870}});
    append(shapes, ShowCounters, 240, top);
    if (!reduced) append(shapes, SelectionCounters, 240, top);
    shapes.push_back({Draw::Button, {2190, top + 105, 900, 300}, reduced ? u"Extend" : u"Reduce"});
}

void appendShowParts(Shapes& shapes, bool reduced) {
    appendShowFrame(shapes, reduced);
    append(shapes, {button(4740, u"Modify"), button(6060, u"Remove"), button(7380, u"Accept", Draw::ButtonOff),
                    button(8700, u"Cancel", Draw::ButtonOff)});
}

void appendPerson(Shapes& shapes, Draw surname, int foot = 7050) {
    append(shapes, {caption(240, 4), line(240), caption(645, 7), line(645, surname), caption(1050, 5),
                    box(BoxLeft, 1050, 720), box(5580, 1050, 720), caption(1455, 5), memo(1455, foot)});
}

/// The name of the record, seen under a picture of its own only.
void appendName(Shapes& shapes) { append(shapes, {headingBar(900, 3310, 16)}); }

void appendBack(Shapes& shapes) { shapes.push_back({Draw::Button, {3390, 7230, 1050, 360}, u"Back"}); }

void appendGroup(Shapes& shapes) {
    append(shapes, {headingBar(BoxLeft, 4815, 17), captionBar(9870, 4815, 18)});
    shapes.push_back({Draw::Grid, {4740, 5115, 3810, 1935}});
    for (int row = 0; row < 3; ++row) {
        const int top = 5115 + 300 * row;
        shapes.push_back({Draw::Line, {4830, top + 15, 1700 + 300 * (row % 2), 270}});
        shapes.push_back({Draw::Rule, {4740, top + 300, 3810, 0}});
    }
    shapes.push_back({Draw::Button, {8700, 5115, 1170, 420}, u"Add"});
    shapes.push_back({Draw::Button, {8700, 5625, 1170, 420}, u"Remove"});
}

Shapes showing(bool reduced) {
    Shapes shapes;
    appendPicture(shapes, {});
    appendName(shapes);
    appendPerson(shapes, Draw::Box);
    appendShowParts(shapes, reduced);
    return shapes;
}

Shapes modifying(bool fromRecording) {
    Shapes shapes;
    appendPicture(shapes, {});
    shapes.push_back({Draw::Button, {1290, 2850, 900, 300}, u"Remove"});
    appendName(shapes);
    appendPerson(shapes, Draw::Box);
    appendShowFrame(shapes, fromRecording);
    append(shapes, {button(4740, u"Modify", Draw::ButtonInForce), button(6060, u"Remove", Draw::ButtonOff),
                    button(7380, u"Accept"), button(8700, u"Cancel")});
    if (fromRecording) appendBack(shapes);
    return shapes;
}

} // namespace

Shapes addComposerEmpty() {
    Shapes shapes;
    appendPicture(shapes, u"compositor");
    appendPerson(shapes, Draw::Missing);
    appendAddParts(shapes);
    return shapes;
}

Shapes addComposerWithPicture() {
    Shapes shapes;
    appendPicture(shapes, {});
    shapes.push_back({Draw::Button, {1290, 2850, 900, 300}, u"Remove"});
    appendPerson(shapes, Draw::Box);
    appendAddParts(shapes);
    return shapes;
}

Shapes addOrchestra() {
    Shapes shapes;
    appendPicture(shapes, u"orquesta");
    append(shapes, {caption(240, 9), line(240, Draw::Missing), caption(645, 8), line(645, Draw::Missing),
                    caption(1050, 5), line(1050, Draw::Missing), caption(1455, 6), line(1455), caption(1860, 4),
                    box(BoxLeft, 1860, 720), caption(2265, 5), memo(2265)});
    appendAddParts(shapes);
    return shapes;
}

Shapes addWorkWide() {
    static constexpr Shape Fields[] = {
        caption(240, 6),
        line(240),
        caption(645, 4),
        line(645),
        caption(1050, 3),
        box(4740, 1050, 1245),
        captionBar(6765, 1050, 6),
        box(6840, 1050, 3030),
        caption(1455, 4),
        box(4740, 1455, 720),
        captionBar(5775, 1455, 2),
        box(5850, 1455, 660),
        captionBar(7455, 1455, 8),
        box(7530, 1455, 930),
        captionBar(8775, 1455, 2),
        box(8850, 1455, 1020),
        caption(1860, 5),
        box(4740, 1860, 585),
        box(5400, 1860, 585),
        captionBar(6765, 1860, 6),
        box(6840, 1860, 3030),
        headingBar(4740, 2295, 9),
        box(5745, 2295, 480, 270),
        captionBar(8640, 2295, 13),
        box(8730, 2295, 1140, 270),
        box(3570, 2595, 4845),
        box(8415, 2595, 390),
        box(8805, 2595, 390),
        box(9195, 2595, 390),
        {Draw::Button, {9600, 2595, 270, 630}, u"><"},
        {Draw::Button, {3570, 2925, 6015, 300}, u"Add"},
        {Draw::Grid, {3555, 3240, 6315, 1830}},
        caption(5220, 5),
        memo(5220),
    };
    Shapes shapes;
    appendPicture(shapes, u"obra");
    append(shapes, Fields);
    for (int row = 0; row < 4; ++row) {
        const int top = 3240 + 300 * row;
        shapes.push_back({Draw::Line, {3645, top + 15, 2600 - 350 * (row % 3), 270}});
        for (const int left : {8415, 8805, 9195}) shapes.push_back({Draw::Line, {left + 120, top + 15, 200, 270}});
        shapes.push_back({Draw::Rule, {3555, top + 300, 6315, 0}});
    }
    appendAddParts(shapes);
    return shapes;
}

Shapes showComposer() { return showing(false); }
Shapes showComposerReduced() { return showing(true); }

Shapes modifyComposer() { return modifying(false); }
Shapes modifyComposerFromRecording() { return modifying(true); }

Shapes showConductorWithGroup() {
    Shapes shapes;
    appendPicture(shapes, u"director");
    appendPerson(shapes, Draw::Box, 4665);
    appendGroup(shapes);
    appendShowParts(shapes, true);
    appendBack(shapes);
    return shapes;
}

Shapes showPerformerWithGroup() {
    Shapes shapes;
    appendPicture(shapes, u"interprete");
    append(shapes,
           {caption(240, 4), line(240), caption(645, 7), line(645), caption(1050, 12), line(1050), caption(1455, 5),
            box(BoxLeft, 1455, 720), box(5580, 1455, 720), caption(1860, 5), memo(1860, 4665)});
    appendGroup(shapes);
    shapes.push_back(box(8700, 6735, 1170));
    appendShowParts(shapes, false);
    return shapes;
}

} // namespace zv::report::mock_ups
