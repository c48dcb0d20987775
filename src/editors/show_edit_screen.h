// The Show-Edit screen of a kind: it walks the rows of the channel one by one and lets the row on display be modified
// or removed. It is also the place where the parts of a recording are picked.
#pragma once

#include "editors/editor_screen.h"

namespace zv::editors {

class ShowEditScreen : public EditorScreen {
  public:
    ShowEditScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind);

    /// Loads the row at the remembered position from the channel.
    void Carga() override;
    /// Empties the screen for an empty channel.
    virtual void Limpiar();
    /// Sets the four buttons to the state of viewing.
    void ValoresInicio();
    /// Locks or frees the boxes of the record.
    virtual void Bloquear(bool locked);

  protected:
    void Form_Load() override;
    void Form_Unload() override;

    /// Shows the fields of the current row.
    virtual void showRow();
    virtual void changed(int i);
    /// Accept has brought the screen back to viewing, after a success or a failure.
    virtual void accepted() {}
    virtual void HScroll_Change();
    void TxtOrden_Change();
    void BtnModificar_Click();
    void BtnEliminar_Click();
    void BtnGuardar_Click();
    void BtnDeshacer_Click();
    void BtnImagenEliminar_Click();
    void Imagen_DblClick();
    void BtnReducirAmpliar_Click();
    void BtnRegresar_Click();
    void paintBehind(QPainter& painter) override;

    bool hasRows() { return Data().Recordset().RecordCount() != 0; }
    /// Moves "Back" to where it is seen.
    void revealBack();

    bool Navegable = false; ///< the walk may act
    forms::Frame* Frame1;
    forms::ScrollBar* HScroll;
    forms::TextBox* TxtOrden;
    forms::Button *BtnRegresar, *BtnModificar, *BtnEliminar, *BtnGuardar, *BtnDeshacer;
    forms::Label *BtnReducirAmpliar, *LabNumRegSeleccion, *LabNumFiltros, *LabNumRegEliminados;

  private:
    void addFrame();
    void addCounters();
    void addButtons();
    void connectBoxes();
    void setKey(qint32 key);
    void accept();
    void modify();
    void relock();
    void removeRow();
    void reportAndReload();
    /// Shows which of the two states the screen is in.
    void markState();
};

} // namespace zv::editors
