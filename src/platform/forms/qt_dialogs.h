// The real message boxes and the real file dialog.
#pragma once

#include "platform/base/dialogs.h"
#include <QWidget>

namespace zv::forms {

class QtMessageBoxes : public MessageBoxes {
  public:
    int MsgBox(const QString& text, int style) override;
};

class QtFileDialogs : public FileDialogs {
  public:
    QString openFile(const QString& title, const QString& filter, const QString& fileName) override;
};

} // namespace zv::forms
