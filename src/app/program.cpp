#include "app/program.h"

#include <QCoreApplication>

namespace zv::app {

Program::~Program() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

QSize startSize(QSize desktop) {
    // What a window manager puts around a window.
    const QSize frame(16, 48);
    for (const QSize wanted : {QSize(1240, 960), QSize(1100, 760)})
        if (wanted.width() + frame.width() <= desktop.width() && wanted.height() + frame.height() <= desktop.height())
            return wanted;
    return {};
}

} // namespace zv::app
