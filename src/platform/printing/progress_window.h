// The window that tells how far a print is.
#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>

namespace zv::printing {

/// Comes up when a print takes a while. It keeps the program's windows drawn and its other windows from any input: a
/// print can't be stopped, and nothing else may begin before it has ended.
class ProgressWindow : public QProgressDialog {
  public:
    explicit ProgressWindow(QWidget* parent);
    /// How many of the parts are done. Lets the windows be drawn.
    void show(int done, int of);

    void reject() override {}

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    QElapsedTimer sinceShown_;
};

} // namespace zv::printing
