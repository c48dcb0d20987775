// The printer as the print engine sees it: a pen over pages, all lengths in twips from the printable corner.
#pragma once

#include <QImage>
#include <QString>
#include <functional>
#include <memory>

namespace zv::printing {

inline constexpr double TwipsPerPoint = 20;

/// Numbers of the run-time errors of printing: the device failed, the dialog was left by Cancel.
inline constexpr int PrinterError = 482;
inline constexpr int PrinterCancel = 32755;

class Printer {
  public:
    virtual ~Printer() = default;

    virtual void setFontName(const QString& family) = 0;
    virtual void setFontSize(double points) = 0;
    virtual void setFontBold(bool bold) = 0;
    /// A colour stored blue-green-red: 0 black, 8388608 navy.
    virtual void setForeColor(int bgr) = 0;

    double CurrentX = 0;
    double CurrentY = 0;
    virtual double ScaleWidth() const = 0;  ///< printable width
    virtual double ScaleHeight() const = 0; ///< printable height
    virtual double Width() const = 0;       ///< physical width of the page

    virtual double TextWidth(const QString& text) const = 0;
    virtual double TextHeight(const QString& text) const = 0;

    /// How many characters of the text it takes, from the given position and at least one, until the width of what was
    /// taken is `limit` or more, or the text ends. The answer is that of measuring the whole piece after each
    /// character.
    virtual int charactersUntilWidth(const QString& text, int from, double limit) const = 0;

    /// Prints at the pen; the pen stays behind the text, and what crosses the right edge is clipped. A line that has no
    /// room left above the printable height begins a page: the pen keeps its x and goes to the top.
    virtual void Print(const QString& text) = 0;
    /// Moves the pen to the start of the next line: x 0, y down by one height of a line, or to the top of the next page
    /// when a line has no room there.
    virtual void PrintLine() = 0;
    void PrintLine(const QString& text) {
        Print(text);
        PrintLine();
    }
    /// Ends the page; the pen goes to 0, 0.
    virtual void NewPage() = 0;
    /// Ends the document and releases it. Nothing printed gives no document; no blank page after NewPage.
    virtual void EndDoc() = 0;
    /// Draws a picture stretched to the box.
    virtual void PaintPicture(const QImage& picture, double x, double y, double width, double height) = 0;
};

/// Told how many of the parts of a document are done; from 1.
using Progress = std::function<void(int done, int of)>;

/// Prints a document into any printer, as often as wanted: the same pages every time. It leaves no trace elsewhere.
using Document = std::function<void(Printer& printer, const Progress& progress)>;

/// The printer dialog behind an interface.
class PrinterDialogs {
  public:
    virtual ~PrinterDialogs() = default;
    /// Lets a printer be chosen and gives it; the document can be looked at before. Error 32755 on cancel, 482 for a
    /// printer that can't be used, and any error of the document while it is looked at.
    virtual std::unique_ptr<Printer> ShowPrinter(const Document& document) = 0;
    /// Told during the print how many of its parts are done, and 0 when it has ended.
    virtual void showProgress(int /*done*/, int /*of*/) {}
};

} // namespace zv::printing
