#include "platform/printing/recording_printer.h"

#include "platform/base/runtime_error.h"
#include "platform/printing/measure.h"

using namespace Qt::StringLiterals;

namespace zv::printing {

double RecordingPrinter::TextWidth(const QString& text) const {
    double widest = 0;
    for (const QString& line : linesOf(text)) {
        double sum = 0;
        for (const QChar c : line) sum += characterWidths.value(c, characterWidth);
        widest = std::max(widest, sum);
    }
    return widest;
}

double RecordingPrinter::TextHeight(const QString& text) const {
    return lineHeight * static_cast<double>(linesOf(text).size());
}

int RecordingPrinter::charactersUntilWidth(const QString& text, int from, double limit) const {
    return fillWidth(text, from, limit, [this](const QString& piece) { return TextWidth(piece); });
}

void RecordingPrinter::checkDevice() const {
    if (log_->failing) throw RuntimeError(PrinterError);
}

void RecordingPrinter::beginDocument() {
    log_->page = 0;
    beginPage();
}

void RecordingPrinter::beginPage() {
    checkDevice();
    log_->operations += u"page %1"_s.arg(++log_->page);
}

void RecordingPrinter::drawText(double x, double y, const QString& line) {
    checkDevice();
    log_->operations +=
        u"text %1 %2 %3 %4%5 '"_s.arg(x).arg(y).arg(size_).arg(bold_ ? u"bold "_s : QString()).arg(color_) + line +
        u'\'';
}

void RecordingPrinter::drawPicture(const QImage&, double x, double y, double w, double h) {
    checkDevice();
    log_->operations += u"picture %1 %2 %3 %4"_s.arg(x).arg(y).arg(w).arg(h);
}

void RecordingPrinter::finishDocument() { log_->operations += u"end"_s; }

std::unique_ptr<Printer> RecordingPrinterDialogs::ShowPrinter(const Document& document) {
    ++shown;
    if (looks) {
        document(preview, [](int, int) {});
        preview.EndDoc();
    }
    if (error != 0) throw RuntimeError(error);
    return std::make_unique<RecordingPrinter>(printer);
}

void RecordingPrinterDialogs::showProgress(int done, int of) { progress += u"%1 of %2"_s.arg(done).arg(of); }

} // namespace zv::printing
