// The controls of the movements: what stands where, and which handler each one runs.
#include "editors/records1/movements_panel.h"
#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using namespace forms;

MovementsPanel::MovementsPanel(EditorScreen& screen, MovementRules rules) : rules_(std::move(rules)) {
    addControls(screen);
    connectControls();
    msgBox_ = [&screen](const QString& text, int style) { return screen.MsgBox(text, style); };
}

void MovementsPanel::addControls(EditorScreen& screen) {
    TxtNumeroMovimientos = screen.add<Label>(u"TxtNumeroMovimientos"_s, {5745, 2295, 480, 270});
    TxtNumeroMovimientos->dress(Role::Value, {}, type::G, false, Qt::AlignCenter);
    TxtTotal = screen.add<Label>(u"TxtTotal"_s, {8730, 2295, 1140, 270});
    TxtTotal->dress(Role::Value, {}, type::G, false, Qt::AlignCenter);
    TxtMovimiento = screen.add<TextBox>(u"TxtMovimiento"_s, {4755, 2595, 3660, 315});
    TxtMovimiento->setMaxLength(75);
    TxtHoras = screen.add<TextBox>(u"TxtHoras"_s, {8415, 2595, 390, 315});
    TxtMinutos = screen.add<TextBox>(u"TxtMinutos"_s, {8805, 2595, 390, 315});
    TxtSegundos = screen.add<TextBox>(u"TxtSegundos"_s, {9195, 2595, 390, 315});
    TxtMovimiento->setAccessibleName(u"Movement"_s);
    TxtHoras->setAccessibleName(u"Hours"_s);
    TxtMinutos->setAccessibleName(u"Minutes"_s);
    TxtSegundos->setAccessibleName(u"Seconds"_s);
    for (TextBox* box : timeBoxes()) {
        box->setMaxLength(2);
        box->setAlignment(Qt::AlignCenter);
    }
    LabExpandir = screen.add<Label>(u"LabExpandir"_s, {9600, 2595, 270, 630});
    LabExpandir->dress(Role::LabelButton, u"<>"_s, type::XS, true, Qt::AlignCenter);
    LabExpandir->setAccessibleName(u"Reduce-Extend"_s);
    BtnAMList = screen.add<Button>(u"BtnAMList"_s, {4755, 2925, 4830, 300});
    BtnAMList->setType(type::G, true);
    BtnAMList->setText(store::EtiAnadir);
    BtnAMList->setToolTipText(u"Add Movement. Modify-Remove (Double Click) Movement"_s);
    MSFlexGrid1 = screen.add<FlexGrid>(u"MSFlexGrid1"_s, {4740, 3240, 5130, 1830});
    MSFlexGrid1->setType(type::G, false);
    MSFlexGrid1->setAccessibleName(u"Movements"_s);
    MSFlexGrid1->setRowHeightMin(300);
    MSFlexGrid1->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    chainTabStops({screen.findChild<QWidget*>(u"TxtSubtitulo"_s), TxtMovimiento, TxtHoras, TxtMinutos, TxtSegundos,
                   BtnAMList, MSFlexGrid1});
}

void MovementsPanel::connectControls() {
    TxtMovimiento->KeyPress = [](QChar key) { return key != store::MovementEnd; };
    TxtMovimiento->Change = [this] {
        keepOut(*TxtMovimiento, store::MovementEnd);
        if (rules_.nameIsTip) TxtMovimiento->setToolTipText(TxtMovimiento->Text());
    };
    for (TextBox* box : timeBoxes())
        box->Change = [box] {
            if (!IsNumeric(box->Text())) box->setText({});
        };
    for (TextBox* box : {TxtMovimiento, TxtHoras, TxtMinutos, TxtSegundos}) box->GotFocus = [this] { fire(GotFocus); };
    MSFlexGrid1->GotFocus = [this] { fire(GotFocus); };
    MSFlexGrid1->DblClick = [this] { MSFlexGrid1_DblClick(); };
    BtnAMList->Click = [this] { BtnAMList_Click(); };
    LabExpandir->Click = [this] {
        toggleLayout();
        rules_.wide = !rules_.wide;
    };
}

} // namespace zv::editors
