// The Add screen of a recording in small: six pictures with their labels, values and groups.
#include "report/mock_ups.h"

namespace zv::report::mock_ups {

namespace {

/// A picture of 1935 by 1935 with the label over it.
struct Tile {
    QStringView heading, placeholder;
    int left, top;
};

constexpr Tile Tiles[] = {
    {u"Composer", u"", 495, 390},
    {u"Work", u"obra", 2640, 390},
    {u"Orchestra", u"orquesta", 3735, 2700},
    {u"Conductor", u"director", 5925, 2700},
    {u"Performer", u"interprete", 5925, 5010},
    {u"Format", u"soporte", 8070, 3810},
};

constexpr forms::TwipsRect Values[] = {
    {1140, 2400, 2445, 240}, {1140, 2670, 2445, 240}, {1140, 2940, 600, 240},  {1800, 2940, 600, 240},
    {5220, 120, 4785, 240},  {5220, 390, 825, 240},   {6765, 390, 1515, 240},  {8820, 390, 570, 240},
    {9435, 390, 570, 240},   {5220, 660, 825, 240},   {6765, 660, 585, 240},   {8205, 660, 585, 240},
    {9180, 660, 825, 240},   {5220, 930, 4785, 240},  {6090, 1200, 450, 240},  {8895, 1200, 1110, 240},
    {8070, 5790, 1935, 240}, {8070, 6045, 1935, 240}, {8070, 6300, 1935, 240}, {8070, 6555, 1935, 240},
    {8070, 6810, 945, 240},  {9060, 6810, 945, 240},  {8070, 7065, 825, 240},  {9090, 7065, 915, 240},
    {8070, 7320, 1935, 240}, {7410, 4740, 450, 240},  {240, 3600, 3345, 1935},
};

constexpr Shape Others[] = {
    captionBar(1095, 2385, 4),
    captionBar(1095, 2655, 7),
    captionBar(1095, 2925, 5),
    captionBar(5175, 105, 4),
    captionBar(5175, 375, 2),
    captionBar(5175, 645, 4),
    captionBar(5175, 915, 5),
    headingBar(240, 3315, 5),
    {Draw::Grid, {5220, 1470, 4785, 855}},
    {Draw::Grid, {3735, 4725, 1935, 810}},
    {Draw::Grid, {8070, 2415, 1935, 930}},
    {Draw::Grid, {2295, 5685, 3420, 1380}},
    {Draw::Frame, {240, 5685, 1845, 1935}},
    headingBar(360, 5775, 4),
    captionBar(1965, 5775, 7),
    headingBar(360, 6180, 3),
    {Draw::Box, {360, 6435, 690, 300}},
    {Draw::Box, {1320, 6435, 450, 300}},
    headingBar(360, 6870, 4),
    {Draw::Box, {360, 7125, 690, 300}},
    {Draw::Box, {1320, 7125, 450, 300}},
    {Draw::Button, {5490, 7200, 1110, 420}, u"Save"},
    {Draw::Button, {6750, 7200, 1110, 420}, u"Undo"},
};

/// Ground, first row, pitch and rows of each grid that is filled.
struct Names {
    int left, top, width, pitch, rows;
};
constexpr Names Filled[] = {
    {5220, 1470, 2600, 285, 3}, {3735, 4725, 1500, 390, 1}, {8070, 2415, 1300, 450, 1}, {2295, 5685, 2300, 270, 4}};

} // namespace

Shapes addRecording() {
    constexpr int Side = 1935;
    Shapes shapes;
    for (const Tile& tile : Tiles) {
        const forms::TwipsRect picture{tile.left, tile.top, Side, Side};
        const bool performer = tile.heading == u"Performer", format = tile.heading == u"Format";
        shapes.push_back({format ? Draw::Missing : Draw::Button,
                          {tile.left, tile.top - 285, performer ? 1440 : Side, 270},
                          tile.heading});
        shapes.push_back({tile.placeholder.isEmpty() ? Draw::Sleeve : Draw::Placeholder, picture, tile.placeholder});
        if (tile.placeholder.isEmpty())
            shapes.push_back({Draw::Button, {tile.left + 570, tile.top + 1620, 795, 255}, u"Remove"});
    }
    for (const forms::TwipsRect& value : Values) shapes.push_back({Draw::Box, value});
    append(shapes, Others);
    for (const Names& names : Filled)
        for (int row = 0; row < names.rows; ++row)
            shapes.push_back(
                {Draw::Line,
                 {names.left + 90, names.top + names.pitch * row, names.width - 300 * (row % 2), names.pitch}});
    return shapes;
}

} // namespace zv::report::mock_ups
