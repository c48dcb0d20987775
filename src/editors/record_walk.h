// What every Show-Edit screen is made of beside its record: the frame with the walk and the counters, the five buttons,
// and the three states viewing, modifying and removing.
#pragma once

#include "platform/forms/controls.h"
#include "platform/forms/text_box.h"
#include "shell/contract/screen.h"
#include "store/messages.h"

namespace zv::editors {

/// Where the controls of the frame and the buttons stand, in twips.
struct WalkLayout {
    forms::TwipsRect frame, heading, reduce, show, order, orderNumber, bar, directions;
    forms::TwipsRect selection, selected, selectedUnit, selectedFields, selectedFieldsUnit, filters, filtersUnit;
    forms::TwipsRect removal, removed, removedUnit, removedFields, removedFieldsUnit;
    int rules[2];                                        ///< tops of the two lines across the frame
    Qt::Alignment orderAlignment;                        ///< side on which the word "Order" stands
    int directionsType, valueType;                       ///< heights of the type
    forms::TwipsRect back, modify, remove, accept, undo; ///< the buttons
    int backType;
};

/// The frame and the buttons of a screen that shows the rows of a kind one by one. Handlers are the screen's.
class RecordWalk {
  public:
    RecordWalk(shell::Screen& screen, store::Store& store, const store::KindInfo& kind, const WalkLayout& layout);

    /// Puts the figures of the working memory into the frame and reduces it if that is remembered.
    void load();
    bool hasRows() { return rows().RecordCount() != 0; }
    /// Goes to the remembered position, or to the last row where there are fewer, and shows it on the bar.
    void standOnRemembered();

    /// The four buttons of viewing.
    void ValoresInicio();
    /// The bar, the box of the number and two of the buttons: locked for viewing, free for modifying.
    void lock(bool locked);
    bool mayModify() { return BtnEliminar->isEnabled() && hasRows(); }
    bool mayRemove() { return BtnModificar->isEnabled() && hasRows(); }
    /// From viewing to removing.
    void startRemoval();
    /// The counters and the position after a row has gone from the channel.
    void stepAfterRemoval();
    /// Shows the counters of a removal.
    void showRemoval();
    /// Hands the focus of a locked box on to "Back"; false while the boxes are free.
    bool handFocusOn();

    bool Navegable = false; ///< the walk may act
    forms::ScrollBar* HScroll;
    forms::TextBox* TxtOrden;
    forms::Button *BtnRegresar, *BtnModificar, *BtnEliminar, *BtnGuardar, *BtnDeshacer;

  private:
    void addFrame(const WalkLayout& layout);
    void addCounters(const WalkLayout& layout);
    void addButtons(const WalkLayout& layout);
    store::KindMemory& memory() { return store_.memory.of(kind_.kind); }
    jet::Recordset& rows() { return store_.Data(kind_.kind).Recordset(); }
    void HScroll_Change();
    void TxtOrden_Change();
    void BtnReducirAmpliar_Click();
    /// Shows which of the two states the screen is in.
    void markState();

    shell::Screen& screen_;
    store::Store& store_;
    const store::KindInfo& kind_;
    forms::Frame* Frame1;
    forms::Label *BtnReducirAmpliar, *LabNumRegSeleccion, *LabNumFiltros, *LabNumRegEliminados;
};

} // namespace zv::editors
