#include "platform/forms/form.h"

#include "platform/forms/controls.h"
#include "platform/forms/decoration.h"
#include "platform/forms/spoken.h"

namespace zv::forms {

Form::Form(QWidget* parent, const Scale& scale, const QString& name, int width, int height)
    : QWidget(parent), scale_(scale), width_(width), height_(height) {
    setObjectName(name);
    setVisible(false);
    setAttribute(Qt::WA_OpaquePaintEvent);
    installSpokenLabels();
}

Form::~Form() = default;

void Form::adopt(Placed* placed, QWidget* widget, const QString& name, const TwipsRect& rect) {
    widget->setObjectName(name);
    placed->place(rect);
    controls_.push_back(placed);
    placed->applyScale(scale_);
}

Label* Form::addLabel(const QString& name, Role role, const QString& text, const TwipsRect& rect, int type, bool bold,
                      Qt::Alignment alignment, QWidget* inside) {
    return dress(add<Label>(name, rect, inside), role, text, type, bold, alignment);
}

Button* Form::addButton(const QString& name, const QString& caption, const QString& tip, const TwipsRect& rect,
                        Handler click, QWidget* inside) {
    auto* button = add<Button>(name, rect, inside);
    button->setText(caption);
    button->setToolTipText(tip);
    button->Click = std::move(click);
    return button;
}

void Form::setPosition(int left, int top) {
    left_ = left;
    top_ = top;
    setGeometry(scale_.rect({left_, top_, width_, height_}));
}

void Form::applyScale() {
    setGeometry(scale_.rect({left_, top_, width_, height_}));
    for (Placed* control : controls_) control->applyScale(scale_);
    update();
}

void Form::Show() {
    if (!loaded_) {
        loaded_ = true;
        Form_Load();
        nameControls(controls_);
    }
    show();
    raise();
}

void Form::Unload() {
    if (unloaded_) return;
    unloaded_ = true;
    if (loaded_) Form_Unload();
    loaded_ = false;
    for (Placed* control : controls_) {
        control->clearHandlers();
        control->widget()->setObjectName({});
    }
    setObjectName({});
    hide();
    setParent(nullptr);
    deleteLater();
}

void Form::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintScreenEdge(painter, rect(), scale_);
    paintBehind(painter);
}

} // namespace zv::forms
