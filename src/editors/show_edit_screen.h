// The Show-Edit screen of a kind: it walks the rows of the channel one by one and lets the row on display be modified
// or removed. It is also the place where the parts of a recording are picked.
#pragma once

#include "editors/editor_screen.h"
#include "editors/record_walk.h"

namespace zv::editors {

class ShowEditScreen : public EditorScreen {
  public:
    ShowEditScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind);

    /// Loads the row at the remembered position from the channel.
    void Carga() override;
    /// Empties the screen for an empty channel.
    virtual void Limpiar();
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
    void BtnModificar_Click();
    void BtnEliminar_Click();
    void BtnGuardar_Click();
    void BtnDeshacer_Click();
    void BtnImagenEliminar_Click();
    void Imagen_DblClick();
    void BtnRegresar_Click();
    void paintBehind(QPainter& painter) override;

    /// Moves "Back" to where it is seen.
    void revealBack();

    RecordWalk walk_;

  private:
    void connectButtons();
    void connectBoxes();
    void setKey(qint32 key);
    void accept();
    void modify();
    void relock();
    void removeRow();
    void reportAndReload();
};

} // namespace zv::editors
