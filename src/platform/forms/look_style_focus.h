// The line that marks a grid with the focus: its cells begin at the border, so it is drawn above them.
#pragma once

#include <QTableView>

namespace zv::forms {

/// Lies over a grid, lets the mouse through, and is seen only while the grid has the focus.
class FocusEdge : public QWidget {
  public:
    /// Gives a grid its line, once.
    static void attach(QTableView& grid);

  protected:
    void paintEvent(QPaintEvent*) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

  private:
    explicit FocusEdge(QTableView& grid);
};

} // namespace zv::forms
