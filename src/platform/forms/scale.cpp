#include "platform/forms/scale.h"

#include <QFontDatabase>
#include <algorithm>
#include <cmath>

namespace zv::forms {

double Scale::forClient(QSize pixels) {
    // A block of 688 x 602 pixels at scale 1, with 12 pixels free on each side.
    const double fit = std::min((pixels.width() - 24) / 688.0, (pixels.height() - 24) / 602.0);
    return std::clamp(std::floor(4 * fit) / 4, 1.0, 3.0);
}

int Scale::px(double twips) const { return static_cast<int>(std::floor(twips * value_ / 15.0 + 0.5)); }

QRect Scale::rect(const TwipsRect& t) const {
    const int left = px(t.Left), top = px(t.Top);
    return {left, top, px(t.Left + t.Width) - left, px(t.Top + t.Height) - top};
}

int Scale::hairline() const { return std::max(1, static_cast<int>(value_)); }

int Scale::focusLine() const { return std::max(2, static_cast<int>(std::floor(2 * value_ + 0.5))); }

QFont Scale::font(int heightTwips, bool bold) const {
    static const QString family = QFontDatabase::families().contains(QString::fromUtf16(FontFamily))
                                      ? QString::fromUtf16(FontFamily)
                                      : QString::fromUtf16(FontSubstitute);
    QFont font(family);
    font.setPixelSize(std::max(8, px(heightTwips)));
    font.setWeight(bold ? QFont::Bold : QFont::Normal);
    return font;
}

} // namespace zv::forms
