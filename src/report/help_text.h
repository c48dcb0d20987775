// The words of a help page: its first sentence, and points with letters that hang before them.
#pragma once

#include "platform/forms/placed.h"
#include <QTextEdit>

namespace zv::report {

/// Reads its words from a file of the program's own: paragraphs parted by empty lines, each in as many lines as it
/// likes. The first one is the page's first sentence. "# " begins a heading, "A: " the point of that letter.
class HelpText : public forms::Control<QTextEdit> {
  public:
    explicit HelpText(QWidget* parent);

    /// page: name of the file without its ending.
    void read(QStringView page);

    void applyScale(const forms::Scale& scale) override;
    void clearHandlers() override {}

  private:
    enum Paragraph { First, Heading, Point };
    void add(const QString& paragraph);
    /// Indents and gaps of all paragraphs at the scale.
    void layOut();
};

} // namespace zv::report
