// The printer over Qt's painter: paper, PDF and Qt's print preview all get the same pages.
#pragma once

#include "platform/printing/pen_printer.h"

#include <QColor>
#include <QFont>
#include <QFontMetricsF>
#include <QPainter>
#include <optional>

class QPagedPaintDevice;

namespace zv::printing {

/// Prints on a paged device. Fonts keep their size in points whatever the resolution, and are measured in twips without
/// hinting, so that lines break at the same words on every device. Heights of lines are whole twips: positions that the
/// caller keeps in whole numbers never drift from the pen.
class QtPrinter : public PenPrinter {
  public:
    /// The page is that of the device at this moment.
    explicit QtPrinter(std::shared_ptr<QPagedPaintDevice> device);
    ~QtPrinter() override;

    /// Gives a painter the hints of every page.
    static void prepare(QPainter& painter);

    void setFontName(const QString& family) override;
    void setFontSize(double points) override;
    void setFontBold(bool bold) override;
    void setForeColor(int bgr) override;

    double ScaleWidth() const override { return printable_.width(); }
    double ScaleHeight() const override { return printable_.height(); }
    double Width() const override { return width_; }

    double TextWidth(const QString& text) const override;
    double TextHeight(const QString& text) const override;
    int charactersUntilWidth(const QString& text, int from, double limit) const override;

  protected:
    const QFont& font() const { return font_; }
    QColor color() const { return color_; }
    /// Where the base line of a text begins whose top left corner is there.
    QPointF baseline(double x, double y) const;
    /// The picture as it is drawn into a box of that many twips: no finer than is seen on paper.
    static QImage printedPicture(const QImage& picture, double width, double height);
    void beginDocument() override;
    void beginPage() override;
    void drawText(double x, double y, const QString& line) override;
    void drawPicture(const QImage& picture, double x, double y, double width, double height) override;
    void finishDocument() override;

  private:
    void fontChanged();
    double lineHeight() const;
    void checkDevice() const;

    std::shared_ptr<QPagedPaintDevice> device_;
    QSizeF printable_;
    double width_ = 0;
    QPainter painter_;
    QFont font_;
    QFontMetricsF metrics_;
    QColor color_ = Qt::black;
    mutable std::optional<std::pair<QString, double>> measured_; // a line is measured again when it is printed
};

/// A printer into that PDF file on A4. The file is written whole or not at all: an older one of that name stays until
/// EndDoc. Error 482 at the first output if the file can't be written, or at EndDoc if the disk is full.
std::unique_ptr<Printer> pdfPrinter(const QString& path);

/// The same with the paper of another device.
std::unique_ptr<Printer> pdfPrinter(const QString& path, const QPagedPaintDevice& paper);

} // namespace zv::printing
