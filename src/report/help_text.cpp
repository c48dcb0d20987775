#include "report/help_text.h"

#include <QFile>
#include <QScrollBar>
#include <QTextBlock>

/// Resources of a static library are there only once they are asked for; the macro wants no namespace around it.
static void registerWords() { Q_INIT_RESOURCE(zv_help); }

namespace zv::report {

using namespace Qt::StringLiterals;
using namespace forms;

namespace {

constexpr int TextLeft = 90, TextTop = 90, TextRight = 60;          // twips
constexpr int Indent = 345, Gap = 105, GapOfFirst = 180, Tail = 60; // twips

QTextCharFormat bold(const QColor& colour) {
    QTextCharFormat format;
    format.setFontWeight(QFont::Bold);
    format.setForeground(colour);
    return format;
}

bool isPoint(const QString& paragraph) {
    return paragraph.size() > 3 && paragraph[0].isUpper() && QStringView(paragraph).sliced(1, 2) == u": ";
}

} // namespace

HelpText::HelpText(QWidget* parent) : Control(parent) {
    setRole(this, Role::TextBox);
    setAccessibleName(QStringLiteral("Help"));
    setReadOnly(true);
    setTabChangesFocus(true);
    setUndoRedoEnabled(false);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    // A bar that has nowhere to go shows it.
    QScrollBar* bar = verticalScrollBar();
    bar->setEnabled(false);
    connect(bar, &QScrollBar::rangeChanged, bar, [bar](int least, int most) { bar->setEnabled(most > least); });
    document()->setDocumentMargin(0);
}

void HelpText::read(QStringView page) {
    registerWords();
    QFile file(u":/zarvelia/help/%1.txt"_s.arg(page));
    const bool there = file.open(QIODevice::ReadOnly);
    Q_ASSERT(there);
    Q_UNUSED(there)
    QStringList lines;
    const auto flush = [&] {
        if (!lines.isEmpty()) add(lines.join(u' '));
        lines.clear();
    };
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n')) {
        if (line.isEmpty())
            flush();
        else
            lines += line;
    }
    flush();
    moveCursor(QTextCursor::Start);
    layOut();
}

void HelpText::add(const QString& paragraph) {
    QTextCursor cursor(document());
    cursor.movePosition(QTextCursor::End);
    const bool first = document()->isEmpty(), point = isPoint(paragraph);
    if (!first) cursor.insertBlock();
    cursor.block().setUserState(first ? First : point ? Point : Heading);
    if (point) {
        cursor.insertText(paragraph.left(1), bold(colour::Accent));
        cursor.insertText(u'\t' + paragraph.sliced(3), QTextCharFormat());
    } else {
        cursor.insertText(first ? paragraph : paragraph.sliced(2), bold(colour::Navy));
    }
}

void HelpText::layOut() {
    if (!scale()) return;
    const int line = scale()->focusLine(), indent = scale()->px(Indent);
    setViewportMargins(scale()->px(TextLeft) - line, scale()->px(TextTop) - line, scale()->px(TextRight), line);
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next()) {
        QTextBlockFormat format;
        if (block.userState() == Point) {
            format.setLeftMargin(indent);
            format.setTextIndent(-indent);
            format.setTabPositions({QTextOption::Tab(indent, QTextOption::LeftTab)});
        }
        const bool last = !block.next().isValid();
        format.setBottomMargin(scale()->px(last ? Tail : block.userState() == First ? GapOfFirst : Gap));
        QTextCursor(block).setBlockFormat(format);
    }
}

void HelpText::applyScale(const Scale& scale) {
    Placed::applyScale(scale);
    layOut();
}

} // namespace zv::report
