// Pictures: the boxes that show a record's picture or the drawing that stands for the lack of one.
#pragma once

#include "platform/base/dialogs.h"
#include "platform/forms/placed.h"
#include <QImage>
#include <QLabel>

namespace zv::forms {

/// What a box shows: a picture from a file, a drawing of the program's own, or nothing.
struct PictureData {
    QImage image;
    QString drawing;
    QSize naturalTwips; ///< size that a box takes when it is not stretched

    bool isEmpty() const { return image.isNull() && drawing.isEmpty(); }
};

/// Longest side in pixels of what is kept of a picture: enough for the largest box on screen and on paper.
inline constexpr int KeptPixels = 1200;

/// A size fitted to a square of that side, keeping its proportions, in twips.
QSize fitted(QSize natural, int side);

/// Loads a picture file: .jpg, .gif, .bmp and .ico by their contents, the first frame. A large picture is kept smaller
/// than it is, so that memory stays bounded; its natural size is its own at 96 dots to the inch. Error 53 without the
/// file, 76 without its folder, 481 for what is no picture of these or too large to decode. "" gives an empty picture.
PictureData LoadPicture(const QString& path, int keptPixels = KeptPixels);

class Picture : public Control<QLabel> {
  public:
    explicit Picture(QWidget* parent);

    Handler DblClick, Click;

    const PictureData& picture() const { return data_; }
    /// Without Stretch the box takes the picture's natural size.
    void setPicture(const PictureData& shown);
    void clear() { setPicture({}); }
    void setStretch(bool stretch);

    void clearHandlers() override { DblClick = Click = nullptr; }

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void changeEvent(QEvent* event) override;

  private:
    PictureData data_;
    QPixmap scaled_; ///< as painted last
    bool stretch_ = true;
    bool hovered_ = false;
};

/// Loads the file of the dialog into the box and fits it to maxWidth or maxHeight twips, keeping its proportions. The
/// box stays hidden: the caller shows it when it has placed it. A file that can't be loaded empties dialog.FileName.
void CargarImagen(Picture& box, CommonDialog& dialog, int maxHeight, int maxWidth);

} // namespace zv::forms
