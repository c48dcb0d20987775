// What the logic asks of a person: message boxes and the choice of a file, behind interfaces that a test can script.
#pragma once

#include <QString>

namespace zv {

/// Styles of a message box (sums of buttons and icon) and its answers.
namespace box {
inline constexpr int Critical = 16;    // OK
inline constexpr int OkCancel = 33;    // OK and Cancel, question icon
inline constexpr int YesNo = 36;       // Yes and No, question icon
inline constexpr int Warning = 48;     // OK
inline constexpr int Information = 64; // OK
inline constexpr int YesNoInformation = 68;
inline constexpr int Ok = 1;
inline constexpr int Cancel = 2;
inline constexpr int Yes = 6;
inline constexpr int No = 7;
} // namespace box

class MessageBoxes {
  public:
    virtual ~MessageBoxes() = default;
    /// Shows a text (line ends "\r") in a box of that style and waits for the answer.
    virtual int MsgBox(const QString& text, int style) = 0;
};

class FileDialogs {
  public:
    virtual ~FileDialogs() = default;
    /// Lets a file be chosen. filter: "words|*.a;*.b|words|*.*". Returns its full path, "" on cancel.
    virtual QString openFile(const QString& title, const QString& filter, const QString& fileName) = 0;
};

/// The file dialog of a screen: it holds the path of the record's picture even while it is not shown.
class CommonDialog {
  public:
    QString FileName, Filter, DialogTitle;
    /// Shows the dialog; on cancel FileName stays.
    void ShowOpen(FileDialogs& dialogs) {
        const QString chosen = dialogs.openFile(DialogTitle, Filter, FileName);
        if (!chosen.isEmpty()) FileName = chosen;
    }
};

} // namespace zv
