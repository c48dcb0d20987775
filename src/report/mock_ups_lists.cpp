// Select, List, the report and a printed page in small.
#include "report/mock_ups.h"
#include "report/report_table.h"

namespace zv::report::mock_ups {

namespace {

constexpr Shape box(int left, int top, int width, int height) { return {Draw::Box, {left, top, width, height}}; }
constexpr Shape button(int left, int top, int width, int height, QStringView text) {
    return {Draw::Button, {left, top, width, height}, text};
}
constexpr Shape written(int left, int top, int width) { return {Draw::Line, {left, top, width, 270}}; }
/// A horizontal or, with a height, a vertical line.
constexpr Shape rule(int left, int top, int width, int height = 0) { return {Draw::Rule, {left, top, width, height}}; }

/// What stands under every list.
constexpr Shape ListControls[] = {
    headingBar(165, 6480, 13),
    {Draw::Grid, {165, 6720, 2430, 960}},
    button(2730, 6720, 1080, 450, u"List"),
    button(2730, 7230, 1080, 450, u"Print"),
    headingBar(3960, 6480, 11),
    {Draw::ScrollBar, {3960, 6750, 1965, 330}},
    box(5985, 6750, 420, 330),
    button(3960, 7230, 1080, 450, u"Zoom 5"),
    headingBar(5190, 7140, 7),
    box(5190, 7410, 1215, 270),
    {Draw::Frame, {6555, 6555, 3600, 1125}},
    headingBar(6675, 6600, 7),
    headingBar(6675, 6900, 8),
    headingBar(6675, 7275, 4),
    box(7545, 6900, 780, 300),
    box(8565, 6900, 480, 300),
    box(9285, 6900, 480, 300),
    box(7545, 7275, 780, 300),
    box(8565, 7275, 480, 300),
    box(9285, 7275, 480, 300),
};

void appendListControls(Shapes& shapes) {
    append(shapes, ListControls);
    for (int row = 0; row < 4; ++row) {
        shapes.push_back({Draw::Paper, {225, 6760 + 225 * row, 150, 150}});
        shapes.push_back(written(450, 6700 + 225 * row, 900 + 150 * (row % 3)));
    }
}

/// The grid of a list from `left` on, with its heading, columns and rows.
void appendGrid(Shapes& shapes, int left, std::span<const int> columns, int rowHeight) {
    constexpr int Top = 150, Head = 300, Foot = 6450, Right = 9885, Number = 495;
    shapes.push_back({Draw::Grid, {left, Top, Right - left, Foot - Top}});
    shapes.push_back({Draw::GridHead, {left, Top, Right - left, Head}});
    shapes.push_back({Draw::NumberColumn, {left, Top + Head, Number, Foot - Top - Head}});
    for (int top = Top + Head; top < Foot; top += rowHeight) {
        shapes.push_back(rule(left, top, Right - left));
        int text = left + Number, turn = top / rowHeight;
        for (const int width : columns) {
            shapes.push_back(written(text + 90, top, width * (55 + 10 * (turn++ % 4)) / 100 - 90));
            text += width;
        }
    }
    int edge = left + Number;
    for (const int width : columns) {
        shapes.push_back(headingBar(edge + 90, Top + 15, 5));
        shapes.push_back(rule(edge, Top, 0, Foot - Top));
        edge += width;
    }
    shapes.push_back({Draw::ScrollBar, {Right, Top, 240, Foot - Top}});
}

constexpr Shape SelectParts[] = {
    {Draw::Placeholder, {240, 240, 3000, 3000}, u"compositor"},
    headingBar(1150, 3435, 11),
    {Draw::Frame, {240, 5310, 3000, 2310}},
    headingBar(390, 5415, 7),
    headingBar(390, 5880, 5),
    box(1380, 5880, 1140, 315),
    headingBar(390, 6495, 8),
    box(1380, 6495, 1140, 315),
    box(1380, 6945, 1140, 315),
    button(3555, 240, 1170, 420, u"New"),
    button(4875, 240, 1170, 420, u"All"),
    {Draw::Frame, {3555, 810, 6315, 1620}},
    box(3705, 975, 2925, 345),
    box(6795, 975, 2925, 345),
    box(3705, 1440, 4695, 345),
    button(8550, 1410, 1170, 405, u"Add..."),
    button(3705, 1875, 1170, 405, u"AND"),
    button(5025, 1875, 1170, 405, u"OR"),
    box(8550, 1920, 810, 315),
    {Draw::Grid, {3555, 2580, 6315, 2355}},
    box(3555, 5085, 6315, 1080),
    {Draw::Frame, {3555, 6315, 6315, 735}},
    captionBar(4440, 6530, 5),
    box(4545, 6510, 2505, 345),
    box(7215, 6510, 2505, 345),
    button(8700, 7200, 1170, 420, u"Accept"),
};

} // namespace

Shapes selectComposer() {
    Shapes shapes(std::begin(SelectParts), std::end(SelectParts));
    // Two filters of three rows each, and what joins them.
    for (const auto& [row, width] : {std::pair{0, 700}, {1, 1200}, {2, 600}, {3, 500}, {4, 600}, {5, 1000}, {6, 900}})
        shapes.push_back(written(row == 3 ? 4000 : 3645, 2600 + 255 * row, width));
    for (int row = 0; row < 2; ++row) shapes.push_back(written(3645, 5130 + 255 * row, 5700 - 2500 * row));
    return shapes;
}

Shapes listOfTexts() {
    static constexpr int Columns[] = {1500, 1500, 900, 900, 4395};
    Shapes shapes{{Draw::Frame, {165, 120, 9990, 6360}}};
    appendGrid(shapes, 195, Columns, 300);
    appendListControls(shapes);
    return shapes;
}

Shapes listOfPictures() {
    static constexpr int Columns[] = {1500, 1500, 1500, 1500, 1500};
    static constexpr QStringView Pictures[] = {u"", u"compositor", u"", u"grabacion"};
    constexpr int RowHeight = 1500;
    Shapes shapes{{Draw::Frame, {165, 120, 9990, 6360}}, {Draw::GridHead, {195, 150, 1485, 300}}};
    shapes.push_back(headingBar(680, 165, 5));
    appendGrid(shapes, 1695, Columns, RowHeight);
    int top = 450;
    for (const QStringView picture : Pictures) {
        shapes.push_back({picture.isEmpty() ? Draw::Sleeve : Draw::Placeholder, {195, top, 1485, 1485}, picture});
        top += RowHeight;
    }
    appendListControls(shapes);
    return shapes;
}

Shapes report() {
    Shapes shapes{{Draw::Frame, {165, 735, 9990, 6045}}, {Draw::GridHead, {180, 750, 9960, 585}}};
    append(shapes, {headingBar(3660, 270, 28), headingBar(285, 6060, 3), headingBar(285, 6405, 12)});
    for (int row = 0; row < ReportRowCount; ++row) {
        const int top = 1380 + 330 * row;
        if (row % 2) shapes.push_back({Draw::ZebraDark, {180, top, 9960, 330}});
        const auto letters = store::info(ReportRows[row].kind).title.size();
        shapes.push_back(headingBar(285, top + 30, static_cast<int>(letters)));
    }
    for (const ReportColumn& column : ReportColumns)
        for (int row = 0; row <= ReportRowCount; ++row) {
            const int top = row < ReportRowCount ? 1380 + 330 * row : 6060, right = column.left + column.width - 45;
            shapes.push_back(written(right - 200, top + 30, 200));
        }
    shapes.push_back(rule(180, 6030, 9960));
    for (const ReportGroup& group : ReportGroups) {
        const int letters = static_cast<int>(group.heading.size());
        shapes.push_back(headingBar(group.left() + (group.width() - barWidth(letters)) / 2, 850, letters));
        shapes.push_back(rule(group.left() - 52, 735, 0, 6045));
    }
    for (const ReportProduct& product : ReportProducts)
        shapes.push_back(box(ReportGroups[product.group].left(), 6420, ReportGroups[product.group].width(), 300));
    return shapes;
}

Shapes printedPage() {
    // The height of the drawing, less a margin; the sides as those of the sheet.
    constexpr int Height = 7275, Width = Height * 2970 / 4200, Left = (10320 - Width) / 2, Text = Left + 560;
    Shapes shapes{{Draw::Paper, {Left, 240, Width, Height}}, {Draw::Title, {Text, 950, 2200, 250}}};
    append(shapes, {written(Left + Width - 900, 450, 400), written(Text, 1350, 3700), written(Text, 1620, 3100),
                    written(Text, 1890, 3400), written(Text, 2160, 2800)});
    for (int block = 0; block < 3; ++block) {
        const int top = 2750 + 1500 * block;
        shapes.push_back({Draw::Sleeve, {Text, top, 1100, 1100}});
        for (int row = 0; row < 4; ++row)
            shapes.push_back(written(Text + 1250, top - 60 + 280 * row, row == 3 ? 1500 - 300 * block : 2650));
    }
    return shapes;
}

} // namespace zv::report::mock_ups
