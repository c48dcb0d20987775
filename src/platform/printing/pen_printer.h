// The rules of the pen, the same for every printer: when a document and a page begin, and where the pen goes.
#pragma once

#include "platform/printing/printer.h"

#include <functional>

namespace zv::printing {

/// A printer that knows the pen and leaves only the marks on the page to the class derived from it. What the derived
/// class throws, error 482, comes again from every operation until EndDoc, so that no caller prints on into nothing.
class PenPrinter : public Printer {
  public:
    using Printer::PrintLine;
    void Print(const QString& text) override;
    void PrintLine() override;
    void NewPage() override;
    void EndDoc() override;
    void PaintPicture(const QImage& picture, double x, double y, double width, double height) override;

  protected:
    /// Opens the document with its first page. Called before the first mark, so that an empty document leaves no trace.
    virtual void beginDocument() = 0;
    /// Begins the next page. Called before its first mark: a page that stays empty at the end is never begun.
    virtual void beginPage() = 0;
    /// Draws one line of text, its top left corner in twips.
    virtual void drawText(double x, double y, const QString& line) = 0;
    /// Draws a picture stretched to the box, in twips.
    virtual void drawPicture(const QImage& picture, double x, double y, double width, double height) = 0;
    /// Closes a document that was opened.
    virtual void finishDocument() = 0;

  private:
    void onPage(const std::function<void()>& mark);
    void turnPageWhenFull();

    bool open_ = false;
    bool pageDue_ = false;
    bool broken_ = false; // the device failed: every further operation fails until the document is ended
};

} // namespace zv::printing
