// The List screen of the recordings. A recording holds only keys: each row is put together from the records that it
// points to and from the groups that are tied to it.
#pragma once

#include "listing/list_screen.h"
#include "shell/contract/selection_check.h"
#include "store/recording_items.h"
#include "store/recording_parts.h"

namespace zv::listing {

class FormReg1LisGrabacion : public ListScreen {
  public:
    FormReg1LisGrabacion(shell::Context& context, QWidget* parent, const QString& name);

    void Carga() override;

  protected:
    void Form_Unload() override;
    QStringList itemCaptions() const override;
    QString cellText(int item) override;
    QString paperText(int item) override;
    bool isNumber(int item) const override;
    bool areLinesLevel(int item) const override;
    QString picturePath() override;
    QStringList values() override;
    void moveTo(int position) override;

  private:
    QString groupOnPaper(store::Kind group);

    shell::SelectionCheck check_;
    store::RecordingParts parts_;
};

} // namespace zv::listing
