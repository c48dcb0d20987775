// A printer that writes down what it is told, one line of text for each operation, for tests of exact pen positions.
#pragma once

#include "platform/printing/pen_printer.h"

#include <QHash>
#include <QStringList>

namespace zv::printing {

/// Every character has the width set for it, every line the same height. Copies write into the same record.
class RecordingPrinter : public PenPrinter {
  public:
    double characterWidth = 100;
    QHash<QChar, double> characterWidths; ///< exceptions from characterWidth
    double lineHeight = 200;
    double scaleWidth = 11500, scaleHeight = 16400, width = 11900;

    /// "page 1", "text x y size [bold] colour 'words'", "picture x y w h", "end".
    const QStringList& operations() const { return log_->operations; }
    /// Number of the page being printed, 0 before the first mark.
    int page() const { return log_->page; }
    /// From now on the device fails with error 482, or works again.
    void setFailing(bool failing) { log_->failing = failing; }

    void setFontName(const QString&) override {}
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
    struct Log {
        QStringList operations;
        int page = 0;
        bool failing = false;
    };
    void checkDevice() const;

    std::shared_ptr<Log> log_ = std::make_shared<Log>();
    double size_ = 8;
    bool bold_ = false;
    int color_ = 0;
};

/// Gives copies of one recording printer, which all write into its record, or an error.
class RecordingPrinterDialogs : public PrinterDialogs {
  public:
    RecordingPrinter printer;
    RecordingPrinter preview; ///< where the document goes that is looked at
    bool looks = false;       ///< whether it is
    QStringList progress;     ///< "done of number" of the print
    int shown = 0;            ///< how often the dialog was asked for
    int error = 0;            ///< run-time error instead of a printer, if not 0
    std::unique_ptr<Printer> ShowPrinter(const Document& document) override;
    void showProgress(int done, int of) override;
};

} // namespace zv::printing
