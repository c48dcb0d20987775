// Twips to pixels: the one scale of the main window, and the rectangles of all controls in twips.
#pragma once

#include <QFont>
#include <QRect>
#include <QSize>

namespace zv::forms {

/// A rectangle in twips (1440 to the inch, 15 to a pixel at scale 1), relative to the screen or the frame around it.
struct TwipsRect {
    int Left = 0, Top = 0, Width = 0, Height = 0;
    friend bool operator==(const TwipsRect&, const TwipsRect&) = default;
};

/// Family of all text. Where it is missing, the family that stands in for it.
inline constexpr char16_t FontFamily[] = u"Comic Sans MS";
inline constexpr char16_t FontSubstitute[] = u"Comic Neue";

class Scale {
  public:
    explicit Scale(double value = 1.0) : value_(value) {}

    /// The scale of a main window with a client area of that size in pixels: quarter steps from 1 to 3.
    static double forClient(QSize pixels);

    double value() const { return value_; }
    void set(double value) { value_ = value; }

    /// Pixel of an edge.
    int px(double twips) const;
    /// Edges are rounded, not sizes, so that neighbours never drift apart.
    QRect rect(const TwipsRect& twips) const;
    /// Twips of a length in pixels.
    double twips(double pixels) const { return pixels * 15.0 / value_; }
    /// Width in pixels of a hairline, and of the line that marks the focus.
    int hairline() const;
    int focusLine() const;
    /// The font of a height in twips, at least 8 pixels.
    QFont font(int heightTwips, bool bold) const;

  private:
    double value_;
};

} // namespace zv::forms
