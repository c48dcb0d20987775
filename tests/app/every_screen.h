// All 69 screens, one after the other, on a catalogue that holds a record of each kind.
#pragma once

#include "support/desk.h"

namespace zv::test {

class EveryScreen : public Desk {
  protected:
    void SetUp() override;

    /// Shows and fills each screen by its number, and does the work on it.
    void onEach(const std::function<void(int number, forms::Form& screen)>& work);
    /// All controls of a form, hidden ones too.
    static std::vector<forms::Placed*> controlsOf(QWidget& form);
    shell::FormSolapas& strip() { return program->window.Solapas(); }
};

} // namespace zv::test
