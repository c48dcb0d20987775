// A document kept in memory as the marks on its pages, to be looked at before it is printed.
#pragma once

#include "platform/printing/qt_printer.h"

#include <QPageLayout>
#include <QTemporaryFile>
#include <vector>

namespace zv::printing {

/// Pages that can be drawn at any time. Their words are kept in memory, their pictures, at the resolution of paper, in
/// a temporary file: thousands of pages may carry as many pictures.
class PreviewPages {
  public:
    explicit PreviewPages(const QPageLayout& layout) : layout_(layout) {}

    int count() const { return static_cast<int>(pages_.size()); }
    const QPageLayout& layout() const { return layout_; }

    /// Begins the next page, which the marks that follow are on. Lengths are in twips from the printable corner.
    void begin() { pages_.emplace_back(); }
    void addText(const QPointF& baseline, const QString& line, const QFont& font, const QColor& color);
    /// Error 482 if the picture can't be kept.
    void addPicture(const QRectF& box, const QImage& picture);

    /// Draws a page, from 0, with its margins into the rectangle.
    void draw(int page, QPainter& painter, const QRectF& into) const;
    /// The words of a page, from 0, a line for each time that something was printed.
    QString words(int page) const;

  private:
    struct Mark {
        QRectF box; ///< of a picture; for a text its base line begins at the top left corner
        QString text;
        QFont font;
        QColor color;
        qint64 pictureAt = 0, pictureSize = 0; ///< bytes in the file; a text has none
    };

    QPageLayout layout_;
    std::vector<std::vector<Mark>> pages_;
    mutable QTemporaryFile pictures_;
};

/// Prints into such pages as it would print on the device whose paper it takes.
class PreviewPrinter : public QtPrinter {
  public:
    /// The pages are those of the device's paper and outlive the printer.
    PreviewPrinter(std::shared_ptr<QPagedPaintDevice> device, PreviewPages& pages)
        : QtPrinter(std::move(device)), pages_(pages) {}

  protected:
    void beginDocument() override { pages_.begin(); }
    void beginPage() override { pages_.begin(); }
    void drawText(double x, double y, const QString& line) override {
        pages_.addText(baseline(x, y), line, font(), color());
    }
    void drawPicture(const QImage& picture, double x, double y, double width, double height) override {
        pages_.addPicture({x, y, width, height}, printedPicture(picture, width, height));
    }
    void finishDocument() override {}

  private:
    PreviewPages& pages_;
};

} // namespace zv::printing
