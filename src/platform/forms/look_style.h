// The style that draws every control of the screens, boxes and dialogs after the palette, at the window's scale.
#pragma once

#include "platform/forms/look.h"
#include "platform/forms/scale.h"
#include <QProxyStyle>

namespace zv::forms {

class LookStyle : public QProxyStyle {
  public:
    /// The scale outlives the style; a change of it takes effect at the next layout.
    explicit LookStyle(const Scale& scale);

    void drawPrimitive(PrimitiveElement, const QStyleOption*, QPainter*, const QWidget*) const override;
    void drawControl(ControlElement, const QStyleOption*, QPainter*, const QWidget*) const override;
    void drawComplexControl(ComplexControl, const QStyleOptionComplex*, QPainter*, const QWidget*) const override;
    QRect subElementRect(SubElement, const QStyleOption*, const QWidget*) const override;
    QRect subControlRect(ComplexControl, const QStyleOptionComplex*, SubControl, const QWidget*) const override;
    int pixelMetric(PixelMetric, const QStyleOption*, const QWidget*) const override;
    int styleHint(StyleHint, const QStyleOption*, const QWidget*, QStyleHintReturn*) const override;
    void polish(QWidget*) override;
    using QProxyStyle::polish;

    /// The palette of all windows.
    static QPalette palette();
    /// Sets style, palette, tips and font of the application.
    static void install(const Scale& scale);

    const Scale& scale() const { return scale_; }

  private:
    const Scale& scale_;
};

} // namespace zv::forms
