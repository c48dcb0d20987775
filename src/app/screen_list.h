// The one list of all screens by their numbers.
#pragma once

#include "shell/form_solapas.h"

namespace zv::app {

/// ScreenCount entries: number 0 the presentation, 1 to 68 the working screens.
std::vector<shell::ScreenEntry> screenList();

} // namespace zv::app
