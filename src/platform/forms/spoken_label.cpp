// Labels, pictures and lists of choices as assistive tools see them. The toolkit knows neither what the first two paint
// nor that some are pressed, and takes the chosen row for the name of the last.
#include "platform/forms/controls.h"
#include "platform/forms/picture.h"
#include "platform/forms/spoken.h"
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>

namespace zv::forms {

namespace {

/// What a picture and a label have in common for a screen reader: a name, a description, and something to press.
class SpokenControl : public QAccessibleWidget {
  public:
    SpokenControl(QWidget* widget, Placed& control) : QAccessibleWidget(widget), control_(control) {}

    QString text(QAccessible::Text which) const override {
        if (which == QAccessible::Name) return spokenName(*widget());
        if (which != QAccessible::Description) return QAccessibleWidget::text(which);
        const QString tip = control_.ToolTipText().simplified();
        return tip.isEmpty() ? spokenName(*widget()) : tip;
    }

    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (pressed() && widget()->isEnabled()) names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& name) override {
        if (name != pressAction())
            QAccessibleWidget::doAction(name);
        else if (widget()->isEnabled())
            fire(pressed());
    }

  protected:
    /// The handler of a press, if there is one.
    virtual Handler pressed() const = 0;

  private:
    Placed& control_;
};

class SpokenPicture : public SpokenControl {
  public:
    explicit SpokenPicture(Picture& picture) : SpokenControl(&picture, picture), picture_(picture) {}
    QAccessible::Role role() const override { return QAccessible::Graphic; }

  protected:
    Handler pressed() const override { return picture_.DblClick ? picture_.DblClick : picture_.Click; }

  private:
    Picture& picture_;
};

/// A label shows its words also as a text, so that a value is read out beside its name.
class SpokenLabel : public SpokenControl, public QAccessibleTextInterface {
  public:
    explicit SpokenLabel(Label& label) : SpokenControl(&label, label), label_(label) {}

    QAccessible::Role role() const override {
        const Role role = roleOf(&label_);
        return role == Role::LabelButton || role == Role::Button ? QAccessible::Button : QAccessible::StaticText;
    }
    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value && showsValue(label_) ? label_.Caption() : SpokenControl::text(which);
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::TextInterface && showsValue(label_))
            return static_cast<QAccessibleTextInterface*>(this);
        return SpokenControl::interface_cast(type);
    }

    QString text(int from, int to) const override { return label_.Caption().mid(from, to - from); }
    int characterCount() const override { return static_cast<int>(label_.Caption().size()); }
    int cursorPosition() const override { return 0; }
    void setCursorPosition(int) override {}
    int selectionCount() const override { return 0; }
    void selection(int, int* from, int* to) const override { *from = *to = 0; }
    void addSelection(int, int) override {}
    void removeSelection(int) override {}
    void setSelection(int, int, int) override {}
    void scrollToSubstring(int, int) override {}
    QRect characterRect(int) const override { return rect(); }
    int offsetAtPoint(const QPoint&) const override { return 0; }
    QString attributes(int, int* from, int* to) const override {
        *from = 0;
        *to = characterCount();
        return {};
    }

  protected:
    Handler pressed() const override { return label_.Click ? label_.Click : label_.DblClick; }

  private:
    Label& label_;
};

class SpokenCombo : public SpokenControl {
  public:
    explicit SpokenCombo(Combo& combo) : SpokenControl(&combo, combo), combo_(combo) {}

    QAccessible::Role role() const override { return QAccessible::ComboBox; }
    QString text(QAccessible::Text which) const override {
        return which == QAccessible::Value ? combo_.Text().simplified() : SpokenControl::text(which);
    }
    int childCount() const override { return 1; }
    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(combo_.view()) : nullptr;
    }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child->object() == combo_.view() ? 0 : -1;
    }
    QAccessible::State state() const override {
        QAccessible::State state = SpokenControl::state();
        state.expandable = true;
        state.expanded = combo_.view()->isVisible();
        state.collapsed = !state.expanded;
        return state;
    }

  protected:
    Handler pressed() const override {
        return [combo = &combo_] { combo->showPopup(); };
    }

  private:
    Combo& combo_;
};

QAccessibleInterface* spoken(const QString&, QObject* object) {
    if (auto* label = dynamic_cast<Label*>(object)) return new SpokenLabel(*label);
    if (auto* picture = dynamic_cast<Picture*>(object)) return new SpokenPicture(*picture);
    if (auto* combo = dynamic_cast<Combo*>(object)) return new SpokenCombo(*combo);
    if (auto* rule = dynamic_cast<Rule*>(object)) return new QAccessibleWidget(rule, QAccessible::Separator);
    return nullptr; // the toolkit knows the others
}

} // namespace

bool showsValue(const Label& label) {
    const Role role = roleOf(&label);
    return role == Role::Value || role == Role::Detail || role == Role::Figure;
}

void installSpokenLabels() { QAccessible::installFactory(spoken); }

} // namespace zv::forms
