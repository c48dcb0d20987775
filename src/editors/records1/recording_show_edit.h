// Show-Edit Recording: walks the selected recordings with all their parts, and lets the composition be changed or the
// recording removed. A working copy of the composition survives the trips to the screens of the parts.
#pragma once

#include "editors/records1/recording_screen.h"

namespace zv::editors {

class FormReg1MosGrabacion : public RecordingScreen {
  public:
    FormReg1MosGrabacion(shell::Context& context, QWidget* parent, const QString& name);

    /// Shows the current recording, or the working copy on the way back from a trip.
    void Carga() override;
    void Bloquear(bool locked);
    void ValoresInicio();

  protected:
    void Form_Load() override;
    void Lab_Click(int part) override;
    void Imagen_DblClick(int part) override;
    void BtnEliIma_Click(int part) override;

  private:
    void addFrame();
    void addCounters();
    void addButtons();
    void emptyScreen();
    void loadWorkingCopy();
    void loadRecording();
    void importSingle(int part);
    void importGroup(int part);
    QString linkCondition(int part);
    void HScroll_Change();
    void TxtOrden_Change();
    void BtnModificar_Click();
    void BtnEliminar_Click();
    void BtnGuardar_Click();
    void BtnDeshacer_Click();
    void BtnReducirAmpliar_Click();
    void modify();
    void standOnRecording();
    void removeRow();
    void unlockTabs();
    void resetGroups(const QString& orchestraMark);
    void markState();
    bool hasRows() { return Data().Recordset().RecordCount() != 0; }
    qint32& chosen(int part) { return module1().*partInfo(part).mos; }
    store::FixedTable& group(int part) { return module1().*partInfo(part).group->mos; }

    bool Navegable = false;
    forms::Frame* Frame1;
    forms::ScrollBar* HScroll;
    forms::TextBox* TxtOrden;
    forms::Button *BtnRegresar, *BtnModificar, *BtnEliminar, *BtnGuardar, *BtnDeshacer;
    forms::Label *BtnReducirAmpliar, *LabNumRegSeleccion, *LabNumFiltros, *LabNumRegEliminados;
};

} // namespace zv::editors
