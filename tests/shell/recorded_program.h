// A main window whose screens do nothing but write down what happens to them.
#pragma once

#include "driver/scripted.h"
#include "platform/forms/controls.h"
#include "platform/printing/recording_printer.h"
#include "shell/form_mdi.h"
#include "support/readable.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zv::test {

class RecordedProgram : public ::testing::Test {
  public:
    ~RecordedProgram() override;

  protected:
    RecordedProgram();

    /// What happened since the last call, one event a line.
    std::string events();
    shell::FormSolapas& strip() { return window->Solapas(); }
    QWidget* find(const QString& name) { return window->findChild<QWidget*>(name); }

    /// Runs when a screen is unloaded, filled, or its button is pressed.
    std::function<void(int number)> onUnload, onCarga, onButton;

    QTemporaryDir folder;
    QStringList log;
    driver::ScriptedBoxes boxes;
    driver::ScriptedFiles files;
    printing::RecordingPrinterDialogs printers;
    forms::Scale scale;
    jet::DBEngine engine{store::tableDefs()};
    store::Store store{engine, boxes};
    shell::Context context{store, boxes, files, printers, scale};
    std::unique_ptr<shell::FormMdi> window;

  private:
    class RecordedScreen;
    void note(const QString& what, int number);
};

} // namespace zv::test
