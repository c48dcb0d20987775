// The whole program but its process: everything that is made once, handed down from here.
#pragma once

#include "app/screen_list.h"
#include "platform/jet/engine.h"
#include "shell/form_mdi.h"

namespace zv::app {

class Program {
  public:
    Program(MessageBoxes& boxes, FileDialogs& files, printing::PrinterDialogs& printers)
        : engine(store::tableDefs()), store(engine, boxes), context{store, boxes, files, printers, scale},
          window(engine, context, scale, screenList()) {}
    /// Deletes the forms that were unloaded last and still wait for it: they hold on to the scale.
    ~Program();

    forms::Scale scale;
    jet::DBEngine engine;
    store::Store store;
    shell::Context context;
    shell::FormMdi window;
};

/// The size of the main window at start in pixels, after the desktop's free size; empty for maximised.
QSize startSize(QSize desktop);

} // namespace zv::app
