// A printer that writes down what it is told, one line of text for each operation, for tests of exact pen positions.
#pragma once

#include "platform/printing/pen_printer.h"

#include <QHash>
#include <QStringList>

namespace zv::printing {

/// Every character has the width set for it, every line the same height.
class RecordingPrinter : public PenPrinter {
  public:
    double characterWidth = 100;
    QHash<QChar, double> characterWidths; ///< exceptions from characterWidth
    double lineHeight = 200;
    double scaleWidth = 11500, scaleHeight = 16400, width = 11900;

    /// "page 1", "text x y size [bold] colour 'words'", "picture x y w h", "end".
    const QStringList& operations() const { return operations_; }
    /// Number of the page being printed, 0 before the first mark.
    int page() const { return page_; }
    /// From now on the device fails with error 482, or works again.
    void setFailing(bool failing) { failing_ = failing; }

    void setFontName(const QString& family) override { family_ = family; }
    void setFontSize(double points) override { size_ = points; }
    void setFontBold(bool bold) override { bold_ = bold; }
    void setForeColor(int bgr) override { color_ = bgr; }
    double ScaleWidth() const override { return scaleWidth; }
    double ScaleHeight() const override { return scaleHeight; }
    double Width() const override { return width; }
    double TextWidth(const QString& text) const override;
    double TextHeight(const QString& text) const override;
    int charactersUntilWidth(const QString& text, int from, double limit) const override;

  protected:
    void beginDocument() override;
    void beginPage() override;
    void drawText(double x, double y, const QString& line) override;
    void drawPicture(const QImage& picture, double x, double y, double width, double height) override;
    void finishDocument() override;

  private:
    QStringList operations_;
    QString family_;
    double size_ = 8;
    bool bold_ = false;
    int color_ = 0;
    int page_ = 0;
    bool failing_ = false;
};

} // namespace zv::printing
