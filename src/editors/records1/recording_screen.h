// What the Add and the Show-Edit screen of recordings share: the display of the six parts, their import from the
// channels, and the writes of the links.
#pragma once

#include "editors/records1/recording_parts.h"
#include "platform/forms/controls.h"
#include "platform/forms/flex_grid.h"
#include "platform/forms/picture.h"
#include "platform/forms/text_box.h"
#include "shell/contract/selection_check.h"
#include "store/messages.h"
#include <limits>

namespace zv::editors {

class RecordingScreen : public shell::Screen {
  public:
    RecordingScreen(shell::Context& context, QWidget* parent, const QString& name);

  protected:
    void Form_Load() override;
    void Form_Unload() override;

    /// The current-selection check, once after the load. False if the user has been sent to another screen.
    bool selectionsClosed() { return check_.passes(context(), *this); }

    store::KindMemory& memory() { return store().memory.of(store::Kind::Grabacion); }
    jet::DataControl& Data() { return store().Data(store::Kind::Grabacion); }
    jet::DataControl& Data(int part) { return store().Data(partInfo(part).kind); }
    jet::DataControl& links(int part) { return store().Data(1, partInfo(part).group->linkChannel); }
    static QString selectAll(int part) { return store::info(partInfo(part).kind).selectAll(); }
    double key() { return valueOf(u"IdGrabacion"); }
    /// Numeric value of a column of the current recording.
    double valueOf(QStringView column);

    /// Puts a link channel to its whole table.
    void openLinks(int part);
    /// Narrows a part's channel to one key.
    void narrow(int part, double key);
    /// Shows the current row of a single part's channel: picture, labels, movements.
    void showSingle(int part);
    /// Puts a single part's channel back to the whole table and to the remembered row.
    void widen(int part);
    /// Shows the rows of a condition in a group's grid and its first picture; each row goes to the table if there is
    /// one. The channel is put back to the whole table.
    void showGroup(int part, const QString& condition, store::FixedTable* table);
    /// The keys of a group's table, up to the first row without one. A table without such a row is read past its end,
    /// error 9, unless it is read up to `rows` only.
    static QStringList groupKeys(const store::FixedTable& table, int rows = std::numeric_limits<int>::max());
    /// The condition on these keys.
    static QString groupCondition(int part, const QStringList& keys);
    static bool hasGroup(const store::FixedTable& table);

    /// Empties what a part shows: default picture, labels or grid, no remove button.
    void clearPart(int part);
    void showPicture(int part, const QString& path);
    void showDefaultPicture(int part) { showPicture(part, {}); }
    void showPerformerCount();
    void markFormat(bool chosen);
    void showRemoveButton(int part, bool visible) { BtnEliIma[std::size_t(part)]->setVisible(visible); }

    /// Fills Campos with the chosen keys and the notes, and writes the row of the recording.
    void writeRecording(bool add, qint32 composer, qint32 work, qint32 format);
    /// The keys of the composition's three groups: a full table ends here, before anything is written.
    std::array<QStringList, PartCount> chosenGroups();
    /// Writes a link row for each key, conductors, orchestras, performers in turn. False after a failure.
    bool writeLinks(const std::array<QStringList, PartCount>& groups, double recording);
    /// Runs what a button of writing does; an error that is none of the catalogue's own is told, and ends it.
    void armed(const std::function<void()>& work);
    /// Removes all link rows of a recording, conductors, orchestras, performers in turn.
    void removeLinks(double recording);

    /// A group of the composition of this screen.
    virtual store::FixedTable& group(int part) = 0;
    /// The handlers that the two screens have of their own.
    virtual void Lab_Click(int part) = 0;
    virtual void Imagen_DblClick(int part) = 0;
    virtual void BtnEliIma_Click(int part) = 0;

    void addNotes(int left, int width);
    void paintBehind(QPainter& painter) override;

    std::array<forms::Label*, PartCount> Lab;
    std::array<forms::Picture*, PartCount> Imagen;
    std::array<forms::Button*, PartCount> BtnEliIma;
    std::array<forms::FlexGrid*, PartCount> Flex{};
    forms::FlexGrid* FlexMovimientos;
    forms::Label *LabObraTotal, *LabObraNumeroMovimientos, *LabInterpreteNumeroInterprete;
    forms::Memo* TxtNotas = nullptr;
    CommonDialog DialogoImagen;
    /// Whether labels take their text as tip.
    bool tipsShown = false;

  private:
    void addPart(int part);
    void addMovements();
    void addGrid(int part);
    void showMovements();
    QString rowText(int part);

    std::array<std::vector<forms::Label*>, PartCount> partLabels_;
    store::Campos campos_;
    shell::SelectionCheck check_;
};

} // namespace zv::editors
