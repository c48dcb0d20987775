#include "platform/forms/placed.h"

#include "platform/forms/spoken.h"
#include <QHelpEvent>
#include <QToolTip>

namespace zv::forms {

namespace {

/// Longest tip in one line.
constexpr qsizetype TipLine = 60;

// Rich text is broken into lines, plain text is not. Escaped letters are letters only in rich text.
QString shownTip(const QString& tip) {
    if (tip.size() <= TipLine && !Qt::mightBeRichText(tip)) return tip;
    return QLatin1String("<qt>") + tip.toHtmlEscaped() + QLatin1String("</qt>");
}

} // namespace

int WheelSteps::take(const QWheelEvent& event) {
    constexpr int Step = 120;
    const QPoint turn = event.angleDelta();
    turned_ += std::abs(turn.x()) > std::abs(turn.y()) ? turn.x() : turn.y();
    const int steps = turned_ / Step;
    turned_ -= steps * Step;
    return steps;
}

void Placed::place(const TwipsRect& rect) {
    rect_ = rect;
    if (scale_) widget()->setGeometry(scale_->rect(rect_));
}

void Placed::setType(int heightTwips, bool bold) {
    typeHeight_ = heightTwips;
    bold_ = bold;
    if (scale_) widget()->setFont(scale_->font(typeHeight_, bold_));
}

void Placed::setToolTipText(const QString& text) {
    tip_ = text;
    widget()->setToolTip(text);
    describe(*this);
}

void Placed::applyScale(const Scale& scale) {
    scale_ = &scale;
    widget()->setGeometry(scale.rect(rect_));
    widget()->setFont(scale.font(typeHeight_, bold_));
}

bool Placed::showTip(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return false;
    if (tip_.isEmpty())
        QToolTip::hideText();
    else
        QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), shownTip(tip_), widget());
    return true;
}

void chainTabStops(const std::vector<QWidget*>& widgets) {
    for (std::size_t i = 0; i + 1 < widgets.size(); ++i) QWidget::setTabOrder(widgets[i], widgets[i + 1]);
}

bool isEnterKey(const QKeyEvent& event) { return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter; }

bool isFocusGain(Qt::FocusReason reason) {
    return reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason && reason != Qt::MenuBarFocusReason;
}

} // namespace zv::forms
