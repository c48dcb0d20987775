#include "shell/contract/selection_check.h"

#include "shell/screen_numbers.h"
#include "store/current_selection.h"

namespace zv::shell {

bool SelectionCheck::passes(Context& context, const Screen& screen) {
    if (!pending_) return true;
    pending_ = false;
    store::CurrentSelection selection(context.store);
    if (selection.isClear()) return true;
    if (context.boxes.MsgBox(selection.question(), box::OkCancel) == box::Ok) {
        selection.close();
        return true;
    }
    Navigator& navigator = *context.navigator;
    navigator.SolapaRegistros1 = static_cast<qint16>(store::info(selection.first()).tab);
    navigator.setTabRegistros1(static_cast<int>(Function::Select));
    // From a Select screen the tab did not change, so that nothing has happened yet.
    if (screen.loaded()) navigator.TabRegistros1_Click();
    return false;
}

} // namespace zv::shell
