// The opening screen.
#pragma once

#include "shell/contract/screen.h"

namespace zv::report {

class FormPresentacion : public shell::Screen {
  public:
    FormPresentacion(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    void paintEvent(QPaintEvent* event) override;

  private:
    void LabContinuar_Click();
};

} // namespace zv::report
