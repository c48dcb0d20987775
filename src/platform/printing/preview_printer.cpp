#include "platform/printing/preview_printer.h"

#include "platform/base/runtime_error.h"

#include <QBuffer>

namespace zv::printing {

namespace {

constexpr int JpegQuality = 95;

/// A picture with transparent parts loses nothing, any other nothing that is seen.
QByteArray compressed(const QImage& picture) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    if (picture.hasAlphaChannel())
        picture.save(&buffer, "PNG");
    else
        picture.save(&buffer, "JPG", JpegQuality);
    return bytes;
}

} // namespace

void PreviewPages::addText(const QPointF& baseline, const QString& line, const QFont& font, const QColor& color) {
    pages_.back().push_back({QRectF(baseline, QSizeF()), line, font, color});
}

void PreviewPages::addPicture(const QRectF& box, const QImage& picture) {
    if (picture.isNull()) return;
    const QByteArray bytes = compressed(picture);
    Mark mark{box, {}, {}, {}, pictures_.size(), bytes.size()};
    const bool kept = (pictures_.isOpen() || pictures_.open()) && pictures_.seek(mark.pictureAt) &&
                      pictures_.write(bytes) == bytes.size() && pictures_.flush();
    if (!kept) throw RuntimeError(PrinterError);
    pages_.back().push_back(std::move(mark));
}

void PreviewPages::draw(int page, QPainter& painter, const QRectF& into) const {
    const QRectF paper = layout_.fullRect(QPageLayout::Point), printable = layout_.paintRect(QPageLayout::Point);
    painter.save();
    painter.translate(into.topLeft());
    painter.scale(into.width() / paper.width(), into.height() / paper.height());
    painter.setClipRect(paper, Qt::IntersectClip);
    painter.translate(printable.topLeft());
    painter.scale(1.0 / TwipsPerPoint, 1.0 / TwipsPerPoint);
    painter.setRenderHint(QPainter::TextAntialiasing);
    QtPrinter::prepare(painter);
    for (const Mark& mark : pages_[static_cast<std::size_t>(page)]) {
        if (mark.pictureSize > 0) {
            pictures_.seek(mark.pictureAt);
            painter.drawImage(mark.box, QImage::fromData(pictures_.read(mark.pictureSize)));
        } else {
            painter.setFont(mark.font);
            painter.setPen(mark.color);
            painter.drawText(mark.box.topLeft(), mark.text);
        }
    }
    painter.restore();
}

QString PreviewPages::words(int page) const {
    QStringList lines;
    for (const Mark& mark : pages_[static_cast<std::size_t>(page)])
        if (!mark.text.isEmpty()) lines += mark.text;
    return lines.join(u'\n');
}

} // namespace zv::printing
