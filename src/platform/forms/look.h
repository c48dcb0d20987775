// The palette of all screens, the sizes of type, and the roles by which the style knows how a widget is drawn.
#pragma once

#include <QColor>
#include <QWidget>

namespace zv::forms {

/// Colours by what they are for.
namespace colour {
inline constexpr QColor Panel{0xE0, 0xE0, 0xE0};
inline constexpr QColor Missing{0xFF, 0xFF, 0xFF};
inline constexpr QColor Ink{0x16, 0x16, 0x1C};
inline constexpr QColor Navy{0x00, 0x00, 0x80};
inline constexpr QColor Accent{0x8C, 0x1D, 0x2F};
inline constexpr QColor Soft{0x55, 0x58, 0x6A};
inline constexpr QColor Disabled{0x72, 0x74, 0x7E};
inline constexpr QColor Edge{0x7A, 0x7A, 0x86};
inline constexpr QColor Edge2{0xA9, 0xA9, 0xB3};
inline constexpr QColor Edge3{0xBF, 0xBF, 0xC8};
inline constexpr QColor Light{0xF6, 0xF6, 0xF8};
inline constexpr QColor FaceTop{0xF3, 0xF3, 0xF5}, FaceFoot{0xD6, 0xD6, 0xDC};
inline constexpr QColor PressedTop{0xC6, 0xC6, 0xCE}, PressedFoot{0xF3, 0xF3, 0xF5};
inline constexpr QColor HoverTop{0xFF, 0xFF, 0xFF}, HoverFoot{0xE4, 0xE4, 0xEA};
inline constexpr QColor Cell{0xED, 0xED, 0xEF};
inline constexpr QColor GridHead{0xCF, 0xCF, 0xD6};
inline constexpr QColor NumberColumn{0xC0, 0xC0, 0xC0};
inline constexpr QColor ButtonFace{0xF0, 0xF0, 0xF0};
inline constexpr QColor GridLine{0xC9, 0xC9, 0xD0};
inline constexpr QColor ListPanel{0xD6, 0xD6, 0xDB};
inline constexpr QColor ZebraLight{0xE6, 0xE6, 0xE9}, ZebraDark{0xDA, 0xDA, 0xDF};
inline constexpr QColor Motif{0xD2, 0xD2, 0xD9};
inline constexpr QColor TabTop{0xD6, 0xD6, 0xDC}, TabFoot{0xBE, 0xBE, 0xC8};
inline constexpr QColor TabBand1{0xD3, 0xD3, 0xD9}, TabBand2{0xD9, 0xD9, 0xDE};
inline constexpr QColor BackdropTop{0x2A, 0x31, 0x60}, BackdropFoot{0x12, 0x15, 0x2C};
inline constexpr QColor Tip{0xF7, 0xF4, 0xE4};
} // namespace colour

/// Heights of type in twips.
namespace type {
inline constexpr int XS = 150, S = 165, G = 180, M = 195, L = 225, Database = 255, XL = 300, XXL = 780;
} // namespace type

/// What a widget is on a screen; the style draws by it.
enum class Role {
    None,
    TextBox,     // QLineEdit, QPlainTextEdit
    Value,       // label that shows a number or a text in a box
    Detail,      // value label of the recording: weaker border
    Figure,      // number in a table: no border
    Caption,     // label beside a box: navy, bold
    Heading,     // navy, bold
    Unit,        // soft
    Name,        // the name under a picture: opaque panel
    LabelButton, // label that acts as a button
    Button,      // QPushButton
    Frame,       // etched
    Rule,        // one etched line
    Panel,       // LabFondo of a list screen
    Picture,     // picture with its own border
    PageImage,   // picture of a list page: no border
    Combo,
    List,
    Grid,
    ScrollBar,
    Progress
};

inline void setRole(QWidget* widget, Role role) { widget->setProperty("zvRole", static_cast<int>(role)); }
inline Role roleOf(const QWidget* widget) {
    return widget ? static_cast<Role>(widget->property("zvRole").toInt()) : Role::None;
}

/// A button that stands for the state that the screen is in.
inline void setInForce(QWidget* widget, bool inForce) {
    widget->setProperty("zvInForce", inForce);
    widget->update();
}
inline bool inForce(const QWidget* widget) { return widget && widget->property("zvInForce").toBool(); }

/// The narrow bar without end buttons: set on a scroll bar, or on the list, grid or memo that holds it.
inline void setSlim(QWidget* widget, bool slim = true) { widget->setProperty("zvSlim", slim); }

/// A read-only memo that looks like an editable one, since it is never anything else.
inline void setOpenLook(QWidget* widget, bool open = true) { widget->setProperty("zvOpenLook", open); }

/// Height of a list's rows in twips (255 unless told).
inline void setRowHeight(QWidget* list, int twips) { list->setProperty("zvRowHeight", twips); }

/// Cells of a grid may hold two lines, `pitch` twips from line to line, though their rows are low.
inline void setTwoLines(QWidget* grid, int pitch) { grid->setProperty("zvPitch", pitch); }

} // namespace zv::forms
