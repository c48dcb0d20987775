// The screen about the program.
#pragma once

#include "shell/contract/screen.h"

namespace zv::report {

class FormAcercaDe : public shell::Screen {
  public:
    FormAcercaDe(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    void paintBehind(QPainter& painter) override;
};

} // namespace zv::report
