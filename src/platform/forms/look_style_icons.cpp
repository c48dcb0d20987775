#include "platform/forms/look_style_icons.h"

#include "platform/forms/look.h"
#include <QPainter>
#include <QPainterPath>

namespace zv::forms::draw {

namespace {

/// A sign on a field of 36 x 36.
struct Sign {
    QColor ground;
    bool triangle;
    QPainterPath mark;
    QPointF dot; // null where there is none
};

Sign signOf(QStyle::StandardPixmap which) {
    Sign sign{colour::Navy, false, {}, {}};
    switch (which) {
    case QStyle::SP_MessageBoxInformation:
        sign.mark.moveTo(18, 16.5);
        sign.mark.lineTo(18, 26.5);
        sign.dot = {18, 10.5};
        break;
    case QStyle::SP_MessageBoxQuestion:
        sign.mark.moveTo(13, 13.5);
        sign.mark.cubicTo(13, 7.5, 23, 7.5, 23, 13.5);
        sign.mark.cubicTo(23, 17, 18, 17, 18, 21.5);
        sign.dot = {18, 27};
        break;
    case QStyle::SP_MessageBoxWarning:
        sign.ground = colour::Accent;
        sign.triangle = true;
        sign.mark.moveTo(18, 13);
        sign.mark.lineTo(18, 21.5);
        sign.dot = {18, 27};
        break;
    case QStyle::SP_MessageBoxCritical:
        sign.ground = colour::Accent;
        sign.mark.moveTo(12, 12);
        sign.mark.lineTo(24, 24);
        sign.mark.moveTo(24, 12);
        sign.mark.lineTo(12, 24);
        break;
    default: break;
    }
    return sign;
}

} // namespace

QIcon messageIcon(QStyle::StandardPixmap which, int pixels) {
    const Sign sign = signOf(which);
    if (sign.mark.isEmpty()) return {};
    QPixmap pixmap(pixels, pixels);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(pixels / 36.0, pixels / 36.0);
    painter.setPen(QPen(sign.ground, 3, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(sign.ground);
    if (sign.triangle) {
        const QPointF points[] = {{18, 4}, {34, 32}, {2, 32}};
        painter.drawConvexPolygon(points, 3);
    } else {
        painter.drawEllipse(QPointF(18, 18), 15.5, 15.5);
    }
    painter.setPen(QPen(colour::Missing, 3.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(sign.mark);
    if (!sign.dot.isNull()) painter.drawPoint(sign.dot);
    painter.end();
    return pixmap;
}

} // namespace zv::forms::draw
