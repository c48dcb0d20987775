// Labels, frames and rules of the screens, drawn by their role.
#pragma once

#include "platform/forms/look.h"
#include <QFrame>
#include <QLabel>

namespace zv::forms {

/// A label that keeps its whole text and cuts it in painting only. Its palette says its colours: WindowText the text,
/// Window the ground, of the roles that have one. The constructor sets both to what the role has by itself; a screen
/// may set others.
///
/// Value, Detail    a box with border; Detail is the value label of the recording (weaker border, nearer text)
/// Caption, Heading navy; Unit soft; None, Figure ink: without a ground unless autoFillBackground is set
/// Name             opaque ground, wrapped, from the top
/// LabelButton      on the ground E9E9EC: a pill where it is wider than high, else a box; on another ground: a heading
///                  of the recording with a stronger border. Accent text under the mouse
/// Button           drawn as a push button
/// Panel            the ground of a list
/// Picture          the pixmap (never greyed) with a border inside the label, accent under the mouse while the cursor
///                  is a hand; PageImage: the pixmap alone
///
/// A pixmap is stretched if scaledContents is set, else it stands in the middle. wordWrap wraps as many lines as fit.
class LookLabel : public QLabel {
  public:
    explicit LookLabel(Role role, QWidget* parent = nullptr);
    explicit LookLabel(QWidget* parent = nullptr) : LookLabel(Role::None, parent) {}
    LookLabel(Role role, const QString& text, QWidget* parent) : LookLabel(role, parent) { setText(text); }

    /// Takes another role with its colours.
    void setLook(Role role);

    QSize minimumSizeHint() const override { return {}; }

  protected:
    void paintEvent(QPaintEvent*) override;
    void changeEvent(QEvent*) override;

  private:
    void paintGround(QPainter& painter) const;
    void paintLabelButton(QPainter& painter) const;
    void paintPicture(QPainter& painter) const;
    void paintText(QPainter& painter) const;
    bool hovered() const { return isEnabled() && underMouse(); }
};

/// An etched frame around counters. Its children are clipped by it.
class LookFrame : public QFrame {
  public:
    explicit LookFrame(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent*) override;
};

/// A horizontal etched line along the widget's upper edge. It is never lower than its two lines, so that a height of 0
/// may be given.
class LookRule : public QWidget {
  public:
    explicit LookRule(QWidget* parent = nullptr);

  protected:
    void paintEvent(QPaintEvent*) override;
    void changeEvent(QEvent*) override;
};

} // namespace zv::forms
