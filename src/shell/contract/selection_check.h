// How a Recording screen asks for the selections of its parts to be closed, and where it goes without that.
#pragma once

#include "shell/contract/screen.h"

namespace zv::shell {

/// One for each Recording screen. It is still to be made when the screen comes into being.
class SelectionCheck {
  public:
    /// To be called first thing in Carga: makes the check if that is still to be done. OK to its box closes the
    /// selections. Cancel leaves for the Select screen of the first of them; the screen is unloaded then. False if the
    /// screen is not to be filled.
    bool passes(Context& context, const Screen& screen);

  private:
    bool pending_ = true;
};

} // namespace zv::shell
