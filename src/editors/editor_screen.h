// What the Add and the Show-Edit screen of a kind share: the picture with the name under it, the boxes of the fields,
// the tests before a record is written. The kind's description says what there is.
#pragma once

#include "editors/layout.h"
#include "platform/forms/controls.h"
#include "platform/forms/picture.h"
#include "platform/forms/text_box.h"
#include "shell/contract/screen.h"
#include "store/messages.h"

namespace zv::editors {

class EditorScreen : public shell::Screen {
  public:
    EditorScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind);

  protected:
    /// The box of a field: one line or a memo, or none.
    struct Box {
        forms::TextBox* line = nullptr;
        forms::Memo* memo = nullptr;

        explicit operator bool() const { return line || memo; }
        QString Text() const { return line ? line->Text() : memo ? memo->Text() : QString(); }
        void setText(const QString& text) const;
        void setLocked(bool locked) const;
    };

    const store::KindInfo& kind() const { return kind_; }
    store::KindMemory& memory() { return store().memory.of(kind_.kind); }
    jet::DataControl& Data() { return store().Data(kind_.kind); }
    int fieldCount() const { return static_cast<int>(kind_.fields.size()); }
    const store::Field& field(int i) const { return kind_.fields[static_cast<std::size_t>(i)]; }
    const Box& box(int i) const { return boxes_[static_cast<std::size_t>(i)]; }
    /// What the box of a column holds.
    QString boxText(QStringView column) const { return box(kind_.indexOf(column)).Text(); }
    int pictureField() const { return fieldCount() - 1; }

    /// The name under the picture: the texts of its fields joined by blanks.
    virtual QString headingText() const;
    /// Puts the name into LabNombre and its tip.
    void showHeading();
    void setHeadingColour(const QColor& colour) { LabNombre->setForeColor(colour); }

    /// Whether an identifier is missing, by boxes that hold nothing but blanks.
    virtual bool identifierMissing() const;
    /// Steps before a write: a missing identifier is told and its box emptied, years are tested and zeroed.
    /// False if the write ends here.
    bool readyToWrite();
    /// What is written into a field that is no year and no picture.
    virtual QString fieldText(int i) { return box(i).Text(); }
    /// Fills Campos with all fields but the key; returns their number.
    int fillCampos();

    /// Loads the file of DialogoImagen; true if the box shows it, centred. False leaves an empty FileName.
    bool loadPicture();
    void centrePicture();
    /// The placeholder in the whole square.
    void showPlaceholder();
    void placeHeading();
    void placeRemoveButton();
    /// The dialog, and what follows from its choice.
    void choosePicture();
    /// The part of the removal of a picture that both screens share.
    void removePicture();

    /// A box of a year empties itself as soon as it is no number.
    void keepNumeric(int i);

    forms::Picture *Imagen, *ImagenTonta;
    forms::Label* LabNombre;
    forms::Button* BtnImagenEliminar;
    CommonDialog DialogoImagen;
    store::Campos Campos_;

  private:
    void addCaptions(const EditorLayout& layout);
    void addBoxes(const EditorLayout& layout);
    void emptyIdentifier();

    const store::KindInfo& kind_;
    std::vector<Box> boxes_;
};

} // namespace zv::editors
