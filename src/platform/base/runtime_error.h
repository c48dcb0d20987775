// The one exception of the program: a numbered run-time error of the platform, and the guard that no error passes.
#pragma once

#include <QString>
#include <exception>
#include <functional>

namespace zv {

/// A run-time error: its number and its text. What a handler does not catch ends the program.
class RuntimeError : public std::exception {
  public:
    /// The text is the platform's own for that number.
    explicit RuntimeError(int number);
    RuntimeError(int number, QString text);

    int number() const { return number_; }
    const QString& text() const { return text_; }
    const char* what() const noexcept override { return utf8_.constData(); }

    /// The platform's text of a number, "Application-defined or object-defined error" for one that has none.
    static QString textOf(int number);

  private:
    int number_;
    QString text_;
    QByteArray utf8_;
};

/// What happens to an error that escapes a handler. The program shows it and ends; a test fails.
using FatalErrorHandler = std::function<void(const RuntimeError&)>;

/// Sets the process's handler of escaped errors and returns the one before.
FatalErrorHandler setFatalErrorHandler(FatalErrorHandler handler);

/// Runs an entry from the toolkit. An exception never leaves it: an escaped error goes to the fatal error handler.
void guarded(const std::function<void()>& entry);

} // namespace zv
