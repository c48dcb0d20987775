#include "platform/forms/spoken.h"

#include "platform/forms/controls.h"
#include "platform/forms/picture.h"
#include <QAbstractButton>
#include <algorithm>
#include <typeinfo>

namespace zv::forms {

namespace {

/// Greatest distance of a caption over and under what it names, and how far edges that meet may overlap, in twips.
constexpr int CaptionGap = 180, FootGap = 90, EdgeSlack = 60;

bool isCaption(const Placed& control) {
    const auto* label = dynamic_cast<const Label*>(&control);
    if (!label || label->Caption().trimmed().isEmpty()) return false;
    const Role role = roleOf(label);
    return role == Role::Caption || role == Role::Heading || role == Role::LabelButton;
}

/// Boxes of any kind, bars and lists, and labels that show a value: what is nothing without a caption.
bool needsCaption(Placed& control) {
    if (dynamic_cast<const Rule*>(&control) || dynamic_cast<const Frame*>(&control)) return false;
    return spokenName(*control.widget()).isEmpty();
}

int right(const Placed& control) { return control.Left() + control.Width(); }
int foot(const Placed& control) { return control.Top() + control.Height(); }

int overlap(int from, int to, int otherFrom, int otherTo) { return std::min(to, otherTo) - std::max(from, otherFrom); }

bool inOneRow(const Placed& a, const Placed& b) {
    return 2 * overlap(a.Top(), foot(a), b.Top(), foot(b)) >= std::min(a.Height(), b.Height());
}

/// A caption stands beside the first line of what it names.
bool leads(const Placed& caption, const Placed& control) {
    return inOneRow(caption, control) && std::abs(caption.Top() - control.Top()) <= CaptionGap;
}

bool inOneColumn(const Placed& a, const Placed& b) {
    return 2 * overlap(a.Left(), right(a), b.Left(), right(b)) >= std::min(a.Width(), b.Width());
}

class Names {
  public:
    explicit Names(const std::vector<Placed*>& controls) : controls_(controls) {}

    QString of(const Placed& control) const {
        const QString tip = control.ToolTipText().simplified();
        if (dynamic_cast<const Picture*>(&control) && !tip.isEmpty()) return tip;
        if (const Placed* before = leftOf(control); before && !isCaption(*before))
            if (const QString shared = inRowOf(control); !shared.isEmpty()) return shared;
        const Placed* caption = captionOf(control);
        return caption ? captioned(*caption, control) : tip;
    }

    /// The caption at the left of a control, or above it; of a picture or a bar also the one below.
    Placed* captionOf(const Placed& control) const {
        Placed* before = leftOf(control);
        if (before && isCaption(*before)) return before;
        const bool may = dynamic_cast<const Picture*>(&control) || dynamic_cast<const ScrollBar*>(&control);
        Placed* underneath = may ? below(control) : nullptr;
        return underneath ? underneath : above(control);
    }

  private:
    static QString words(const Placed& caption) { return static_cast<const Label&>(caption).Caption().simplified(); }

    /// The caption; one that stands more than once in its frame follows the name of the box before it: "Opus No.".
    QString captioned(const Placed& caption, const Placed& control) const {
        const auto same = [&](const Placed* other) {
            return isCaption(*other) && beside(*other, caption) && words(*other) == words(caption);
        };
        if (std::ranges::any_of(controls_, same))
            if (const Placed* before = likeLeftOf(control)) return of(*before) + u' ' + words(caption);
        return words(caption);
    }

    static bool beside(const Placed& a, const Placed& b) {
        return &a != &b && a.widget()->parentWidget() == b.widget()->parentWidget();
    }
    static bool leftAndLike(const Placed& other, const Placed& control) {
        return typeid(other) == typeid(control) && roleOf(other.widget()) == roleOf(control.widget()) &&
               inOneRow(other, control);
    }

    /// The nearest to the left of a control that fits.
    template <class Fits>
    Placed* nearestLeft(const Placed& control, Fits&& fits) const {
        Placed* nearest = nullptr;
        for (Placed* other : controls_) {
            if (!beside(*other, control) || right(*other) > control.Left() + EdgeSlack || !fits(*other)) continue;
            if (!nearest || right(*other) > right(*nearest)) nearest = other;
        }
        return nearest;
    }
    Placed* likeLeftOf(const Placed& control) const {
        return nearestLeft(control, [&](const Placed& other) { return leftAndLike(other, control); });
    }
    /// A caption or a box of its like; units, pictures and other things between do not count.
    Placed* leftOf(const Placed& control) const {
        return nearestLeft(control, [&](const Placed& other) {
            return isCaption(other) ? leads(other, control) : leftAndLike(other, control);
        });
    }

    /// The name of a box that stands in a row of its like: their caption, and what tells it from them.
    QString inRowOf(const Placed& control) const {
        int number = 1;
        const Placed* first = &control;
        for (const Placed* before = leftOf(control); before && !isCaption(*before); before = leftOf(*before)) {
            first = before;
            ++number;
        }
        const Placed* caption = leftOf(*first);
        if (!caption) caption = above(*first);
        if (!caption) return {};
        const QString tip = control.ToolTipText().simplified();
        if (!tip.isEmpty() && tip != first->ToolTipText().simplified())
            return words(*caption) + QLatin1String(", ") + tip;
        return words(*caption) + u' ' + QString::number(number);
    }

    Placed* above(const Placed& control) const {
        return captionWithin(control, CaptionGap, [&](const Placed& caption) { return control.Top() - foot(caption); });
    }
    Placed* below(const Placed& control) const {
        return captionWithin(control, FootGap, [&](const Placed& caption) { return caption.Top() - foot(control); });
    }
    /// The nearest caption in the control's column whose gap to it is none or small.
    template <class Gap>
    Placed* captionWithin(const Placed& control, int most, Gap&& gap) const {
        Placed* nearest = nullptr;
        for (Placed* other : controls_) {
            if (!beside(*other, control) || !isCaption(*other) || !inOneColumn(*other, control)) continue;
            if (gap(*other) < -EdgeSlack || gap(*other) > most) continue;
            if (!nearest || gap(*other) < gap(*nearest)) nearest = other;
        }
        return nearest;
    }

    const std::vector<Placed*>& controls_;
};

/// A frame goes by its first heading.
QString frameName(const Frame& frame) {
    for (const QObject* child : frame.children())
        if (const auto* label = dynamic_cast<const Label*>(child); label && isCaption(*label))
            return label->Caption().simplified();
    return {};
}

} // namespace

QString spokenName(const QWidget& widget) {
    if (!widget.accessibleName().isEmpty()) return widget.accessibleName();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return QString(button->text()).remove(u'&').simplified();
    if (const auto* label = dynamic_cast<const Label*>(&widget); label && !showsValue(*label))
        return label->Caption().simplified();
    return {};
}

void describe(Placed& control) {
    const QString tip = control.ToolTipText().simplified();
    control.widget()->setAccessibleDescription(tip.isEmpty() ? spokenName(*control.widget()) : tip);
}

void nameControls(const std::vector<Placed*>& controls) {
    const Names names(controls);
    for (Placed* control : controls) {
        if (const auto* frame = dynamic_cast<const Frame*>(control))
            control->widget()->setAccessibleName(frameName(*frame));
        if (needsCaption(*control)) {
            control->widget()->setAccessibleName(names.of(*control));
            // Assistive tools know a caption by this bond, too.
            if (auto* caption = dynamic_cast<Label*>(names.captionOf(*control)); caption && !caption->buddy())
                caption->setBuddy(control->widget());
        }
        describe(*control);
    }
}

} // namespace zv::forms
