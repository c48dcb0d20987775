// The editors of works: the patterns with the movements.
#pragma once

#include "editors/add_screen.h"
#include "editors/records1/movements_panel.h"
#include "editors/show_edit_screen.h"

namespace zv::editors {

class FormReg1AnaObra : public AddScreen {
  public:
    FormReg1AnaObra(shell::Context& context, QWidget* parent, const QString& name);
    void Limpiar() override;

  protected:
    void Form_Load() override { movements_.replayLayout(); }
    void fillBoxes() override;
    QString headingText() const override { return RistraNombre(); }
    QString fieldText(int i) override;
    void saveFailed() override { Carga(); }

  private:
    QString RistraNombre() const;
    void rememberMovements();
    MovementsPanel movements_;
};

class FormReg1MosObra : public ShowEditScreen {
  public:
    FormReg1MosObra(shell::Context& context, QWidget* parent, const QString& name);
    void Limpiar() override;
    void Bloquear(bool locked) override;

  protected:
    void Form_Load() override;
    void showRow() override;
    QString headingText() const override { return RistraNombre(); }
    QString fieldText(int i) override;

  private:
    QString RistraNombre() const;
    MovementsPanel movements_;
};

} // namespace zv::editors
