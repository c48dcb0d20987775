// The List screens that depart from the pattern.
#pragma once

#include "listing/list_screen.h"

namespace zv::listing {

/// Works: movements and times are told in words.
class FormReg1LisObra : public ListScreen {
  public:
    FormReg1LisObra(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    QString cellText(int item) override;
    QString paperText(int item) override;
};

/// Orchestras: a new list starts the page and the zoom of the conductors anew, and leaves its own.
class FormReg1LisOrquesta : public ListScreen {
  public:
    FormReg1LisOrquesta(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    store::ListMemory& listedMemory() override { return store().memory.of(store::Kind::Director).MemoLis; }
};

} // namespace zv::listing
