// The program's own drawings, kept as vectors and rendered at the very pixels where they are shown.
#include "platform/forms/decoration.h"

#include <QFile>
#include <QPixmapCache>
#include <QSvgRenderer>

/// Resources of a static library are there only once they are asked for; the macro wants no namespace around it.
static void registerDrawings() { Q_INIT_RESOURCE(zv_drawings); }

namespace zv::forms {

using namespace Qt::StringLiterals;

namespace {

constexpr int SmallIcon = 24; // pixels; at this size and below the icon has fewer dots

QString pathOf(const QString& name, QSize pixels) {
    if (name == "icon"_L1 && pixels.width() <= SmallIcon) return u":/zarvelia/icon-small.svg"_s;
    const QString single = u":/zarvelia/%1.svg"_s.arg(name);
    return QFile::exists(single) ? single : u":/zarvelia/placeholders/%1.svg"_s.arg(name);
}

} // namespace

QPixmap drawing(const QString& name, QSize pixels, double devicePixelRatio) {
    static const bool registered = (registerDrawings(), true);
    Q_UNUSED(registered)
    const QSize device = (QSizeF(pixels) * devicePixelRatio).toSize();
    const QString path = pathOf(name, device);
    const QString key = u"%1 %2 %3 %4"_s.arg(path).arg(device.width()).arg(device.height()).arg(devicePixelRatio);
    QPixmap pixmap;
    if (device.isEmpty() || QPixmapCache::find(key, &pixmap) || !QFile::exists(path)) return pixmap;
    QSvgRenderer renderer(path);
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    pixmap = QPixmap(device);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter, QRectF(QPointF(0, 0), QSizeF(device)));
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    QPixmapCache::insert(key, pixmap);
    return pixmap;
}

} // namespace zv::forms
