// What a screen reader is told on each screen.
#include "app/every_screen.h"

#include <QAccessible>

using namespace Qt::StringLiterals;

namespace zv::test {
namespace {

class Names : public EveryScreen {
  protected:
    static QAccessibleInterface& spoken(QWidget* widget) { return *QAccessible::queryAccessibleInterface(widget); }
    QAccessibleInterface& spoken(const QString& name) { return spoken(&hands->get<QWidget>(name)); }

    QString nameOf(const QString& control) { return spoken(control).text(QAccessible::Name); }
    static QPoint placeOf(const QWidget& widget) { return widget.mapTo(widget.window(), QPoint()); }

    /// Words and lines that only decorate have nothing to say; pictures and labels hold a place before they show.
    static bool speaks(forms::Placed* control) {
        switch (forms::roleOf(control->widget())) {
        case forms::Role::None:
        case forms::Role::Frame:
        case forms::Role::Rule:
        case forms::Role::Panel:
        case forms::Role::Name: return dynamic_cast<forms::TabControl*>(control);
        default: return !control->widget()->objectName().startsWith(u"ImagenT"_s);
        }
    }
    static bool isBox(const QWidget* widget) {
        return qobject_cast<const QLineEdit*>(widget) || qobject_cast<const QPlainTextEdit*>(widget) ||
               qobject_cast<const QComboBox*>(widget);
    }
};

TEST_F(Names, EveryControlHasAName) {
    int told = 0;
    const auto check = [&](QWidget& form) {
        for (forms::Placed* control : controlsOf(form)) {
            if (!speaks(control)) continue;
            QWidget* widget = control->widget();
            const QString what = widget->objectName() + u' ' + QLatin1StringView(widget->metaObject()->className());
            EXPECT_FALSE(spoken(widget).text(QAccessible::Name).trimmed().isEmpty()) << what.toStdString();
            const bool tabs = dynamic_cast<forms::TabControl*>(widget); // the toolkit tells of each tab
            EXPECT_TRUE(tabs || !spoken(widget).text(QAccessible::Description).trimmed().isEmpty())
                << what.toStdString();
            EXPECT_FALSE(widget->accessibleDescription().isEmpty()) << what.toStdString();
            EXPECT_NE(spoken(widget).role(), QAccessible::NoRole) << what.toStdString();
            ++told;
        }
    };
    onEach([&](int, forms::Form& screen) { check(screen); });
    check(strip());
    EXPECT_GT(told, 2000);
}

TEST_F(Names, NoTwoBoxesOfAScreenShareOne) {
    onEach([&](int, forms::Form& screen) {
        QMap<QString, QString> names;
        for (forms::Placed* control : controlsOf(screen)) {
            const QWidget* box = control->widget();
            if (!isBox(box)) continue;
            const QString name = spoken(control->widget()).text(QAccessible::Name);
            EXPECT_FALSE(names.contains(name)) << name.toStdString() << " names " << box->objectName().toStdString()
                                               << " and " << names[name].toStdString();
            names[name] = box->objectName();
        }
    });
}

// One control of each sort, on screens where captions stand left, above, below, or serve several boxes.
TEST_F(Names, AreThoseThatASeeingUserReads) {
    hands->go(2);
    EXPECT_EQ(nameOf(u"TxtAutor"_s), u"Author"_s);
    EXPECT_EQ(nameOf(u"TxtNumero"_s), u"No."_s);
    EXPECT_EQ(nameOf(u"TxtNumeroOpus"_s), u"Opus No."_s);
    EXPECT_EQ(nameOf(u"TxtNumeroCatalogo"_s), u"Catalogue No."_s);
    EXPECT_EQ(nameOf(u"TxtFecha1"_s), u"Dates"_s);
    EXPECT_EQ(nameOf(u"TxtFecha2"_s), u"Dates 2"_s);
    EXPECT_EQ(nameOf(u"TxtNotas"_s), u"Notes"_s);
    EXPECT_EQ(nameOf(u"BtnGuardar"_s), u"Save"_s);
    EXPECT_EQ(spoken(u"BtnGuardar"_s).text(QAccessible::Description), u"Save the Record"_s);
    const auto bonds = spoken(u"TxtAutor"_s).relations(QAccessible::Label);
    ASSERT_EQ(bonds.size(), 1);
    EXPECT_EQ(bonds.front().first->text(QAccessible::Name), u"Author"_s) << "Its caption is its label.";
    hands->go(8);
    EXPECT_EQ(nameOf(u"ComboCampo"_s), u"Choose Field"_s);
    EXPECT_EQ(nameOf(u"ComboCampoOrden"_s), u"Order"_s);
    EXPECT_EQ(nameOf(u"ComboCriterioOrden"_s), u"Order, Choose Criteria"_s);
    hands->go(15);
    EXPECT_EQ(nameOf(u"TxtOrden"_s), u"Order"_s);
    EXPECT_EQ(nameOf(u"HScroll"_s), u"Previous - Next"_s);
    EXPECT_EQ(nameOf(u"BtnReducirAmpliar"_s), u"Reduce"_s);
    hands->click(u"BtnReducirAmpliar"_s);
    EXPECT_EQ(nameOf(u"BtnReducirAmpliar"_s), u"Extend"_s) << "The name follows the caption.";
    hands->go(18);
    EXPECT_EQ(nameOf(u"MSFlexGrid1"_s), u"Conductors Group"_s);
    hands->go(21);
    EXPECT_EQ(nameOf(u"ImagenObra"_s), u"Show Work (Double Click)"_s);
    EXPECT_EQ(nameOf(u"HScroll"_s), u"Previous - Next"_s);
    hands->go(22);
    EXPECT_EQ(nameOf(u"HScroll"_s), u"Expand Rows"_s);
    EXPECT_EQ(nameOf(u"List"_s), u"Choose Fields"_s);
}

TEST_F(Names, ThePaintedOnesHaveRolesAndValues) {
    hands->go(15);
    QAccessibleInterface& value = spoken(u"LabNumRegSeleccion"_s);
    EXPECT_EQ(value.role(), QAccessible::StaticText);
    EXPECT_EQ(value.text(QAccessible::Name), u"Selection"_s);
    EXPECT_EQ(value.text(QAccessible::Value), u"2"_s);
    ASSERT_TRUE(value.textInterface());
    EXPECT_EQ(value.textInterface()->text(0, value.textInterface()->characterCount()), u"2"_s);
    EXPECT_EQ(spoken(u"Imagen"_s).role(), QAccessible::Graphic);
    EXPECT_EQ(spoken(u"HScroll"_s).role(), QAccessible::ScrollBar);
    EXPECT_EQ(spoken(u"HScroll"_s).valueInterface()->currentValue(), 1);
    EXPECT_EQ(spoken(u"TabNivel1"_s).role(), QAccessible::PageTabList);
    EXPECT_EQ(spoken(u"TabNivel1"_s).child(1)->text(QAccessible::Name).trimmed(), u"Records II"_s);
    // A label-button is pressed like a button; one that is locked is not.
    QAccessibleInterface& button = spoken(u"BtnReducirAmpliar"_s);
    EXPECT_EQ(button.role(), QAccessible::Button);
    const QString press = QAccessibleActionInterface::pressAction();
    ASSERT_TRUE(button.actionInterface()->actionNames().contains(press));
    button.actionInterface()->doAction(press);
    EXPECT_EQ(hands->text(u"BtnReducirAmpliar"_s), u"Extend"_s);
    EXPECT_FALSE(spoken(u"Imagen"_s).actionInterface()->actionNames().contains(press));
    hands->go(8);
    QAccessibleInterface& combo = spoken(u"ComboCriterioOrden"_s);
    EXPECT_EQ(combo.role(), QAccessible::ComboBox);
    EXPECT_EQ(combo.text(QAccessible::Value), u"Historical"_s);
    ASSERT_TRUE(combo.child(0));
    EXPECT_EQ(combo.child(0)->childCount(), hands->get<forms::Combo>(u"ComboCriterioOrden"_s).ListCount());
    hands->go(22);
    hands->tick({u"Surname"_s});
    hands->click(u"BtnListar"_s);
    QAccessibleTableInterface* table = spoken(u"Tabla"_s).tableInterface();
    ASSERT_TRUE(table);
    EXPECT_EQ(table->rowCount(), 2);
    EXPECT_EQ(table->columnCount(), 2);
    EXPECT_EQ(table->columnDescription(1), u"Surname"_s);
    EXPECT_EQ(table->cellAt(1, 0)->text(QAccessible::Name), u"2"_s);
}

} // namespace
} // namespace zv::test
