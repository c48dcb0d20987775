// Boxes to type in: one line, and the memo of plain text. A change by code fires its event inside the setter.
#pragma once

#include "platform/forms/placed.h"
#include <QLineEdit>
#include <QPlainTextEdit>

namespace zv::forms {

class TextBox : public Control<QLineEdit> {
  public:
    explicit TextBox(QWidget* parent);

    Handler Change, GotFocus;
    /// Takes a typed character; returns false to swallow it.
    std::function<bool(QChar)> KeyPress;

    QString Text() const { return text(); }
    /// A new text is shown from its head.
    void setText(const QString& text);
    void setBackColor(const QColor& colour);
    QColor BackColor() const { return palette().color(QPalette::Base); }
    /// A locked box is readable and can be clicked, but takes no text and is no stop of the tab key.
    void setLocked(bool locked);
    bool Locked() const { return isReadOnly(); }
    void selectWhole() { selectAll(); }

    void clearHandlers() override;

  protected:
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    bool pressGaveFocus_ = false;
};

/// Cuts a character out of a box's text wherever it stands; each cut fires the box's change again.
void keepOut(TextBox& box, QChar character);

class Memo : public Control<QPlainTextEdit> {
  public:
    explicit Memo(QWidget* parent);

    Handler Change, GotFocus;

    /// The text with CR LF line ends, or verbatim as it was set while nobody has edited it.
    QString Text() const;
    void setText(const QString& text);
    void setLocked(bool locked);
    bool Locked() const { return isReadOnly(); }
    void selectWhole() { selectAll(); }

    void clearHandlers() override;

  protected:
    void focusInEvent(QFocusEvent* event) override;

  private:
    QString plain() const;
    QString set_;      ///< as the logic set it
    QString setPlain_; ///< what the document made of it
    QString last_;     ///< text at the last event
    bool setting_ = false;
};

} // namespace zv::forms
