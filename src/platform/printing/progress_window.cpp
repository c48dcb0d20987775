#include "platform/printing/progress_window.h"

#include <QCloseEvent>

namespace zv::printing {

using namespace Qt::StringLiterals;

ProgressWindow::ProgressWindow(QWidget* parent) : QProgressDialog(u"Printing"_s, QString(), 0, 1, parent) {
    setObjectName(u"DialogoProgreso"_s);
    setWindowTitle(u"Zarvelia"_s);
    setAccessibleName(u"Printing"_s);
    setWindowModality(Qt::ApplicationModal);
    setAutoReset(false);
    setAutoClose(false);
    constexpr int Moment = 500;
    setMinimumDuration(Moment);
    setValue(0); // starts the clock
}

void ProgressWindow::show(int done, int of) {
    constexpr int Breath = 50;
    if (sinceShown_.isValid() && sinceShown_.elapsed() < Breath) return;
    setLabelText(u"Printing: %1 of %2"_s.arg(done).arg(of));
    setMaximum(of);
    setValue(done); // lets the windows be drawn, once it is up
    sinceShown_.start();
}

void ProgressWindow::closeEvent(QCloseEvent* event) { event->ignore(); }

} // namespace zv::printing
