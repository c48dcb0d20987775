#include "tour/portraits.h"

#include <QPainter>
#include <QPainterPath>
#include <cmath>
#include <numbers>

namespace zv::tour {

namespace {

const QColor Paper(0xF3, 0xEC, 0xDC), Dark(0x2A, 0x22, 0x1C);

/// The head in profile, looking to the right, in a field of 320 by 400.
QPainterPath profile() {
    QPainterPath face(QPointF(150, 92));
    face.cubicTo(196, 84, 222, 116, 218, 150);
    face.cubicTo(218, 160, 236, 184, 236, 192);
    face.cubicTo(236, 198, 224, 198, 222, 202);
    face.cubicTo(222, 208, 228, 212, 224, 218);
    face.cubicTo(230, 224, 222, 228, 222, 232);
    face.cubicTo(226, 250, 214, 262, 192, 258);
    face.cubicTo(184, 258, 182, 266, 182, 284);
    face.cubicTo(186, 312, 246, 312, 262, 400);
    face.lineTo(62, 400);
    face.cubicTo(70, 330, 116, 320, 124, 288);
    face.cubicTo(126, 262, 100, 240, 98, 190);
    face.cubicTo(92, 130, 112, 96, 150, 92);
    return face;
}

QPainterPath hairOf(Hair hair) {
    QPainterPath path;
    path.setFillRule(Qt::WindingFill);
    switch (hair) {
    case Hair::Short: path.addEllipse(QRectF(90, 82, 118, 106)); break;
    case Hair::Bun:
        path.addEllipse(QRectF(92, 80, 116, 104));
        path.addEllipse(QRectF(66, 160, 62, 62));
        break;
    case Hair::Wig:
        path.addEllipse(QRectF(92, 76, 116, 96));
        for (int i = 0; i < 5; ++i) path.addEllipse(QRectF(80 - 3 * (i % 2), 128 + 34 * i, 56, 42));
        break;
    case Hair::Veil:
        path.moveTo(206, 112);
        path.cubicTo(176, 62, 84, 66, 82, 178);
        path.cubicTo(82, 250, 58, 320, 54, 400);
        path.lineTo(150, 400);
        path.cubicTo(140, 300, 170, 210, 206, 112);
        break;
    }
    return path;
}

} // namespace

QImage portrait(const QColor& ground, Hair hair, bool leftwards) {
    QImage image(320, 400, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QPainterPath oval;
    oval.addEllipse(QRectF(26, 28, 268, 344));
    painter.setPen(QPen(ground.darker(170), 3));
    painter.drawEllipse(QRectF(16, 18, 288, 364));
    painter.fillPath(oval, Paper);
    if (leftwards) {
        painter.translate(320, 0);
        painter.scale(-1, 1);
    }
    painter.setClipPath(oval);
    painter.fillPath(profile(), Dark);
    painter.fillPath(hairOf(hair), Dark);
    return image;
}

QImage stage(const QColor& ground) {
    QImage image(480, 270, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QPointF centre(240, 236);
    painter.setBrush(Paper);
    for (int row = 0; row < 4; ++row) {
        const int players = 6 + 4 * row;
        const double radius = 64 + 44 * row;
        for (int i = 0; i < players; ++i) {
            const double angle = std::numbers::pi * (0.06 + 0.88 * i / (players - 1));
            painter.drawEllipse(centre - QPointF(radius * std::cos(angle), radius * std::sin(angle)), 8, 8);
        }
    }
    painter.setBrush(QColor(0x8C, 0x1D, 0x2F));
    painter.drawEllipse(centre, 11, 11);
    return image;
}

QImage cover(const QColor& ground, const QColor& plate, const QColor& ink) {
    QImage image(240, 240, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.fillRect(30, 26, 180, 70, plate);
    for (int line = 0; line < 5; ++line) painter.fillRect(26, 130 + 16 * line, 188, 5, ink);
    return image;
}

} // namespace zv::tour
