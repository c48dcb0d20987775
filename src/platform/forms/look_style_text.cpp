// Texts of labels and cells: one line with an ellipsis, or wrapped lines of which the last is cut.
#include "platform/forms/look_style_draw.h"

#include <QTextLayout>
#include <algorithm>

namespace zv::forms::draw {

namespace {

QString blanked(QString text) {
    text.replace(u'\r', u' ');
    return text;
}

/// The lines of a text wrapped at a width; the last of `most` lines is cut if the text goes on.
QStringList wrapped(const QString& text, const QFont& font, int width, int most) {
    QStringList lines;
    QString flat = text;
    flat.replace(u'\n', QChar::LineSeparator);
    QTextLayout layout(flat, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        const int start = line.textStart(), end = start + line.textLength();
        if (lines.size() + 1 == most && end < flat.size()) {
            lines += QFontMetrics(font).elidedText(firstLine(flat.mid(start)), Qt::ElideRight, width);
            break;
        }
        QString words = flat.mid(start, line.textLength());
        while (!words.isEmpty() && words.back().isSpace()) words.chop(1);
        lines += words;
    }
    layout.endLayout();
    return lines;
}

} // namespace

QString firstLine(const QString& text) {
    const auto endsLine = [](QChar c) { return c == u'\n' || c == u'\r' || c == QChar::LineSeparator; };
    const auto end = std::find_if(text.begin(), text.end(), endsLine);
    QString line(text.begin(), end - text.begin());
    return std::all_of(end, text.end(), endsLine) ? line : line + u'…';
}

void text(QPainter& painter, const QRect& rect, const QString& whole, const Setting& setting) {
    if (whole.isEmpty() || rect.isEmpty()) return;
    painter.setFont(setting.font);
    painter.setPen(setting.colour);
    const QFontMetrics metrics(setting.font);
    const QString shown = blanked(whole);
    const int across = static_cast<int>(setting.alignment & Qt::AlignHorizontal_Mask) | Qt::TextSingleLine;
    if (setting.lines == 1) {
        painter.drawText(rect, across | static_cast<int>(setting.alignment & Qt::AlignVertical_Mask),
                         metrics.elidedText(firstLine(shown), Qt::ElideRight, rect.width()));
        return;
    }
    const int pitch = setting.pitch > 0 ? setting.pitch : metrics.lineSpacing();
    const int room = std::max(1, (rect.height() + pitch / 4) / pitch);
    const QStringList lines =
        wrapped(shown, setting.font, rect.width(), setting.lines > 0 ? std::min(room, setting.lines) : room);
    int y = rect.top();
    const int height = pitch * static_cast<int>(lines.size());
    if (setting.alignment & Qt::AlignVCenter) y += (rect.height() - height) / 2;
    if (setting.alignment & Qt::AlignBottom) y += rect.height() - height;
    for (const QString& line : lines) {
        painter.drawText(QRect(rect.left(), y, rect.width(), pitch), across | Qt::AlignVCenter, line);
        y += pitch;
    }
}

} // namespace zv::forms::draw
