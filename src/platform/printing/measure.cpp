#include "platform/printing/measure.h"

#include <algorithm>
#include <cmath>

namespace zv::printing {

namespace {

/// The end of the character that ends at or covers the position before `end`.
int wholeCharacter(const QString& text, int end) {
    const bool parted = end > 0 && end < text.size() && text[end - 1].isHighSurrogate() && text[end].isLowSurrogate();
    return parted ? end + 1 : end;
}

/// By how much a piece may become narrower, in em, while characters are added to it. Latin, Greek, Cyrillic and Chinese
/// only lose a little to kerning and ligatures; scripts that join, stack or compose may replace several shapes by one.
double shrinkage(const QString& text, int from, int to) {
    const auto plain = [](QChar c) {
        return c < QChar(0x0590) || (c >= QChar(0x2010) && c < QChar(0x2028)) ||
               (c >= QChar(0x3000) && c < QChar(0xA000));
    };
    return std::all_of(text.begin() + from, text.begin() + to, plain) ? 1 : 5;
}

/// The plain loop, from a piece that ends at `end` and is known to be too narrow.
int fillOn(const QString& text, int from, int end, double limit, const std::function<double(const QString&)>& width) {
    while (end < text.size()) {
        end = wholeCharacter(text, end + 1);
        if (width(text.mid(from, end - from)) >= limit) break;
    }
    return end - from;
}

} // namespace

QStringList linesOf(const QString& text) {
    QStringList lines;
    qsizetype start = 0;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (text[i] != u'\r' && text[i] != u'\n') continue;
        lines += text.mid(start, i - start);
        if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
        start = i + 1;
    }
    lines += text.mid(start);
    return lines;
}

int fillWidth(const QString& text, int from, double limit, const std::function<double(const QString&)>& width) {
    return fillOn(text, from, from, limit, width);
}

int fillWidthFast(const QString& text, int from, double limit, double em,
                  const std::function<double(const QString&)>& width) {
    // Beyond this many characters without a width worth mentioning, the plain loop has to go on by itself.
    const int reach =
        static_cast<int>(std::min(static_cast<double>(text.size() - from), 8 + std::max(0.0, limit) / em * 8));
    if (reach <= 0) return 0;
    const double safe = limit - em * shrinkage(text, from, from + reach);

    // A piece narrower than `safe` tells that no shorter piece reaches the limit either. Step to the longest such piece
    // that a few guesses at the width of a character find, then go on as the plain loop does.
    int low = from, high = from + reach + 1;
    double lowWidth = 0, perCharacter = em / 2;
    for (int guesses = 0; guesses < 8 && high - low > 1; ++guesses) {
        const double missing = safe - lowWidth;
        if (missing <= perCharacter) break;
        const int step = std::clamp(static_cast<int>(missing / perCharacter), 1, high - low - 1);
        const int guess = std::min(wholeCharacter(text, low + step), from + reach);
        if (guess <= low || guess >= high) break;
        const double w = width(text.mid(from, guess - from));
        perCharacter = std::max(em / 20, w / (guess - from));
        if (w < safe) {
            low = guess;
            lowWidth = w;
        } else {
            high = guess;
        }
    }
    return fillOn(text, from, low, limit, width);
}

} // namespace zv::printing
