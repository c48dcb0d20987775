#include "driver/driver.h"

#include <QApplication>
#include <QClipboard>
#include <QTest>

namespace zv::driver {

using namespace Qt::StringLiterals;

QWidget* Driver::find(const QString& name) {
    for (QWidget* form : {static_cast<QWidget*>(screen()), static_cast<QWidget*>(&program_.window.Solapas())})
        if (form)
            if (auto* found = form->findChild<QWidget*>(name)) return found;
    return nullptr;
}

forms::Form* Driver::screen(const QString& name) {
    auto& strip = program_.window.Solapas();
    forms::Form* shown = strip.loadedScreen(strip.VentanaMostrandose);
    if (!name.isEmpty() && (!shown || shown->objectName() != name))
        failure_(u"The screen on display is "_s + (shown ? shown->objectName() : u"none"_s) + u", not "_s + name);
    return shown;
}

void Driver::enter() { click(u"LabContinuar"_s); }

void Driver::clickTab(forms::TabControl& tabs, int tab) {
    QTest::mouseClick(&tabs, Qt::LeftButton, {}, tabs.tabRect(tab).center());
}

void Driver::go(int number) {
    auto& strip = program_.window.Solapas();
    if (number >= shell::ReportNumber) {
        const bool about = number == shell::AboutNumber, report = number == shell::ReportNumber;
        clickTab(*strip.TabNivel1, report ? 2 : about ? 4 : 3);
        if (!about && !report)
            clickTab(*strip.TabAyuda, number == 58 ? 0 : number <= 61 ? 1 : number == 62 ? 2 : number <= 65 ? 3 : 4);
        return;
    }
    const int records = number < 29 ? 1 : 2;
    const int index = number - (records == 1 ? 1 : 29);
    clickTab(*strip.TabNivel1, records - 1);
    clickTab(records == 1 ? *strip.TabRegistros1 : *strip.TabRegistros2, index / 7);
    clickTab(*strip.TabEntidad[std::size_t(records - 1)][std::size_t(index / 7)], index % 7);
    if (strip.VentanaMostrandose != number) failure_(u"The tabs did not lead to screen %1"_s.arg(number));
}

QString Driver::text(const QString& name) {
    auto& widget = get<QWidget>(name);
    if (auto* box = dynamic_cast<forms::TextBox*>(&widget)) return box->Text();
    if (auto* memo = dynamic_cast<forms::Memo*>(&widget)) return memo->Text();
    if (auto* label = dynamic_cast<forms::Label*>(&widget)) return label->Caption();
    if (auto* combo = dynamic_cast<forms::Combo*>(&widget)) return combo->Text();
    if (auto* button = dynamic_cast<forms::Button*>(&widget)) return button->text();
    return {};
}

void Driver::click(const QString& name) { QTest::mouseClick(&get<QWidget>(name), Qt::LeftButton); }

void Driver::doubleClick(const QString& name) { QTest::mouseDClick(&get<QWidget>(name), Qt::LeftButton); }

void Driver::type(const QString& name, const QString& text) {
    auto& widget = get<QWidget>(name);
    if (widget.hasFocus()) widget.clearFocus();
    widget.setFocus(Qt::MouseFocusReason);
    if (auto* memo = dynamic_cast<forms::Memo*>(&widget)) memo->selectAll();
    if (text.isEmpty()) QTest::keyClick(&widget, Qt::Key_Delete);
    for (const QChar c : text)
        if (c == u'\n')
            QTest::keyClick(&widget, Qt::Key_Return);
        else
            QTest::sendKeyEvent(QTest::Click, &widget, Qt::Key_unknown, QString(c), Qt::NoModifier);
}

void Driver::paste(const QString& name, const QString& text) {
    auto& widget = get<QWidget>(name);
    widget.setFocus(Qt::MouseFocusReason);
    QApplication::clipboard()->setText(text);
    QTest::keyClick(&widget, Qt::Key_V, Qt::ControlModifier);
}

void Driver::choose(const QString& combo, const QString& row) {
    auto& list = get<forms::Combo>(combo);
    const int wanted = list.findText(row);
    if (wanted < 0 || !list.isEnabled()) {
        failure_(u"Can't choose "_s + row + u" in "_s + combo);
        return;
    }
    list.setFocus();
    while (list.ListIndex() < wanted) QTest::keyClick(&list, Qt::Key_Down);
    while (list.ListIndex() > wanted) QTest::keyClick(&list, Qt::Key_Up);
}

void Driver::tick(const QStringList& rows) {
    auto& list = get<forms::CheckList>(u"List"_s);
    for (int i = 0; i < list.ListCount(); ++i) {
        list.scrollToItem(list.item(i));
        if (list.Selected(i) != rows.contains(list.List(i)))
            QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(i)).center());
        if (list.Selected(i) != rows.contains(list.List(i))) failure_(u"The tick did not turn: "_s + list.List(i));
    }
}

void Driver::tickAll() {
    QStringList rows;
    auto& list = get<forms::CheckList>(u"List"_s);
    for (int i = 0; i < list.ListCount(); ++i) rows += list.List(i);
    tick(rows);
}

QString Driver::dump() {
    QStringList lines;
    forms::Form* form = screen();
    lines += form->objectName();
    for (QWidget* widget : form->findChildren<QWidget*>()) {
        const QString name = widget->objectName();
        if (name.isEmpty() || name.startsWith(u"qt_"_s) || !dynamic_cast<forms::Placed*>(widget)) continue;
        QString line = name + u" = \""_s + text(name) + u'"';
        if (!widget->isEnabled()) line += u" disabled"_s;
        if (!widget->isVisibleTo(form)) line += u" hidden"_s;
        lines += line;
    }
    return lines.join(u'\n') + u'\n';
}

QString Driver::page() {
    auto& grid = get<forms::FlexGrid>(u"Tabla"_s);
    QStringList rows;
    for (int row = 0; row < grid.Rows(); ++row) {
        QStringList cells;
        for (int col = 0; col < grid.Cols(); ++col) cells += grid.TextMatrix(row, col);
        rows += cells.join(u'|');
    }
    return rows.join(u'\n') + u'\n';
}

} // namespace zv::driver
