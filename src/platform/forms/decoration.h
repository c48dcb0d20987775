// Drawn decoration: staves, clefs and notes, the backdrop of the main window, the spine of a screen, tabs.
#pragma once

#include "platform/forms/look.h"
#include "platform/forms/scale.h"
#include <QPainter>
#include <vector>

namespace zv::forms {

/// Gradient, light and staves of the main window. block: the screens' rectangle, which gets its shadow (may be empty).
/// All of it changes with size, block and scale only: keep it in a pixmap.
void paintBackdrop(QPainter& painter, const QRect& client, const QRect& block, const Scale& scale);

/// A treble clef whose staff has its five lines `gap` apart around `centre` (pixels), its left edge at x.
void paintClef(QPainter& painter, double x, double centre, double gap, const QColor& colour);

/// A staff of five lines with or without a clef and some notes, all in twips.
/// Notes, if any: half gaps above the middle line, the first one `first` twips from the left, then every `step` twips;
/// a tune of its own is taken, spread over the staff, where none is given.
struct Staff {
    int Left, Width, Centre, Gap;
    bool clef = true, notes = true;
    std::vector<int> tune = {};
    double first = 0, step = 0;
};
void paintStaff(QPainter& painter, const Staff& staff, const QColor& colour, const Scale& scale);

/// Light and dark edge of a screen of that size in pixels, and its ground.
void paintScreenEdge(QPainter& painter, const QRect& screen, const Scale& scale);

/// Ground of the opening screen: rounded panel with two frames inside. The corners are left as they are.
void paintCard(QPainter& painter, const QRect& card, const Scale& scale);

/// Five hairlines at the right of a screen broken by "- Zarvelia -" reading upwards.
void paintSpine(QPainter& painter, const Scale& scale);

/// What stands behind the left column of an editor or a Select screen.
enum class Background { Add, ShowEdit, Select };
void paintBackground(QPainter& painter, Background background, const Scale& scale);

/// How one tab is drawn. rect: the tab with its gap to the next, from the top of its row to its foot, in pixels. The
/// line under the row lies within its foot; the tab covers it.
struct TabLook {
    QRect rect;
    QString caption; // drawn trimmed
    bool chosen = false, hovered = false, focused = false, enabled = true;
};
void paintTab(QPainter& painter, const TabLook& tab, const Scale& scale);

/// Bands, lines, motif staff and padlock of the strip, 10320 x 1275 twips, behind its tabs.
enum class StripRows { Three, Two, One };
void paintStrip(QPainter& painter, StripRows rows, bool locked, const Scale& scale);

/// A drawing of the program's own, rendered sharp at that size and in its own proportions: "compositor", "logo", "icon"
/// and so on. Null for a name that is none.
QPixmap drawing(const QString& name, QSize pixels, double devicePixelRatio = 1.0);

} // namespace zv::forms
