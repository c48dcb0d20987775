// The three name boxes of the orchestra screens, of which one may be filled: orchestra, ensemble or choir.
#pragma once

#include "editors/editor_screen.h"

namespace zv::editors {

class NameBoxes {
  public:
    static constexpr int Count = 3;

    /// Adds the boxes to the screen. limit: characters of the name.
    NameBoxes(forms::Form& form, int limit);

    forms::TextBox& box(int i) const { return *boxes_[static_cast<std::size_t>(i)]; }
    /// The first box that holds more than blanks, in the order orchestra, ensemble, choir; none gives `otherwise`.
    int filled(int otherwise) const;
    bool allEmpty() const { return filled(-1) < 0; }
    /// Text of the filled box.
    QString text() const;
    void setLocked(bool locked);
    /// Puts the boxes into the tab chain behind a control.
    void followTabStop(QWidget* before) const;
    void clear();

    /// Grey without tips, or white with the tip of a missing identifier: all three say together what is missing.
    void Colorear(bool filled);
    /// If another box holds text, the given one is emptied and the other gets the focus: true.
    bool yieldToOther(int i);

  private:
    std::array<forms::TextBox*, Count> boxes_;
};

} // namespace zv::editors
