#include "platform/printing/qt_printer.h"

#include "platform/base/runtime_error.h"
#include "platform/printing/measure.h"

#include <QFontDatabase>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPrinter>
#include <cmath>

using namespace Qt::StringLiterals;

namespace zv::printing {

namespace {

constexpr double TwipsPerInch = 1440;
/// Pictures finer than this are made smaller: more is not seen on paper and only swells the document.
constexpr double PictureDotsPerInch = 300;
/// Height of a line at least, in sizes of the font: that of Comic Sans MS, so that a list breaks into the same pages
/// with the family that stands in for it, and other scripts have room.
constexpr double LineSpacing = 1.39;

/// The family itself, or the one that stands in for it where it is missing.
QString availableFamily(const QString& family) {
    static const bool comicSans = QFontDatabase::families().contains(u"Comic Sans MS"_s);
    return family == "Comic Sans MS"_L1 && !comicSans ? u"Comic Neue"_s : family;
}

} // namespace

QtPrinter::QtPrinter(std::shared_ptr<QPagedPaintDevice> device)
    : device_(std::move(device)),
      printable_(device_->pageLayout().paintRect(QPageLayout::Point).size() * TwipsPerPoint),
      width_(device_->pageLayout().fullRect(QPageLayout::Point).width() * TwipsPerPoint), metrics_(font_) {
    font_.setFamily(availableFamily(u"Comic Sans MS"_s));
    font_.setHintingPreference(QFont::PreferNoHinting);
    setFontSize(9);
}

QtPrinter::~QtPrinter() {
    if (painter_.isActive()) painter_.end();
}

void QtPrinter::setFontName(const QString& family) {
    font_.setFamily(availableFamily(family));
    fontChanged();
}

void QtPrinter::setFontSize(double points) {
    // The painter's unit is the twip, so a font's size in "pixels" is its size in twips.
    font_.setPixelSize(std::max(1, static_cast<int>(std::lround(points * TwipsPerPoint))));
    fontChanged();
}

void QtPrinter::setFontBold(bool bold) {
    font_.setBold(bold);
    fontChanged();
}

void QtPrinter::setForeColor(int bgr) {
    color_ = QColor(bgr & 255, (bgr >> 8) & 255, (bgr >> 16) & 255);
    if (painter_.isActive()) painter_.setPen(color_);
}

void QtPrinter::fontChanged() {
    metrics_ = QFontMetricsF(font_);
    measured_.reset();
    if (painter_.isActive()) painter_.setFont(font_);
}

double QtPrinter::lineHeight() const {
    return std::ceil(
        std::max(metrics_.ascent() + metrics_.descent() + metrics_.leading(), LineSpacing * font_.pixelSize()));
}

double QtPrinter::TextWidth(const QString& text) const {
    if (measured_ && measured_->first == text) return measured_->second;
    double width = 0;
    for (const QString& line : linesOf(text)) width = std::max(width, metrics_.horizontalAdvance(line));
    measured_ = {text, width};
    return width;
}

double QtPrinter::TextHeight(const QString& text) const {
    return lineHeight() * static_cast<double>(linesOf(text).size());
}

int QtPrinter::charactersUntilWidth(const QString& text, int from, double limit) const {
    return fillWidthFast(text, from, limit, font_.pixelSize(),
                         [this](const QString& piece) { return TextWidth(piece); });
}

void QtPrinter::beginDocument() {
    if (!painter_.begin(device_.get())) throw RuntimeError(PrinterError);
    checkDevice();
    painter_.scale(device_->logicalDpiX() / TwipsPerInch, device_->logicalDpiY() / TwipsPerInch);
    prepare(painter_);
    painter_.setFont(font_);
    painter_.setPen(color_);
}

void QtPrinter::beginPage() {
    if (!device_->newPage()) throw RuntimeError(PrinterError);
    checkDevice();
}

void QtPrinter::prepare(QPainter& painter) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    // Records begin with their number: a line that happens to begin with an Arabic word reads like its neighbours.
    painter.setLayoutDirection(Qt::LeftToRight);
}

QPointF QtPrinter::baseline(double x, double y) const {
    const double above = (lineHeight() - metrics_.ascent() - metrics_.descent()) / 2;
    return {x, y + above + metrics_.ascent()};
}

QImage QtPrinter::printedPicture(const QImage& picture, double width, double height) {
    const double dots = PictureDotsPerInch / TwipsPerInch;
    const QSize enough(std::max(1, static_cast<int>(std::ceil(width * dots))),
                       std::max(1, static_cast<int>(std::ceil(height * dots))));
    const bool tooFine = picture.width() > enough.width() && picture.height() > enough.height();
    return tooFine ? picture.scaled(enough, Qt::IgnoreAspectRatio, Qt::SmoothTransformation) : picture;
}

void QtPrinter::drawText(double x, double y, const QString& line) { painter_.drawText(baseline(x, y), line); }

void QtPrinter::drawPicture(const QImage& picture, double x, double y, double width, double height) {
    painter_.drawImage(QRectF(x, y, width, height), printedPicture(picture, width, height));
}

void QtPrinter::finishDocument() {
    if (!painter_.end()) throw RuntimeError(PrinterError);
    checkDevice();
}

void QtPrinter::checkDevice() const {
    const auto* printer = dynamic_cast<const QPrinter*>(device_.get());
    if (printer && printer->printerState() == QPrinter::Error) throw RuntimeError(PrinterError);
}

} // namespace zv::printing
