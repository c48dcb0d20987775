// What the tests of the works' editors share: movements typed by hand, and the grid as one text.
#pragma once

#include "editors/editor_member.h"
#include <QTest>

namespace zv::test {

using namespace Qt::StringLiterals;

class WorkDesk : public Desk {
  protected:
    const int addNumber = shell::screenNumber(1, shell::Function::Add, 1);
    const int showNumber = shell::screenNumber(1, shell::Function::ShowEdit, 1);

    forms::FlexGrid& grid() { return hands->get<forms::FlexGrid>(u"MSFlexGrid1"_s); }
    forms::TextBox& box(const QString& name) { return hands->get<forms::TextBox>(name); }
    /// Replaces the text of a box of the strip, whose text is not selected by moving to it.
    void put(const QString& name, const QString& text) {
        box(name).setFocus(Qt::MouseFocusReason);
        box(name).selectAll();
        QTest::keyClick(&box(name), Qt::Key_Delete);
        if (!text.isEmpty()) hands->type(name, text);
    }
    using Desk::put;
    void strip(const QString& name, const QString& hours, const QString& minutes, const QString& seconds) {
        for (const auto& [control, text] : {std::pair(u"TxtMovimiento"_s, name), std::pair(u"TxtHoras"_s, hours),
                                            std::pair(u"TxtMinutos"_s, minutes), std::pair(u"TxtSegundos"_s, seconds)})
            if (box(control).Text() != text) put(control, text);
    }
    /// Types a movement and clicks the button under it.
    void movement(const QString& name, const QString& hours, const QString& minutes, const QString& seconds) {
        strip(name, hours, minutes, seconds);
        hands->click(u"BtnAMList"_s);
    }
    void pick(int row) {
        grid().scrollToItem(grid().item(row, 0));
        const QPoint at = grid().visualItemRect(grid().item(row, 0)).center();
        QTest::mouseClick(grid().viewport(), Qt::LeftButton, {}, at);
        QTest::mouseDClick(grid().viewport(), Qt::LeftButton, {}, at);
    }
    /// The texts of the strip and the caption of its button.
    QString stripText() {
        QStringList texts;
        for (const char* name : {"TxtMovimiento", "TxtHoras", "TxtMinutos", "TxtSegundos", "BtnAMList"})
            texts += hands->text(QLatin1String(name));
        return texts.join(u'|');
    }
    /// The rows of the grid, then total and number of movements.
    QString movements() {
        QStringList lines;
        for (int row = 0; row < grid().Rows(); ++row) {
            QStringList cells;
            for (int col = 0; col < grid().Cols(); ++col) cells += grid().TextMatrix(row, col);
            lines += cells.join(u'|');
        }
        lines += u'[' + hands->text(u"TxtTotal"_s) + u"] ["_s + hands->text(u"TxtNumeroMovimientos"_s) + u']';
        return lines.join(u'\n');
    }
    QStringList storedMovements() {
        return stored(u"Obra"_s, u"Movimientos, TiempoMovimientos, TiempoTotal, NumeroMovimientos"_s);
    }
    void identify() {
        hands->type(u"TxtAutor"_s, u"Vega"_s);
        hands->type(u"TxtNombre"_s, u"Symphony"_s);
    }
    /// Layout of the movements in twips: caption of the toggle, grid, first column, name box, button.
    QString layout() {
        auto& button = hands->get<forms::Button>(u"BtnAMList"_s);
        auto& name = box(u"TxtMovimiento"_s);
        return u"%1 grid %2 %3 column %4 name %5 %6 button %7 %8"_s.arg(hands->text(u"LabExpandir"_s))
            .arg(grid().Left())
            .arg(grid().Width())
            .arg(grid().Rows() ? grid().ColWidth(0) : 0)
            .arg(name.Left())
            .arg(name.Width())
            .arg(button.Left())
            .arg(button.Width());
    }
};

} // namespace zv::test
