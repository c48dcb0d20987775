#include "platform/printing/pen_printer.h"

#include "platform/base/runtime_error.h"
#include "platform/printing/measure.h"

namespace zv::printing {

void PenPrinter::onPage(const std::function<void()>& mark) {
    if (broken_) throw RuntimeError(PrinterError);
    try {
        if (!open_) {
            beginDocument();
            open_ = true;
        } else if (pageDue_) {
            beginPage();
        }
        pageDue_ = false;
        if (mark) mark();
    } catch (const RuntimeError&) {
        broken_ = true;
        throw;
    }
}

void PenPrinter::turnPageWhenFull() {
    // At the top nothing is gained by another page, however low the paper is.
    if (CurrentY <= 0 || CurrentY + TextHeight(QString()) <= ScaleHeight()) return;
    pageDue_ = open_;
    CurrentY = 0;
}

void PenPrinter::Print(const QString& text) {
    const QStringList lines = linesOf(text);
    for (qsizetype i = 0; i < lines.size(); ++i) {
        if (i > 0) PrintLine();
        if (lines[i].isEmpty()) continue;
        turnPageWhenFull();
        onPage([&] { drawText(CurrentX, CurrentY, lines[i]); });
        CurrentX += TextWidth(lines[i]);
    }
}

void PenPrinter::PrintLine() {
    if (broken_) throw RuntimeError(PrinterError);
    CurrentX = 0;
    CurrentY += TextHeight(QString());
    turnPageWhenFull();
}

void PenPrinter::NewPage() {
    if (!open_ || pageDue_) onPage(nullptr);
    pageDue_ = true;
    CurrentX = CurrentY = 0;
}

void PenPrinter::EndDoc() {
    const bool wasOpen = open_;
    open_ = pageDue_ = broken_ = false;
    CurrentX = CurrentY = 0;
    if (wasOpen) finishDocument();
}

void PenPrinter::PaintPicture(const QImage& picture, double x, double y, double width, double height) {
    onPage([&] { drawPicture(picture, x, y, width, height); });
}

} // namespace zv::printing
