// Boxes and dialogs that answer by a script: what is expected in order, what is answered. Anything else is a failure.
#pragma once

#include "platform/base/dialogs.h"
#include <QStringList>
#include <deque>
#include <functional>

namespace zv::driver {

/// Told in words what went wrong.
using Failure = std::function<void(const QString&)>;

class ScriptedBoxes : public MessageBoxes {
  public:
    explicit ScriptedBoxes(Failure failure) : failure_(std::move(failure)) {}

    /// The next box will have this text and style, and be answered so.
    void expect(const QString& text, int style, int answer = box::Ok) { expected_.push_back({text, style, answer}); }
    /// Fails for boxes that were expected and did not come.
    void checkAllShown();
    /// Runs while the next box is in front.
    std::function<void()> whileShown;

    int MsgBox(const QString& text, int style) override;

  private:
    struct Expected {
        QString text;
        int style, answer;
    };
    Failure failure_;
    std::deque<Expected> expected_;
};

class ScriptedFiles : public FileDialogs {
  public:
    explicit ScriptedFiles(Failure failure) : failure_(std::move(failure)) {}

    /// The next file dialog gives this path; "" is a cancel.
    void choose(const QString& path) { chosen_.push_back(path); }
    /// Title, filter and preset of the dialog shown last.
    QStringList shown;

    QString openFile(const QString& title, const QString& filter, const QString& fileName) override;

  private:
    Failure failure_;
    std::deque<QString> chosen_;
};

} // namespace zv::driver
