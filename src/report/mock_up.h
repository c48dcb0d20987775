// The small drawings on the help pages: a screen made of plain shapes, and badges on what the text speaks of.
#pragma once

#include "platform/forms/placed.h"
#include <QStringView>
#include <vector>

namespace zv::report {

enum class Draw {
    Box,     ///< text box, memo, value
    Missing, ///< box of a missing identifier
    Frame,   ///< frame around counters
    Bar,     ///< a caption or a heading; the bar lies in the middle of the height
    Line,    ///< a written line: a bar of ink
    Button,  ///< with its caption
    ButtonInForce,
    ButtonOff,
    Placeholder, ///< drawing of a kind, by its name
    Sleeve,      ///< a picture of the collector's
    ScrollBar,
    Grid, ///< ground of a grid
    GridHead,
    NumberColumn,
    Rule,
    ZebraDark,
    Paper,
    Title, ///< navy bar of a printed page
};

/// One shape, in the twips of the screen that the drawing shows.
struct Shape {
    Draw draw;
    forms::TwipsRect rect;
    QStringView text = {};
};
using Shapes = std::vector<Shape>;

/// A letter on the drawing: the middle of its disc, in the twips of the screen.
struct Badge {
    char16_t letter;
    int x, y;
};

class MockUp : public forms::Control<QWidget> {
  public:
    explicit MockUp(QWidget* parent) : Control(parent) { setAccessibleName(QStringLiteral("Drawing of a Screen")); }

    void set(Shapes shapes, std::vector<Badge> badges);
    void clearHandlers() override {}

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    QRect pixels(const forms::TwipsRect& rect) const;
    void paint(QPainter& painter, const Shape& shape) const;
    void paintButton(QPainter& painter, const Shape& shape) const;
    void paintSleeve(QPainter& painter, const QRect& rect) const;
    void paintBadge(QPainter& painter, const Badge& badge) const;

    Shapes shapes_;
    std::vector<Badge> badges_;
};

} // namespace zv::report
