#include "platform/forms/text_box.h"

namespace zv::forms {

TextBox::TextBox(QWidget* parent) : Control(parent) {
    setRole(this, Role::TextBox);
    setFrame(true);
    setBackColor(colour::Panel);
    connect(this, &QLineEdit::textChanged, this, [this] { fire(Change); });
}

void TextBox::setBackColor(const QColor& colour) {
    QPalette changed = palette();
    changed.setColor(QPalette::Base, colour);
    setPalette(changed);
}

void TextBox::setText(const QString& text) {
    if (text == this->text()) return;
    QLineEdit::setText(text);
    home(false);
}

void TextBox::setLocked(bool locked) {
    setReadOnly(locked);
    setFocusPolicy(locked ? Qt::ClickFocus : Qt::StrongFocus);
}

void TextBox::clearHandlers() {
    Change = GotFocus = nullptr;
    KeyPress = nullptr;
}

void TextBox::focusInEvent(QFocusEvent* event) {
    QLineEdit::focusInEvent(event);
    if (!isFocusGain(event->reason())) return;
    deselect(); // the tab key selects by itself: that is the handler's
    fire(GotFocus);
    pressGaveFocus_ = event->reason() == Qt::MouseFocusReason && (hasSelectedText() || !hasFocus());
}

// The click that gives the focus must not undo the selection that gaining it made.
void TextBox::mousePressEvent(QMouseEvent* event) {
    if (pressGaveFocus_)
        event->accept();
    else
        QLineEdit::mousePressEvent(event);
}

void TextBox::mouseMoveEvent(QMouseEvent* event) {
    if (!pressGaveFocus_) QLineEdit::mouseMoveEvent(event);
}

void TextBox::mouseReleaseEvent(QMouseEvent* event) {
    if (pressGaveFocus_)
        pressGaveFocus_ = false;
    else
        QLineEdit::mouseReleaseEvent(event);
}

void TextBox::keyPressEvent(QKeyEvent* event) {
    pressGaveFocus_ = false;
    bool taken = true;
    if (KeyPress && event->text().size() == 1)
        fire([handler = KeyPress, key = event->text().front(), &taken] { taken = handler(key); });
    if (taken)
        QLineEdit::keyPressEvent(event);
    else
        event->accept();
}

void keepOut(TextBox& box, QChar character) {
    const qsizetype length = box.Text().size();
    for (qsizetype i = 0; i < length; ++i) {
        const QString text = box.Text();
        if (i < text.size() && text[i] == character) box.setText(text.left(i) + text.mid(i + 1));
    }
}

Memo::Memo(QWidget* parent) : Control(parent) {
    setRole(this, Role::TextBox);
    setTabChangesFocus(true);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setLineWrapMode(QPlainTextEdit::WidgetWidth);
    setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    connect(this, &QPlainTextEdit::textChanged, this, [this] {
        // The toolkit also fires on an equal text and on changes of format.
        if (setting_) return;
        QString now = Text();
        if (now == last_) return;
        last_ = std::move(now);
        fire(Change);
    });
}

QString Memo::plain() const { return document()->toRawText(); }

QString Memo::Text() const {
    const QString raw = plain();
    if (raw == setPlain_) return set_;
    QString text;
    text.reserve(raw.size() + 16);
    for (const QChar c : raw) {
        if (c != QChar::ParagraphSeparator && c != QChar::LineSeparator)
            text += c;
        else
            text += QLatin1String("\r\n");
    }
    return text;
}

void Memo::setText(const QString& text) {
    if (text == Text()) return;
    setting_ = true;
    setPlainText(text);
    setting_ = false;
    set_ = text;
    setPlain_ = plain();
    last_ = text;
    fire(Change);
}

void Memo::setLocked(bool locked) {
    setReadOnly(locked);
    setFocusPolicy(locked ? Qt::ClickFocus : Qt::StrongFocus);
}

void Memo::clearHandlers() { Change = GotFocus = nullptr; }

void Memo::focusInEvent(QFocusEvent* event) {
    QPlainTextEdit::focusInEvent(event);
    if (isFocusGain(event->reason())) fire(GotFocus);
}

} // namespace zv::forms
