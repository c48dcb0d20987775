#include "tour/tour_dialogs.h"

#include <QApplication>
#include <QPushButton>
#include <QTest>
#include <QTimer>

namespace zv::tour {

namespace {

QMessageBox::StandardButton buttonOf(int answer) {
    switch (answer) {
    case box::Yes: return QMessageBox::Yes;
    case box::No: return QMessageBox::No;
    case box::Cancel: return QMessageBox::Cancel;
    default: return QMessageBox::Ok;
    }
}

} // namespace

int TourBoxes::MsgBox(const QString& text, int style) {
    const int answer = ScriptedBoxes::MsgBox(text, style);
    if (!seen) return answer;
    const auto look = std::exchange(seen, nullptr);
    QTimer::singleShot(0, [&look, answer] {
        auto* shown = dynamic_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!shown) qFatal("The box did not open.");
        QApplication::setActiveWindow(shown);
        look(*shown);
        QTest::mouseClick(shown->button(buttonOf(answer)), Qt::LeftButton);
    });
    QWidget* window = QApplication::activeWindow();
    real_.MsgBox(text, style);
    // Without a desktop nobody gives the window its focus back.
    if (window) QApplication::setActiveWindow(window);
    return answer;
}

} // namespace zv::tour
