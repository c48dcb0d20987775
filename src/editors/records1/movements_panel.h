// The movements of a work on its editors: the strip to type one, the grid, the total, and the mirror that is saved.
#pragma once

#include "editors/editor_screen.h"
#include "platform/forms/flex_grid.h"
#include "store/movements.h"

namespace zv::editors {

/// What differs between the Add and the Show-Edit screen of works.
struct MovementRules {
    store::FixedTable& mirror; ///< name, hours, minutes, seconds of each row of the grid
    bool& wide;                ///< remembered layout
    QString pickedCaption;     ///< caption of the button after a double-click on a row
    QString changedCaption;    ///< and after the row was changed
    bool nameIsTip;            ///< the box of the name carries its text as tip
    bool pickedAsNumbers;      ///< the time boxes take the numbers of the cells, not their texts
    std::function<bool()> mayPick;
    std::function<void()> clicked; ///< the button has done its work, before the mirror is copied
};

class MovementsPanel {
  public:
    MovementsPanel(EditorScreen& screen, MovementRules rules);

    /// Adds up the grid into TxtTotal and SegundosTotales.
    void suma();
    /// Empties the strip, the grid and the labels; the caption of the button stays.
    void clear();
    void clearStrip();
    /// Rebuilds the grid from the mirror.
    void showMirror(int rows);
    /// Rebuilds grid and total from what is stored.
    void showStored(const QString& names, const QString& times, const QString& total, const QString& count);
    void copyToMirror();

    /// The four fields as they are stored. Reading the total sets SegundosTotales to 0.
    QString storedNames() const;
    QString storedTimes() const;
    QString takeTotal();
    int rows() const { return MSFlexGrid1->Rows(); }

    void setLocked(bool locked);
    /// Shows the remembered layout without changing what is remembered.
    void replayLayout();
    /// A control of the strip or the grid has gained the focus.
    forms::Handler GotFocus;

    forms::TextBox *TxtMovimiento, *TxtHoras, *TxtMinutos, *TxtSegundos;
    forms::Label *TxtTotal, *TxtNumeroMovimientos;

  private:
    void addControls(EditorScreen& screen);
    void connectControls();
    void BtnAMList_Click();
    void MSFlexGrid1_DblClick();
    void DepurarTabla();
    bool timesRefused();
    bool emptyIfAbove59(forms::TextBox& box);
    void writeRow(int row);
    void changeRow();
    void removeRow();
    void setColumns();
    void toggleLayout();
    std::array<forms::TextBox*, 3> timeBoxes() const { return {TxtHoras, TxtMinutos, TxtSegundos}; }

    MovementRules rules_;
    qint32 SegundosTotales = 0;
    qint16 FilaMovimiento = 0;
    forms::Button* BtnAMList;
    forms::FlexGrid* MSFlexGrid1;
    forms::Label* LabExpandir;
    std::function<int(const QString&, int)> msgBox_;
};

} // namespace zv::editors
