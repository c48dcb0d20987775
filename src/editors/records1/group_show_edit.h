// Show-Edit of the people and bodies who perform on a recording: beside the record, the group that the user gathers for
// a recording, in a grid that stays while the records are walked.
#pragma once

#include "editors/show_edit_screen.h"
#include "platform/forms/flex_grid.h"

namespace zv::editors {

/// What differs from group to group.
struct GroupInfo {
    store::FixedTable store::Module1::*ana; ///< group of Add Recording
    store::FixedTable store::Module1::*mos; ///< group of Show-Edit Recording
    int limit;
    QString limitMessage;
    QString heading;
    QString suffixColumn = {}; ///< field told behind the name, after a comma
    bool counted = false;      ///< the number of members is shown
};

class GroupShowEdit : public ShowEditScreen {
  public:
    GroupShowEdit(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind,
                  const GroupInfo& group);

    void Carga() override;

  protected:
    /// The notes end above the group.
    static constexpr int NotesBottom = 4665;

    void accepted() override;

  private:
    void addGroup();
    void BtnAnadirGrupo_Click();
    void BtnEliminarGrupo_Click();
    store::FixedTable& activeTable();
    QString rowText() const;
    bool contains(double key) const;
    void rememberRows();
    void showRows();
    void showCount();

    GroupInfo group_;
    forms::FlexGrid* MSFlexGrid1;
    forms::Button *BtnAnadirGrupo, *BtnEliminarGrupo;
    forms::Label* LabNumeroInterpretes = nullptr;
};

/// The group of a kind that has one.
GroupInfo groupInfo(store::Kind kind);

} // namespace zv::editors
