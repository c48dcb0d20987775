// The Select screens that depart from the pattern.
#pragma once

#include "selection/select_screen.h"

namespace zv::selection {

/// Works: the words of the ordering list stand beside the wrong columns from "Movements" on.
class FormReg1SelObra : public SelectScreen {
  public:
    FormReg1SelObra(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    QString orderColumn(int row) const override;
};

/// Orchestras, ensembles and choirs: a filter on the name carries the kind of body into the statement.
class FormReg1SelOrquesta : public SelectScreen {
  public:
    FormReg1SelOrquesta(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    QString term() const override;
};

} // namespace zv::selection
