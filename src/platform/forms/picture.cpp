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

/// A picture of more pixels would take too much memory on its way to a small one.
constexpr qint64 MostPixels = 200'000'000;

} // namespace

QSize fitted(QSize natural, int side) {
    const double w = natural.width(), h = natural.height();
    return w >= h ? QSize(side, toLong(side * h / w)) : QSize(toLong(side * w / h), side);
}

PictureData LoadPicture(const QString& path, int keptPixels) {
    if (path.isEmpty()) return {};
    const QFileInfo file(path);
    if (!file.exists()) throw RuntimeError(file.dir().exists() ? 53 : 76);
    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    const QByteArray format = reader.format();
    if (format != "jpeg" && format != "gif" && format != "bmp" && format != "ico") throw RuntimeError(481);
    QSize natural = reader.size();
    if (qint64(natural.width()) * natural.height() > MostPixels) throw RuntimeError(481);
    if (natural.isValid() && std::max(natural.width(), natural.height()) > keptPixels && format == "jpeg")
        reader.setScaledSize(natural.scaled(keptPixels, keptPixels, Qt::KeepAspectRatio).expandedTo({1, 1}));
    QImage image = reader.read();
    if (image.isNull()) throw RuntimeError(481);
    if (!natural.isValid()) natural = image.size();
    if (std::max(image.width(), image.height()) > keptPixels)
        image = image.scaled(image.size().scaled(keptPixels, keptPixels, Qt::KeepAspectRatio).expandedTo({1, 1}),
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
        // Three pixels for one of scale 1 are enough at the largest scale.
        const int pixels = std::min(KeptPixels, 3 * std::max(maxWidth, maxHeight) / 15 + 3);
        box.setPicture(LoadPicture(dialog.FileName, pixels));
        const QSize size(box.Width(), box.Height());
        const QSize shown = fitted(size, size.width() >= size.height() ? maxWidth : maxHeight);
        box.setWidth(shown.width());
        box.setHeight(shown.height());
        box.setStretch(true);
    } catch (const RuntimeError&) {
        box.setStretch(true);
        dialog.FileName.clear();
    }
}

} // namespace zv::forms
