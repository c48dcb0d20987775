// A screen's window: a panel with named controls in twips, loaded and unloaded by the navigator.
#pragma once

#include "platform/forms/placed.h"
#include <QWidget>
#include <vector>

namespace zv::forms {

class Button;
class Label;

class Form : public QWidget {
  public:
    /// width, height: twips.
    Form(QWidget* parent, const Scale& scale, const QString& name, int width, int height);
    ~Form() override;

    int Width() const { return width_; }
    int Height() const { return height_; }
    int Left() const { return left_; }
    int Top() const { return top_; }
    void setPosition(int left, int top);

    /// Loads the form at its first call and makes it visible; on a loaded form only the latter.
    void Show();

    /// Runs Form_Unload, hides the form, drops its handlers and its names and takes it out of its window, all at once;
    /// the widgets are destroyed when the running event has ended.
    void Unload();
    bool loaded() const { return loaded_; }

    /// Lays all controls out anew from their twips.
    void applyScale();

    const Scale& scale() const { return scale_; }

    /// Adds a control of that name; several of one name get 0, 1, 2 behind it. inside: a frame, or the form itself.
    template <class C>
    C* add(const QString& name, const TwipsRect& rect, QWidget* inside = nullptr) {
        auto* control = new C(inside ? inside : this);
        adopt(control, control, name, rect);
        return control;
    }
    /// A caption, heading, unit or value. type: height in twips.
    Label* addLabel(const QString& name, Role role, const QString& text, const TwipsRect& rect, int type, bool bold,
                    Qt::Alignment alignment, QWidget* inside = nullptr);
    Button* addButton(const QString& name, const QString& caption, const QString& tip, const TwipsRect& rect,
                      Handler click = {}, QWidget* inside = nullptr);

  protected:
    virtual void Form_Load() {}
    virtual void Form_Unload() {}
    void paintEvent(QPaintEvent* event) override;
    /// Decoration behind the controls.
    virtual void paintBehind(QPainter&) {}

  private:
    void adopt(Placed* placed, QWidget* widget, const QString& name, const TwipsRect& rect);

    const Scale& scale_;
    int width_, height_, left_ = 0, top_ = 0;
    bool loaded_ = false, unloaded_ = false;
    std::vector<Placed*> controls_;
};

} // namespace zv::forms
