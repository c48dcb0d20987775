// The tab strip under every screen, and the navigator: it loads, shows and unloads the screens by their numbers.
#pragma once

#include "platform/forms/controls.h"
#include "shell/contract/screen.h"
#include "shell/screen_numbers.h"
#include <array>
#include <map>

namespace zv::shell {

/// How a screen comes into being. The list of all of them is the program's.
struct ScreenEntry {
    QString name;
    std::function<Screen*(Context&, QWidget* parent, const QString& name)> make;
};

class FormSolapas : public forms::Form, public Navigator {
  public:
    /// window: the main window that hosts the screens. screens: ScreenCount entries by number.
    FormSolapas(Context& context, QWidget* window, std::vector<ScreenEntry> screens);

    void MostrarFormulario(int number) override;
    void OcultarFormulario() override;
    void CargaFormulario() override;
    void BloquearSolapas(bool disable) override;
    void setTabRegistros1(int tab) override { TabRegistros1->setTab(tab); }
    void TabRegistros1_Click() override { functionClick(1); }
    void TabRegistros2_Click() { functionClick(2); }
    void TabNivel1_Click();
    void TabAyuda_Click();

    /// Number of the screen on display.
    qint16 VentanaMostrandose = 0;

    /// Unloads all screens.
    void unloadAll();
    /// The screen of that number if it is loaded.
    Screen* loadedScreen(int number) const;
    /// Lays the strip and the loaded screens out at the window's scale.
    void applyScale();
    /// Rectangle of the screen and its strip in pixels, for the shadow around them; empty before anything is shown.
    QRect block() const;

    forms::TabControl *TabNivel1, *TabRegistros1, *TabRegistros2, *TabAyuda;
    /// Entity tabs by Records I or II (0, 1) and function.
    std::array<std::array<forms::TabControl*, 4>, 2> TabEntidad;

  protected:
    void Form_Load() override;
    void paintEvent(QPaintEvent* event) override;

  private:
    void entityClick(int records, Function function);
    void functionClick(int records);
    void showTabRows();
    void show(int number);
    /// Runs a handler of a tab with the strip disabled, so that no second click comes while it works.
    void run(const std::function<void()>& work);

    Context& context_;
    QWidget* window_;
    std::vector<ScreenEntry> screens_;
    std::map<int, Screen*> loaded_;
    int running_ = 0;
};

} // namespace zv::shell
