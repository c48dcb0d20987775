// The ground of the main window: gradient, light, staves over the full width, and the shadow around the screens.
#include "platform/forms/decoration.h"

#include <cmath>

namespace zv::forms {

namespace {

constexpr QColor Lines{0xCE, 0xD6, 0xFF, 31}, Clefs{0xCE, 0xD6, 0xFF, 33}; // 12 and 13 %
constexpr double MotifScale = 1.75;                                        // the motif grows no further

void paintLight(QPainter& painter, const QRect& client) {
    QLinearGradient sky(client.topLeft(), client.bottomLeft());
    sky.setColorAt(0, colour::BackdropTop);
    sky.setColorAt(1, colour::BackdropFoot);
    painter.fillRect(client, sky);
    const QPointF centre(client.left() + 0.5 * client.width(), client.top() + 0.42 * client.height());
    QRadialGradient light(centre, 0.62 * std::max(client.width(), client.height()));
    light.setColorAt(0, QColor(120, 135, 215, 46)); // 18 %
    light.setColorAt(1, QColor(120, 135, 215, 0));
    painter.fillRect(client, light);
}

void paintStaves(QPainter& painter, const QRect& client, const Scale& scale) {
    const double factor = std::min(scale.value(), MotifScale);
    const int gap = static_cast<int>(std::lround(8 * factor)), side = static_cast<int>(std::lround(26 * factor));
    const int pitch = 13 * gap, middle = client.top() + client.height() / 2, bar = side + 7 * gap;
    for (int n = -(client.height() / 2 / pitch + 1); n <= client.height() / 2 / pitch + 1; ++n) {
        const int centre = middle + n * pitch, top = centre - 2 * gap;
        for (int i = 0; i < 5; ++i) painter.fillRect(QRect(client.left(), top + i * gap, client.width(), 1), Lines);
        painter.fillRect(QRect(client.left() + bar, top, 1, 4 * gap + 1), Lines);
        painter.fillRect(QRect(client.right() + 1 - bar, top, 1, 4 * gap + 1), Lines);
        paintClef(painter, client.left() + side, centre + 0.5, gap, Clefs);
    }
}

void paintShadow(QPainter& painter, const QRect& block) {
    constexpr int Depth = 14, Drop = 3; // pixels at every scale
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(0, 0, 0, 5)); // 2 %
    for (int i = 1; i <= Depth; ++i) painter.drawRoundedRect(block.translated(0, Drop).adjusted(-i, -i, i, i), i, i);
    painter.restore();
}

} // namespace

void paintBackdrop(QPainter& painter, const QRect& client, const QRect& block, const Scale& scale) {
    paintLight(painter, client);
    paintStaves(painter, client, scale);
    if (!block.isEmpty()) paintShadow(painter, block);
}

} // namespace zv::forms
