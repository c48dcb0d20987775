// Scroll bars, the wide ones with end buttons and the slim ones without, and drop-down boxes.
#include "platform/forms/look_style.h"
#include "platform/forms/look_style_draw.h"
#include <QAbstractSpinBox>
#include <tuple>

namespace zv::forms {

namespace {

constexpr QColor Track{0xD2, 0xD2, 0xD8}, SlimTrack{0xD8, 0xD8, 0xDE}, SlimThumb{0x9C, 0x9C, 0xAA};

/// Parts of a bar along its direction, in pixels from its beginning.
struct Bar {
    const QStyleOptionSlider& option;
    bool slim;
    bool across = option.orientation == Qt::Horizontal;
    int length = across ? option.rect.width() : option.rect.height();
    int thickness = across ? option.rect.height() : option.rect.width();
    int button = slim ? 0 : std::min(thickness, length / 2);
    int room = length - 2 * button;
    int thumb = 0, start = 0;

    Bar(const QStyleOptionSlider& o, bool isSlim, const Scale& scale) : option(o), slim(isSlim) {
        const qint64 range = qint64{o.maximum} - o.minimum;
        const int least = std::min(room, slim ? 2 * thickness : thickness - scale.px(30));
        thumb = room;
        if (range > 0)
            thumb = static_cast<int>(std::max<qint64>(least, qint64{o.pageStep} * room / (range + o.pageStep)));
        start = button +
                QStyle::sliderPositionFromValue(o.minimum, o.maximum, o.sliderPosition, room - thumb, o.upsideDown);
    }
    bool movable() const { return option.maximum > option.minimum && (option.state & QStyle::State_Enabled); }
    QRect part(int from, int size) const {
        const QRect& r = option.rect;
        return across ? QRect(r.left() + from, r.top(), size, r.height())
                      : QRect(r.left(), r.top() + from, r.width(), size);
    }
};

void drawGrip(QPainter& painter, const QRect& thumb, const Bar& bar, const Scale& scale) {
    const int line = scale.hairline(), pitch = scale.px(30), length = scale.px(105);
    const int extent = 2 * pitch + line;
    if ((bar.across ? thumb.width() : thumb.height()) < extent + scale.px(60)) return;
    for (int i = 0; i < 3; ++i) {
        const int along = i * pitch;
        if (bar.across) {
            painter.fillRect(QRect(thumb.left() + (thumb.width() - extent) / 2 + along,
                                   thumb.top() + (thumb.height() - length) / 2, line, length),
                             colour::Edge2);
        } else {
            painter.fillRect(QRect(thumb.left() + (thumb.width() - length) / 2,
                                   thumb.top() + (thumb.height() - extent) / 2 + along, length, line),
                             colour::Edge2);
        }
    }
}

void drawEnd(QPainter& painter, const QRect& rect, const Bar& bar, bool first, const draw::State& state,
             const Scale& scale) {
    const int line = scale.hairline();
    const bool pressed = state.enabled && state.pressed;
    if (!state.enabled) {
        draw::box(painter, rect, colour::Panel, colour::Edge3, line, scale.px(30));
    } else if (pressed) {
        draw::box(painter, rect, draw::face(rect, colour::PressedTop, colour::PressedFoot), colour::Edge, line,
                  scale.px(30));
    } else {
        draw::smallFace(painter, rect, state.hovered ? colour::Accent : colour::Edge, line, scale);
    }
    const Qt::ArrowType type =
        bar.across ? (first ? Qt::LeftArrow : Qt::RightArrow) : (first ? Qt::UpArrow : Qt::DownArrow);
    draw::arrow(painter, QRectF(rect), type, state.enabled ? colour::Navy : colour::Edge2, 0.41 * bar.thickness);
}

void drawSlim(QPainter& painter, const Bar& bar, bool lit, const Scale& scale) {
    if (!bar.movable()) return;
    painter.fillRect(bar.option.rect, SlimTrack);
    const int gap = scale.px(15);
    const QRect thumb = bar.part(bar.start, bar.thumb).adjusted(gap, gap, -gap, -gap);
    const double radius = std::min(thumb.width(), thumb.height()) / 2.0;
    draw::box(painter, thumb, lit ? colour::Accent : SlimThumb, Qt::transparent, 0, radius);
}

} // namespace

QRect LookStyle::scrollBarRect(const QStyleOptionComplex& option, SubControl part, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(&option);
    if (!slider) return {};
    const bool slim = pixelMetric(PM_ScrollBarExtent, &option, widget) < scale_.px(255);
    const Bar bar(*slider, slim, scale_);
    switch (part) {
    case SC_ScrollBarSubLine: return bar.part(0, bar.button);
    case SC_ScrollBarAddLine: return bar.part(bar.length - bar.button, bar.button);
    case SC_ScrollBarSubPage: return bar.part(bar.button, bar.start - bar.button);
    case SC_ScrollBarAddPage: {
        const int end = bar.start + bar.thumb;
        return bar.part(end, bar.length - bar.button - end);
    }
    case SC_ScrollBarGroove: return bar.part(bar.button, bar.room);
    case SC_ScrollBarSlider: return bar.part(bar.start, bar.thumb);
    default: return {};
    }
}

void LookStyle::drawScrollBar(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const {
    const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(&option);
    if (!slider) return;
    const bool slim = pixelMetric(PM_ScrollBarExtent, &option, widget) < scale_.px(255);
    const Bar bar(*slider, slim, scale_);
    const draw::State state = draw::stateOf(option, widget);
    const auto part = [&](SubControl which) {
        draw::State s = state;
        s.enabled = state.enabled && bar.movable();
        s.hovered = state.hovered && (option.activeSubControls & which);
        s.pressed = s.hovered && (option.state & State_Sunken);
        return s;
    };
    const draw::State thumb = part(SC_ScrollBarSlider);
    if (slim) return drawSlim(painter, bar, thumb.hovered, scale_);

    const int line = scale_.hairline();
    draw::box(painter, option.rect, Track, state.enabled ? colour::Edge2 : colour::Edge3, line, scale_.px(30));
    drawEnd(painter, bar.part(0, bar.button), bar, true, part(SC_ScrollBarSubLine), scale_);
    drawEnd(painter, bar.part(bar.length - bar.button, bar.button), bar, false, part(SC_ScrollBarAddLine), scale_);
    if (!bar.movable()) {
        // Without a thumb the whole bar is marked.
        if (state.focused)
            draw::box(painter, option.rect, Qt::NoBrush, colour::Accent, scale_.focusLine(), scale_.px(30));
        return;
    }
    const QRect rect = bar.part(bar.start, bar.thumb);
    const bool marked = state.focused || thumb.hovered;
    draw::smallFace(painter, rect, marked ? colour::Accent : colour::Edge, state.focused ? scale_.focusLine() : line,
                    scale_);
    drawGrip(painter, rect, bar, scale_);
}

void LookStyle::drawComboBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const {
    const auto* combo = qstyleoption_cast<const QStyleOptionComboBox*>(&option);
    if (!combo) return;
    draw::State state = draw::stateOf(option, widget);
    state.focused = state.focused || (state.enabled && (combo->state & State_On)); // its list is open
    draw::field(painter, combo->rect, combo->palette.color(QPalette::Base), state, scale_);
    const QRect drop = subControlRect(CC_ComboBox, combo, SC_ComboBoxArrow, widget);
    const int gap = scale_.focusLine(), line = scale_.hairline(); // clear of the line of the focus
    const QRect face = drop.adjusted(0, gap, -gap, -gap);
    if (state.enabled) {
        draw::smallFace(painter, face, colour::Edge2, line, scale_);
    } else {
        painter.fillRect(QRect(face.left(), face.top(), line, face.height()), colour::Edge3);
    }
    draw::arrow(painter, QRectF(face), Qt::DownArrow, state.enabled ? colour::Navy : colour::Edge2, scale_.px(120));
}

void LookStyle::drawSpinBox(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const {
    const auto* box = qstyleoption_cast<const QStyleOptionSpinBox*>(&option);
    if (!box) return;
    const draw::State state = draw::stateOf(option, widget);
    draw::field(painter, box->rect, box->palette.color(QPalette::Base), state, scale_);
    const int gap = scale_.focusLine();
    for (const auto& [part, step, arrow] :
         {std::tuple(SC_SpinBoxUp, QAbstractSpinBox::StepUpEnabled, Qt::UpArrow),
          std::tuple(SC_SpinBoxDown, QAbstractSpinBox::StepDownEnabled, Qt::DownArrow)}) {
        const bool upper = part == SC_SpinBoxUp, steps = state.enabled && (box->stepEnabled & step);
        const QRect face =
            subControlRect(CC_SpinBox, box, part, widget).adjusted(0, upper ? gap : 0, -gap, upper ? 0 : -gap);
        if (steps) draw::smallFace(painter, face, colour::Edge2, scale_.hairline(), scale_);
        draw::arrow(painter, QRectF(face), arrow, steps ? colour::Navy : colour::Edge2, scale_.px(90));
    }
}

// A tool button is bare until it is meant.
void LookStyle::drawToolButton(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const {
    const auto* button = qstyleoption_cast<const QStyleOptionToolButton*>(&option);
    if (!button) return;
    const draw::State state = draw::stateOf(option, widget);
    const bool bare = button->state & State_AutoRaise;
    if (!bare || state.hovered || state.pressed || state.focused) draw::button(painter, button->rect, state, scale_);
    QStyleOptionToolButton label = *button;
    label.rect = subControlRect(CC_ToolButton, button, SC_ToolButton, widget);
    drawControl(CE_ToolButtonLabel, &label, &painter, widget);
    if (!(button->subControls & SC_ToolButtonMenu)) return;
    const QRect menu = subControlRect(CC_ToolButton, button, SC_ToolButtonMenu, widget);
    draw::arrow(painter, QRectF(menu), Qt::DownArrow, state.enabled ? colour::Navy : colour::Edge2, scale_.px(90));
}

} // namespace zv::forms
