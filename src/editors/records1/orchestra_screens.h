// The editors of orchestras, ensembles and choirs: the patterns with three name boxes for one name.
#pragma once

#include "editors/add_screen.h"
#include "editors/records1/group_show_edit.h"
#include "editors/records1/name_boxes.h"

namespace zv::editors {

class FormReg1AnaOrquesta : public AddScreen {
  public:
    FormReg1AnaOrquesta(shell::Context& context, QWidget* parent, const QString& name);
    void Limpiar() override;

  protected:
    void fillBoxes() override;
    QString headingText() const override { return names_.text(); }
    bool identifierMissing() const override { return names_.allEmpty(); }
    QString fieldText(int i) override;

  private:
    void nameChanged(int i);
    void nameGotFocus(int i);
    NameBoxes names_;
};

class FormReg1MosOrquesta : public GroupShowEdit {
  public:
    FormReg1MosOrquesta(shell::Context& context, QWidget* parent, const QString& name);
    void Limpiar() override;
    void Bloquear(bool locked) override;

  protected:
    void showRow() override;
    QString headingText() const override { return names_.text(); }
    bool identifierMissing() const override { return names_.allEmpty(); }
    QString fieldText(int i) override;

  private:
    void nameChanged(int i);
    void nameGotFocus(int i);
    NameBoxes names_;
};

} // namespace zv::editors
