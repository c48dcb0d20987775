// The style that draws every control of the screens, boxes and dialogs after the palette, at the window's scale.
#pragma once

#include "platform/forms/look.h"
#include "platform/forms/scale.h"
#include <QProxyStyle>

class QPlainTextEdit;

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
    QSize sizeFromContents(ContentsType, const QStyleOption*, const QSize&, const QWidget*) const override;
    int pixelMetric(PixelMetric, const QStyleOption*, const QWidget*) const override;
    QIcon standardIcon(StandardPixmap, const QStyleOption*, const QWidget*) const override;
    int styleHint(StyleHint, const QStyleOption*, const QWidget*, QStyleHintReturn*) const override;
    void polish(QWidget*) override;
    using QProxyStyle::polish;
    bool eventFilter(QObject* watched, QEvent* event) override;

    /// The palette of all windows.
    static QPalette palette();
    /// Sets style, palette, tips, font and icon of the application.
    static void install(const Scale& scale);
    /// After a change of the scale: gives the application its fonts anew, and lets every widget under the window ask
    /// for its frames, margins and bars again. Geometry and fonts of the screens' own widgets are the screens' task.
    static void rescale(QWidget& window);

    const Scale& scale() const { return scale_; }

  private:
    void drawComboBox(const QStyleOptionComplex&, QPainter&, const QWidget*) const;
    void drawSpinBox(const QStyleOptionComplex&, QPainter&, const QWidget*) const;
    void drawToolButton(const QStyleOptionComplex&, QPainter&, const QWidget*) const;
    void drawScrollBar(const QStyleOptionComplex&, QPainter&, const QWidget*) const;
    void drawItem(const QStyleOption&, QPainter&, const QWidget*) const;
    bool drawHeader(ControlElement, const QStyleOption&, QPainter&) const;
    bool drawProgress(ControlElement, const QStyleOption&, QPainter&) const;
    void drawFrame(const QStyleOption&, QPainter&, const QWidget*) const;
    QRect scrollBarRect(const QStyleOptionComplex&, SubControl, const QWidget*) const;
    QRect itemRect(SubElement, const QStyleOption&, const QWidget*) const;
    int frameOf(const QWidget* area) const;
    void polishMemo(QPlainTextEdit& memo) const;

    const Scale& scale_;
};

} // namespace zv::forms
