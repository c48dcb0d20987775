// Add Recording: one recording composed of records that exist already.
#pragma once

#include "editors/records1/recording_screen.h"

namespace zv::editors {

class FormReg1AnaGrabacion : public RecordingScreen {
  public:
    FormReg1AnaGrabacion(shell::Context& context, QWidget* parent, const QString& name);

    /// Shows the counters and the chosen composition.
    void Carga() override;
    void Limpiar();

  protected:
    void Lab_Click(int part) override;
    void Imagen_DblClick(int part) override;
    void BtnEliIma_Click(int part) override;

  private:
    void addCounters();
    void BtnGuardar_Click();
    void BtnDeshacer_Click();
    void saved();
    qint32& chosen(int part) { return module1().*partInfo(part).ana; }
    store::FixedTable& group(int part) override { return module1().*partInfo(part).group->ana; }

    forms::Button *BtnGuardar, *BtnDeshacer;
    forms::Label *LabNumRegNuevos, *LabNumRegTotal;
};

} // namespace zv::editors
