// Show-Edit Recording: walks the selected recordings with all their parts, and lets the composition be changed or the
// recording removed. A working copy of the composition survives the trips to the screens of the parts.
#pragma once

#include "editors/record_walk.h"
#include "editors/records1/recording_screen.h"

namespace zv::editors {

class FormReg1MosGrabacion : public RecordingScreen {
  public:
    FormReg1MosGrabacion(shell::Context& context, QWidget* parent, const QString& name);

    /// Shows the current recording, or the working copy on the way back from a trip.
    void Carga() override;
    void Bloquear(bool locked);

  protected:
    void Form_Load() override;
    void Lab_Click(int part) override;
    void Imagen_DblClick(int part) override;
    void BtnEliIma_Click(int part) override;

  private:
    void emptyScreen();
    void loadWorkingCopy();
    void loadRecording();
    void importSingle(int part);
    void importGroup(int part);
    QString linkCondition(int part);
    void BtnModificar_Click();
    void BtnEliminar_Click();
    void BtnGuardar_Click();
    void BtnDeshacer_Click();
    void modify();
    void openAlone(double recording);
    void reopenSelection();
    void removeRow();
    void giveUp();
    void unlockTabs();
    void resetGroups(const QString& orchestraMark);
    qint32& chosen(int part) { return module1().*partInfo(part).mos; }
    store::FixedTable& group(int part) override { return module1().*partInfo(part).group->mos; }

    RecordWalk walk_;
};

} // namespace zv::editors
