// What the families of screens share with the shell: a screen, the navigator between screens, and the context that the
// program makes once and hands down.
#pragma once

#include "platform/base/dialogs.h"
#include "platform/forms/form.h"
#include "store/channels.h"

namespace zv::printing {
class PrinterDialogs;
}

namespace zv::shell {

class Navigator;

/// Everything that a screen reaches beyond itself. A test makes its own.
struct Context {
    store::Store& store;
    MessageBoxes& boxes;
    FileDialogs& files;
    printing::PrinterDialogs& printers;
    const forms::Scale& scale;
    Navigator* navigator = nullptr;
};

/// Size of every screen but the presentation, in twips.
inline constexpr int ScreenWidth = 10320, ScreenHeight = 7755;

/// A working screen: it is loaded when it is shown, filled by its Carga, and unloaded when it is left.
class Screen : public forms::Form {
  public:
    Screen(Context& context, QWidget* parent, const QString& name, int width = ScreenWidth, int height = ScreenHeight)
        : Form(parent, context.scale, name, width, height), context_(context) {}

    /// Fills the screen from the working memory and its channel. Screens without one do their work in their load.
    virtual void Carga() {}

    int MsgBox(const QString& text, int style) { return context_.boxes.MsgBox(text, style); }

  protected:
    Context& context() { return context_; }
    store::Store& store() { return context_.store; }
    store::Module1& module1() { return context_.store.module1; }

  private:
    Context& context_;
};

/// The tab strip as the screens see it.
class Navigator {
  public:
    virtual ~Navigator() = default;

    /// Shows the screen of that number (0 to 68), centred with the tabs under it. Any other number shows nothing.
    virtual void MostrarFormulario(int number) = 0;
    /// Unloads the screen on display.
    virtual void OcultarFormulario() = 0;
    /// Runs the Carga of the screen on display.
    virtual void CargaFormulario() = 0;
    /// Disables or enables the tabs, unless SolapasFijas holds them.
    virtual void BloquearSolapas(bool disable) = 0;

    virtual void setTabRegistros1(int tab) = 0;
    virtual void TabRegistros1_Click() = 0;

    qint16 SolapaRegistros1 = 0; ///< entity tab chosen last in Records I
    qint16 SolapaRegistros2 = 0; ///< the same in Records II
    qint16 AyudaAnadir = 59;     ///< help page of Add shown last
    qint16 AyudaMostrar = 63;    ///< help page of Show-Edit shown last
    qint16 AyudaListar = 66;     ///< help page of List-Print shown last
};

} // namespace zv::shell
