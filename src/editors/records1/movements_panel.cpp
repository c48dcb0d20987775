#include "editors/records1/movements_panel.h"

#include "platform/base/text.h"
#include <cmath>

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;

namespace {

constexpr int MaxMovements = 150;
constexpr int NarrowLeft = 4740, NarrowWidth = 5130, WideLeft = 3555, WideWidth = 6315;
constexpr int NarrowName = 3585, WideName = 4770, TimeColumn = 385;
const QString Narrow = u"<>"_s, Wide = u"><"_s;

double number(const QString& text) { return std::abs(Val(text)); }

QString cellOf(const QString& text) { return CStr(number(text)); }

} // namespace

void MovementsPanel::suma() {
    double hours = 0, minutes = 0, seconds = 0;
    // One carry a row at the most, however large the number.
    for (int row = 0; row < rows(); ++row) {
        seconds = std::nearbyint(seconds + number(MSFlexGrid1->TextMatrix(row, 3)));
        if (seconds > 59) {
            ++minutes;
            seconds -= 60;
        }
        minutes = std::nearbyint(minutes + number(MSFlexGrid1->TextMatrix(row, 2)));
        if (minutes > 59) {
            ++hours;
            minutes -= 60;
        }
        hours = std::nearbyint(hours + number(MSFlexGrid1->TextMatrix(row, 1)));
    }
    TxtTotal->setCaption(store::clockText({hours, minutes, seconds}));
    SegundosTotales = toLong(hours * 3600 + minutes * 60 + seconds);
}

void MovementsPanel::DepurarTabla() {
    if (Trim(TxtMovimiento->Text()).isEmpty()) {
        TxtMovimiento->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (emptyIfAbove59(*TxtMinutos) || emptyIfAbove59(*TxtSegundos)) return;
    for (TextBox* box : timeBoxes())
        if (box->Text().isEmpty()) {
            box->setText(u"00"_s);
            break;
        }
    for (TextBox* box : {TxtMinutos, TxtSegundos})
        if (box->Text().size() == 1) {
            box->setText(u"0"_s + box->Text());
            break;
        }
}

bool MovementsPanel::emptyIfAbove59(TextBox& box) {
    if (Val(box.Text()) <= 59) return false;
    box.setText({});
    box.setFocus(Qt::OtherFocusReason);
    return true;
}

// The tests end at an empty box: those behind it are not looked at.
bool MovementsPanel::timesRefused() {
    for (TextBox* box : timeBoxes()) {
        if (box->Text().isEmpty()) return false;
        if (IsNumeric(box->Text())) continue;
        box->setText({});
        box->setFocus(Qt::OtherFocusReason);
        return true;
    }
    return false;
}

void MovementsPanel::BtnAMList_Click() {
    const bool adding = BtnAMList->text() == store::EtiAnadir;
    if (Val(TxtNumeroMovimientos->Caption()) >= MaxMovements && adding) {
        msgBox_(store::MensaMax150Movimientos, box::Warning);
        return;
    }
    if (timesRefused()) return;
    if (Trim(TxtMovimiento->Text()).isEmpty() && adding) {
        TxtMovimiento->setFocus(Qt::OtherFocusReason);
        return;
    }
    if (emptyIfAbove59(*TxtMinutos) || emptyIfAbove59(*TxtSegundos)) return;
    for (TextBox* box : timeBoxes())
        if (box->Text().isEmpty()) box->setText(u"00"_s);
    MSFlexGrid1->setCols(4);
    bool removed = false;
    if (adding) {
        DepurarTabla();
        MSFlexGrid1->setRows(rows() + 1);
        writeRow(rows() - 1);
        clearStrip();
        TxtMovimiento->setFocus(Qt::OtherFocusReason);
    } else if (BtnAMList->text() == store::EtiModificar && rows() == 0) {
        // The screen was cleaned in the middle of a change: what is typed becomes a movement at the next click.
        BtnAMList->setText(store::EtiAnadir);
    } else if (BtnAMList->text() == store::EtiModificar) {
        DepurarTabla();
        removed = Trim(TxtMovimiento->Text()).isEmpty();
        removed ? removeRow() : changeRow();
        TxtMovimiento->setFocus(Qt::OtherFocusReason);
    }
    if (!removed) {
        setColumns();
        TxtNumeroMovimientos->setCaption(QString::number(rows()));
        suma();
    }
    rules_.clicked();
    copyToMirror();
}

void MovementsPanel::writeRow(int row) {
    MSFlexGrid1->setTextMatrix(row, 0, TxtMovimiento->Text());
    MSFlexGrid1->setTextMatrix(row, 1, cellOf(TxtHoras->Text()));
    MSFlexGrid1->setTextMatrix(row, 2, cellOf(TxtMinutos->Text()));
    MSFlexGrid1->setTextMatrix(row, 3, cellOf(TxtSegundos->Text()));
}

void MovementsPanel::changeRow() {
    writeRow(FilaMovimiento);
    clearStrip();
    BtnAMList->setText(rules_.changedCaption);
}

void MovementsPanel::removeRow() {
    if (rows() == 1) {
        MSFlexGrid1->Clear();
        MSFlexGrid1->setCols(0);
        MSFlexGrid1->setRows(0);
    } else {
        MSFlexGrid1->RemoveItem(FilaMovimiento);
    }
    BtnAMList->setText(store::EtiAnadir);
    clearStrip();
    TxtNumeroMovimientos->setCaption(QString::number(rows()));
    suma();
}

void MovementsPanel::MSFlexGrid1_DblClick() {
    if (rows() == 0 || !rules_.mayPick()) return;
    FilaMovimiento = toInteger(MSFlexGrid1->RowSel());
    TxtMovimiento->setText(MSFlexGrid1->TextMatrix(FilaMovimiento, 0));
    int column = 1;
    for (TextBox* box : timeBoxes()) {
        const QString text = MSFlexGrid1->TextMatrix(FilaMovimiento, column++);
        box->setText(rules_.pickedAsNumbers ? cellOf(text) : text);
    }
    BtnAMList->setText(rules_.pickedCaption);
}

void MovementsPanel::setColumns() {
    MSFlexGrid1->setColWidth(0, MSFlexGrid1->Width() == NarrowWidth ? NarrowName : WideName);
    for (int column = 1; column <= 3; ++column) MSFlexGrid1->setColWidth(column, TimeColumn);
    for (int row = 0; row < rows(); ++row)
        for (int column = 0; column <= 3; ++column)
            MSFlexGrid1->setAlignment(row, column, column == 0 ? ToLeft : ToRight);
}

void MovementsPanel::clearStrip() {
    for (TextBox* box : {TxtMovimiento, TxtHoras, TxtMinutos, TxtSegundos}) box->setText({});
}

void MovementsPanel::clear() {
    clearStrip();
    MSFlexGrid1->Clear();
    MSFlexGrid1->setRows(0);
    MSFlexGrid1->setCols(0);
    TxtTotal->setCaption({});
    TxtNumeroMovimientos->setCaption({});
}

void MovementsPanel::copyToMirror() {
    for (int row = 0; row < rows(); ++row)
        for (int column = 0; column < 4; ++column) rules_.mirror.at(row, column) = MSFlexGrid1->TextMatrix(row, column);
}

void MovementsPanel::showMirror(int count) {
    MSFlexGrid1->setRows(count);
    MSFlexGrid1->setCols(4);
    MSFlexGrid1->setRowHeightMin(300);
    for (int row = 0; row < count; ++row)
        for (int column = 0; column < 4; ++column)
            MSFlexGrid1->setTextMatrix(row, column, rules_.mirror.at(row, column));
    setColumns();
}

void MovementsPanel::showStored(const QString& names, const QString& times, const QString& total,
                                const QString& count) {
    clear();
    if (store::hasMovements(names)) {
        const std::vector<QString> list = store::movementNames(names);
        MSFlexGrid1->setRows(static_cast<int>(list.size()));
        MSFlexGrid1->setCols(4);
        MSFlexGrid1->setRowHeightMin(300);
        for (int row = 0; row < rows(); ++row) MSFlexGrid1->setTextMatrix(row, 0, list[std::size_t(row)]);
        setColumns();
        // Surplus times keep overwriting the last row, missing ones leave their cells empty.
        int row = 0;
        for (const double seconds : rows() ? store::movementSeconds(times) : std::vector<double>{}) {
            const store::Duration split = store::splitSeconds(seconds);
            MSFlexGrid1->setTextMatrix(row, 1, CStr(split.hours));
            MSFlexGrid1->setTextMatrix(row, 2, CStr(split.minutes));
            MSFlexGrid1->setTextMatrix(row, 3, CStr(split.seconds));
            if (row + 1 != rows()) ++row;
        }
        SegundosTotales = toLong(Val(total));
        TxtTotal->setCaption(store::clockText(store::splitSeconds(SegundosTotales)));
    }
    TxtNumeroMovimientos->setCaption(Val(count) != 0 ? count : QString());
}

QString MovementsPanel::storedNames() const {
    QString names = rows() ? QString() : QString(store::MovementEnd);
    for (int row = 0; row < rows(); ++row) names += rules_.mirror.at(row, 0) + store::MovementEnd;
    return names;
}

QString MovementsPanel::storedTimes() const {
    QString times = rows() ? QString() : QString(store::MovementEnd);
    for (int row = 0; row < rows(); ++row)
        times += Str(Val(rules_.mirror.at(row, 1)) * 3600 + Val(rules_.mirror.at(row, 2)) * 60 +
                     Val(rules_.mirror.at(row, 3))) +
                 store::MovementEnd;
    return times;
}

QString MovementsPanel::takeTotal() {
    const QString total = QString::number(SegundosTotales);
    SegundosTotales = 0;
    return total;
}

void MovementsPanel::setLocked(bool locked) {
    for (TextBox* box : {TxtMovimiento, TxtHoras, TxtMinutos, TxtSegundos}) box->setLocked(locked);
    BtnAMList->setEnabled(!locked);
    MSFlexGrid1->setFocusPolicy(locked ? Qt::ClickFocus : Qt::StrongFocus);
}

void MovementsPanel::replayLayout() {
    if (!rules_.wide) return;
    toggleLayout();
}

void MovementsPanel::toggleLayout() {
    const bool wide = LabExpandir->Caption() == Narrow;
    LabExpandir->setCaption(wide ? Wide : Narrow);
    MSFlexGrid1->setLeft(wide ? WideLeft : NarrowLeft);
    MSFlexGrid1->setWidth(wide ? WideWidth : NarrowWidth);
    if (rows()) MSFlexGrid1->setColWidth(0, wide ? WideName : NarrowName);
    TxtMovimiento->setLeft(wide ? 3570 : 4755);
    TxtMovimiento->setWidth(wide ? 4845 : 3660);
    BtnAMList->setLeft(wide ? 3570 : 4755);
    BtnAMList->setWidth(wide ? 6015 : 4830);
}

} // namespace zv::editors
