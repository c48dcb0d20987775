#include "platform/forms/look_label.h"

#include "platform/forms/look_style_draw.h"

namespace zv::forms {

namespace {

constexpr QColor LabelFace{0xE9, 0xE9, 0xEC};

struct Colours {
    QColor text, ground;
};

Colours coloursOf(Role role) {
    switch (role) {
    case Role::Caption:
    case Role::Heading: return {colour::Navy, colour::Panel};
    case Role::Unit: return {colour::Soft, colour::Panel};
    case Role::LabelButton: return {colour::Navy, LabelFace};
    case Role::Panel: return {colour::Ink, colour::ListPanel};
    default: return {colour::Ink, colour::Panel};
    }
}

/// Blank before and after the text in twips.
int insetOf(Role role) {
    if (role == Role::Value) return 75;
    return role == Role::Detail ? 60 : 0;
}

} // namespace

LookLabel::LookLabel(Role role, QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setLook(role);
}

void LookLabel::setLook(Role role) {
    setRole(this, role);
    const Colours colours = coloursOf(role);
    QPalette own = palette();
    own.setColor(QPalette::WindowText, colours.text);
    own.setColor(QPalette::Window, colours.ground);
    setPalette(own);
    const bool button = role == Role::LabelButton || role == Role::Button;
    setAttribute(Qt::WA_Hover, button || role == Role::Picture);
    if (button) {
        setCursor(Qt::PointingHandCursor);
        setAlignment(Qt::AlignCenter);
    }
    setFocusPolicy(role == Role::Button ? Qt::StrongFocus : Qt::NoFocus);
    if (role == Role::Name) {
        setWordWrap(true);
        setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    }
    update();
}

void LookLabel::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const Role role = roleOf(this);
    if (role == Role::Picture || role == Role::PageImage) {
        paintPicture(painter);
        return;
    }
    paintGround(painter);
    if (!pixmap(Qt::ReturnByValue).isNull()) paintPicture(painter);
    paintText(painter);
}

void LookLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::EnabledChange || event->type() == QEvent::PaletteChange) update();
}

void LookLabel::paintGround(QPainter& painter) const {
    const Scale& scale = draw::scaleOf(this);
    const QColor ground = palette().color(QPalette::Window);
    switch (roleOf(this)) {
    case Role::Value: draw::box(painter, rect(), ground, colour::Edge2, scale.hairline(), scale.px(30)); break;
    case Role::Detail: draw::box(painter, rect(), ground, colour::Edge3, scale.hairline(), scale.px(30)); break;
    case Role::Panel: draw::box(painter, rect(), ground, colour::Edge2, scale.hairline(), scale.px(45)); break;
    case Role::Name: painter.fillRect(rect(), ground); break;
    case Role::LabelButton: paintLabelButton(painter); break;
    case Role::Button: {
        draw::State state;
        state.enabled = isEnabled();
        state.hovered = hovered();
        state.focused = state.enabled && hasFocus();
        draw::button(painter, rect(), state, scale);
        break;
    }
    default: break;
    }
}

void LookLabel::paintLabelButton(QPainter& painter) const {
    const Scale& scale = draw::scaleOf(this);
    const QColor ground = palette().color(QPalette::Window);
    const bool face = ground == LabelFace;
    const double radius = face && width() > height() ? height() / 2.0 : scale.px(45);
    const QColor edge = !isEnabled() ? colour::Edge3 : face ? colour::Edge2 : colour::Edge;
    draw::box(painter, rect(), ground, edge, scale.hairline(), radius);
}

void LookLabel::paintPicture(QPainter& painter) const {
    const QPixmap picture = pixmap(Qt::ReturnByValue);
    if (!picture.isNull()) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        if (hasScaledContents()) {
            painter.drawPixmap(rect(), picture);
        } else {
            const QSize size = picture.deviceIndependentSize().toSize();
            painter.drawPixmap(QPoint((width() - size.width()) / 2, (height() - size.height()) / 2), picture);
        }
    }
    if (roleOf(this) != Role::Picture) return;
    const bool lit = hovered() && cursor().shape() == Qt::PointingHandCursor;
    const int line = draw::scaleOf(this).hairline();
    draw::box(painter, rect(), Qt::NoBrush, lit ? colour::Accent : colour::Edge2, line, 0);
}

void LookLabel::paintText(QPainter& painter) const {
    const Role role = roleOf(this);
    const int inset = draw::scaleOf(this).px(insetOf(role));
    draw::Setting setting{font(), palette().color(QPalette::Active, QPalette::WindowText), alignment()};
    if (!isEnabled()) {
        setting.colour = colour::Disabled;
    } else if (hovered() && (role == Role::LabelButton || role == Role::Button)) {
        setting.colour = colour::Accent;
    }
    setting.lines = wordWrap() ? 0 : 1;
    draw::text(painter, contentsRect().adjusted(inset, 0, -inset, 0), text(), setting);
}

LookFrame::LookFrame(QWidget* parent) : QFrame(parent) { setRole(this, Role::Frame); }

void LookFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    draw::etched(painter, rect(), colour::Panel, draw::scaleOf(this));
}

LookRule::LookRule(QWidget* parent) : QWidget(parent) {
    setRole(this, Role::Rule);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setMinimumHeight(2 * draw::scaleOf(this).hairline());
}

void LookRule::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    draw::rule(painter, rect(), draw::scaleOf(this));
}

void LookRule::changeEvent(QEvent* event) {
    if (event->type() == QEvent::StyleChange) setMinimumHeight(2 * draw::scaleOf(this).hairline());
    QWidget::changeEvent(event);
}

} // namespace zv::forms
