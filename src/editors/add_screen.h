// The Add screen of a kind: one new record after another. Everything typed goes to the working memory at once and comes
// back when the user returns.
#pragma once

#include "editors/editor_screen.h"

namespace zv::editors {

class AddScreen : public EditorScreen {
  public:
    AddScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind);

    /// Fills the screen from the working memory.
    void Carga() override;
    /// Empties the boxes and the memory of the record under entry.
    virtual void Limpiar();

  protected:
    /// Puts what was typed back into the boxes.
    virtual void fillBoxes();
    /// A box has changed; its text is in the memory afterwards.
    virtual void changed(int i);
    /// What follows the report of a failed save: the screen is loaded anew and what was typed is lost.
    virtual void saveFailed();
    void BtnGuardar_Click();
    void BtnDeshacer_Click();
    void BtnImagenEliminar_Click();
    void Imagen_DblClick();
    void paintBehind(QPainter& painter) override;

    forms::Button *BtnGuardar, *BtnDeshacer;
    forms::Label *LabNumRegNuevos, *LabNumRegTotal;

    QString& memo(int i) { return memory().Memo[static_cast<std::size_t>(i)]; }

  private:
    void addCounters();
    void saved();
};

} // namespace zv::editors
