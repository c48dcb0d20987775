// What every control of a screen has: its rectangle and its type in twips, and handlers that an unloaded form drops.
#pragma once

#include "platform/base/runtime_error.h"
#include "platform/forms/look.h"
#include "platform/forms/scale.h"
#include <QString>
#include <QWheelEvent>
#include <functional>
#include <vector>

namespace zv::forms {

/// Where the text of a label stands: at either side, in the middle of the height.
inline constexpr Qt::Alignment ToLeft = Qt::AlignLeft | Qt::AlignVCenter, ToRight = Qt::AlignRight | Qt::AlignVCenter;

/// A handler of the logic. It is copied before it runs, so that it may unload its own form.
using Handler = std::function<void()>;

/// Runs a handler if there is one; an error that escapes it is fatal.
inline void fire(const Handler& handler) {
    if (!handler) return;
    const Handler running = handler;
    guarded(running);
}

/// Gathers the turns of a wheel: a fine one turns in parts of a step.
class WheelSteps {
  public:
    /// Whole steps since the last whole one, positive away from the user.
    int take(const QWheelEvent& event);

  private:
    int turned_ = 0; ///< since the last whole step, in eighths of a degree
};

class Placed {
  public:
    Placed() = default;
    Placed(const Placed&) = delete;
    Placed& operator=(const Placed&) = delete;
    virtual ~Placed() = default;

    const TwipsRect& rect() const { return rect_; }
    void place(const TwipsRect& rect);
    int Left() const { return rect_.Left; }
    int Top() const { return rect_.Top; }
    int Width() const { return rect_.Width; }
    int Height() const { return rect_.Height; }
    void setLeft(int left) { place({left, rect_.Top, rect_.Width, rect_.Height}); }
    void setTop(int top) { place({rect_.Left, top, rect_.Width, rect_.Height}); }
    void setWidth(int width) { place({rect_.Left, rect_.Top, width, rect_.Height}); }
    void setHeight(int height) { place({rect_.Left, rect_.Top, rect_.Width, height}); }

    /// Height of the type in twips, and whether it is bold.
    void setType(int heightTwips, bool bold);

    /// The tool tip as the logic set it; it is escaped only where it is shown.
    const QString& ToolTipText() const { return tip_; }
    void setToolTipText(const QString& text);

    /// Lays the control out at a scale; called by its form.
    virtual void applyScale(const Scale& scale);
    /// Drops the handlers: no logic runs any more.
    virtual void clearHandlers() = 0;
    virtual QWidget* widget() = 0;
    const QWidget* widget() const { return const_cast<Placed*>(this)->widget(); }

  protected:
    const Scale* scale() const { return scale_; }
    int typeHeight() const { return typeHeight_; }
    /// Shows the tip as plain text ("<" and "&" of a record are no markup); true if the event was that of a tip.
    bool showTip(QEvent* event);

  private:
    TwipsRect rect_;
    int typeHeight_ = type::M;
    bool bold_ = false;
    QString tip_;
    const Scale* scale_ = nullptr;
};

/// A toolkit's widget that is placed in twips.
template <class Base>
class Control : public Base, public Placed {
  public:
    explicit Control(QWidget* parent) : Base(parent) {}
    QWidget* widget() override { return this; }

  protected:
    bool event(QEvent* event) override { return showTip(event) || Base::event(event); }
};

/// Lets the tab key walk these widgets one after the other.
void chainTabStops(const std::vector<QWidget*>& widgets);

/// Either of the two keys that confirm.
bool isEnterKey(const QKeyEvent& event);

/// Whether a focus event means that the user or the logic moved to the control. The return of a window or the closing
/// of a popup is no gain of focus.
bool isFocusGain(Qt::FocusReason reason);

} // namespace zv::forms
