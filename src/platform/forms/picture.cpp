#include "platform/forms/picture.h"

#include "platform/base/text.h"
#include "platform/forms/decoration.h"
#include <QFileInfo>
#include <QImageReader>
#include <QMouseEvent>
#include <QPainter>
#include <cmath>

namespace zv::forms {

namespace {

/// Longest side in pixels of what is kept of a picture: enough for the largest box on screen and on paper.
constexpr int KeptPixels = 1200;

} // namespace

PictureData LoadPicture(const QString& path) {
    if (path.isEmpty()) return {};
    const QFileInfo file(path);
    if (!file.exists()) throw RuntimeError(file.dir().exists() ? 53 : 76);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (format != "jpeg" && format != "gif" && format != "bmp" && format != "ico") throw RuntimeError(481);
    QSize natural = reader.size();
    if (natural.isValid() && std::max(natural.width(), natural.height()) > KeptPixels && format == "jpeg")
        reader.setScaledSize(natural.scaled(KeptPixels, KeptPixels, Qt::KeepAspectRatio).expandedTo({1, 1}));
    QImage image = reader.read();
    if (image.isNull()) throw RuntimeError(481);
    if (!natural.isValid()) natural = image.size();
    if (std::max(image.width(), image.height()) > KeptPixels)
        image = image.scaled(image.size().scaled(KeptPixels, KeptPixels, Qt::KeepAspectRatio).expandedTo({1, 1}),
                             Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    image.setDevicePixelRatio(1);
    return {image, {}, natural * 15};
}

Picture::Picture(QWidget* parent) : Control(parent) { setRole(this, Role::Picture); }

void Picture::setPicture(const PictureData& shown) {
    data_ = shown;
    scaled_ = {};
    setPixmap(data_.image.isNull() ? QPixmap() : QPixmap::fromImage(data_.image));
    if (!data_.drawing.isEmpty()) setPixmap(drawing(data_.drawing, {200, 200}));
    if (!stretch_ && !data_.naturalTwips.isEmpty())
        place({Left(), Top(), data_.naturalTwips.width(), data_.naturalTwips.height()});
    update();
}

void Picture::setStretch(bool stretch) { stretch_ = stretch; }

void Picture::paintEvent(QPaintEvent*) {
    if (data_.isEmpty() || !scale()) return;
    QPainter painter(this);
    const double ratio = devicePixelRatioF();
    const QSize wanted = size() * ratio;
    if (scaled_.size() != wanted) {
        scaled_ = data_.drawing.isEmpty()
                      ? QPixmap::fromImage(data_.image.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation))
                      : drawing(data_.drawing, size(), ratio);
        scaled_.setDevicePixelRatio(ratio);
    }
    painter.drawPixmap(0, 0, scaled_);
    if (roleOf(this) != Role::Picture) return;
    painter.setPen(Qt::NoPen);
    const int line = scale()->hairline();
    const QColor border = hovered_ && isEnabled() && DblClick ? colour::Accent : colour::Edge2;
    const QRect r = QWidget::rect();
    painter.fillRect(r.left(), r.top(), r.width(), line, border);
    painter.fillRect(r.left(), r.bottom() + 1 - line, r.width(), line, border);
    painter.fillRect(r.left(), r.top(), line, r.height(), border);
    painter.fillRect(r.right() + 1 - line, r.top(), line, r.height(), border);
}

void Picture::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) fire(Click);
}

void Picture::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton) fire(DblClick);
}

void Picture::enterEvent(QEnterEvent*) {
    hovered_ = true;
    if (DblClick && isEnabled()) setCursor(Qt::PointingHandCursor);
    update();
}

void Picture::leaveEvent(QEvent*) {
    hovered_ = false;
    unsetCursor();
    update();
}

// A disabled box shows its picture as it is; only the hand goes.
void Picture::changeEvent(QEvent* event) {
    if (event->type() == QEvent::EnabledChange && !isEnabled()) unsetCursor();
    QLabel::changeEvent(event);
}

void CargarImagen(Picture& box, CommonDialog& dialog, int maxHeight, int maxWidth) {
    try {
        box.setVisible(false);
        box.setStretch(false);
        box.setPicture(LoadPicture(dialog.FileName));
        const int w = box.Width(), h = box.Height();
        if (w >= h) {
            box.setWidth(maxWidth);
            box.setHeight(toLong(double(maxWidth) * h / w));
        } else {
            box.setHeight(maxHeight);
            box.setWidth(toLong(double(maxHeight) * w / h));
        }
        box.setStretch(true);
    } catch (const RuntimeError&) {
        box.setStretch(true);
        dialog.FileName.clear();
    }
}

} // namespace zv::forms
