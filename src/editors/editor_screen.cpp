#include "editors/editor_screen.h"

#include "platform/base/text.h"
#include "platform/forms/decoration.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using forms::Label;
using forms::Memo;
using forms::Picture;
using forms::Role;
using forms::TextBox;
using store::Value;

namespace {

/// The square of the picture.
constexpr int PictureLeft = 240, PictureTop = 240, PictureSide = 3000;

} // namespace

void EditorScreen::Box::setText(const QString& text) const {
    if (line) line->setText(text);
    if (memo) memo->setText(text);
}

void EditorScreen::Box::setLocked(bool locked) const {
    if (line) line->setLocked(locked);
    if (memo) memo->setLocked(locked);
}

EditorScreen::EditorScreen(shell::Context& context, QWidget* parent, const QString& name, const store::KindInfo& kind)
    : Screen(context, parent, name), kind_(kind), boxes_(kind.fields.size()) {
    Imagen = add<Picture>(u"Imagen"_s, {PictureLeft, PictureTop, PictureSide, PictureSide});
    Imagen->setToolTipText(u"Change Image from the Record (Double Click)"_s);
    ImagenTonta = add<Picture>(u"ImagenTonta"_s, {0, 0, PictureSide, PictureSide});
    ImagenTonta->setPicture({{}, kind.drawing.toString(), {PictureSide, PictureSide}});
    ImagenTonta->setVisible(false);
    Imagen->setPicture(ImagenTonta->picture());
    LabNombre = addLabel(u"LabNombre"_s, Role::Name, {}, {PictureLeft, 3265, PictureSide, 450}, forms::type::M, true,
                         Qt::AlignHCenter | Qt::AlignTop);
    LabNombre->setWordWrap(true);
    LabNombre->setBackColor(forms::colour::Panel);
    LabNombre->setForeColor(forms::colour::Panel);
    BtnImagenEliminar =
        addButton(u"BtnImagenEliminar"_s, u"Remove"_s, u"Remove Image from the Record"_s, {1290, 2850, 900, 300});
    BtnImagenEliminar->setType(forms::type::S, true);
    BtnImagenEliminar->setVisible(false);
    const EditorLayout layout = editorLayout(kind);
    addCaptions(layout);
    addBoxes(layout);
}

void EditorScreen::addCaptions(const EditorLayout& layout) {
    for (const CaptionPlace& caption : layout.captions)
        addLabel({}, Role::Caption, caption.text.toString(), caption.rect,
                 caption.small ? forms::type::S : forms::type::G, true, caption.left ? forms::ToLeft : forms::ToRight)
            ->setWordWrap(caption.small);
}

void EditorScreen::addBoxes(const EditorLayout& layout) {
    for (const BoxPlace& place : layout.boxes) {
        int i = 0;
        while (field(i).control != place.control) ++i;
        Box& made = boxes_[static_cast<std::size_t>(i)];
        if (field(i).value == Value::Memo) {
            made.memo = add<Memo>(place.control.toString(), place.rect);
            continue;
        }
        made.line = add<TextBox>(place.control.toString(), place.rect);
        made.line->setMaxLength(field(i).limit);
        if (field(i).value == Value::Year) made.line->setToolTipText(u"Numerical"_s);
    }
}

QString EditorScreen::headingText() const {
    QString text;
    bool first = true;
    for (int i = 0; i < fieldCount(); ++i) {
        if (!field(i).heading) continue;
        if (!first) text += u' ';
        text += box(i).Text();
        first = false;
    }
    return text;
}

void EditorScreen::showHeading() {
    const QString text = headingText();
    LabNombre->setCaption(text);
    LabNombre->setToolTipText(text);
}

bool EditorScreen::identifierMissing() const {
    for (int i = 0; i < fieldCount(); ++i)
        if (field(i).identifier && Trim(box(i).Text()).isEmpty()) return true;
    return false;
}

// A single identifier loses its blanks; where several boxes identify the record, all stay as they are.
void EditorScreen::emptyIdentifier() {
    const auto identifies = [](const store::Field& f) { return f.identifier; };
    if (std::count_if(kind_.fields.begin(), kind_.fields.end(), identifies) > 1) return;
    for (int i = 0; i < fieldCount(); ++i)
        if (field(i).identifier) box(i).setText({});
}

bool EditorScreen::readyToWrite() {
    if (identifierMissing()) {
        MsgBox(store::MensaIntroducirIDentificador, box::Warning);
        emptyIdentifier();
        return false;
    }
    for (int i = 0; i < fieldCount(); ++i) {
        if (field(i).value != Value::Year) continue;
        if (!IsNumeric(box(i).Text()) && !box(i).Text().isEmpty()) return false;
        if (box(i).Text().isEmpty()) box(i).setText(u"0"_s);
    }
    return true;
}

int EditorScreen::fillCampos() {
    int column = 0;
    for (int i = 0; i < fieldCount(); ++i) {
        const store::Field& f = field(i);
        switch (f.value) {
        case Value::Key: break;
        case Value::Year: Campos_.set(column++, f.column, CStr(Val(box(i).Text()))); break;
        case Value::Picture: Campos_.set(column++, f.column, DialogoImagen.FileName); break;
        case Value::Number:
        case Value::Text:
        case Value::Memo: Campos_.set(column++, f.column, fieldText(i)); break;
        }
    }
    return column;
}

bool EditorScreen::loadPicture() {
    forms::CargarImagen(*Imagen, DialogoImagen, PictureSide, PictureSide);
    if (DialogoImagen.FileName.isEmpty()) return false;
    centrePicture();
    setHeadingColour(Qt::black);
    return true;
}

void EditorScreen::centrePicture() {
    Imagen->setLeft((PictureSide - Imagen->Width()) / 2 + PictureLeft);
    Imagen->setTop((PictureSide - Imagen->Height()) / 2 + PictureTop);
}

void EditorScreen::showPlaceholder() {
    Imagen->place({PictureLeft, PictureTop, PictureSide, PictureSide});
    Imagen->setPicture(ImagenTonta->picture());
    setHeadingColour(forms::colour::Panel);
}

void EditorScreen::placeHeading() { LabNombre->setTop(Imagen->Height() + Imagen->Top() + 25); }

void EditorScreen::placeRemoveButton() {
    BtnImagenEliminar->setTop(Imagen->Top() + Imagen->Height() - BtnImagenEliminar->Height() - 90);
}

void EditorScreen::choosePicture() {
    DialogoImagen.Filter = store::EtiFormatoImagen;
    DialogoImagen.DialogTitle = store::EtiInsertarImagen;
    DialogoImagen.ShowOpen(context().files);
    if (loadPicture()) {
        BtnImagenEliminar->setVisible(true);
    } else {
        showPlaceholder();
        BtnImagenEliminar->setVisible(false);
    }
    placeHeading();
    placeRemoveButton();
    Imagen->setVisible(true);
}

void EditorScreen::removePicture() {
    showPlaceholder();
    placeHeading();
    placeRemoveButton();
    BtnImagenEliminar->setVisible(false);
    DialogoImagen.FileName.clear();
}

void EditorScreen::keepNumeric(int i) {
    if (!IsNumeric(box(i).Text())) box(i).setText({});
}

} // namespace zv::editors
