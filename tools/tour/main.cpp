// zarvelia-tour OUTFOLDER: shows what the program does, without a display, and looks whether it does it right.
#include "tour/tour.h"
#include <QApplication>
#include <cstdio>

using namespace zv;

namespace {

QStringList complaints;

/// Collects what the toolkit complains of, but for what is said wherever there is no desktop.
void listen(QtMsgType type, const QMessageLogContext&, const QString& text) {
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    for (const char* usual : {"propagateSizeHints", "XDG_RUNTIME_DIR"})
        if (text.contains(QLatin1StringView(usual))) return;
    std::fprintf(stderr, "The toolkit complains: %s\n", qPrintable(text));
    complaints += text;
    if (type == QtFatalMsg) std::abort();
}

/// Status 0 where windows can be shown. The toolkit aborts where they can't.
int tryDisplay(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QString platform = QGuiApplication::platformName();
    return platform == QLatin1StringView("xcb") || platform.startsWith(QLatin1StringView("wayland")) ? 0 : 1;
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 || (argv[1][0] == '-' && qstrcmp(argv[1], "--display") != 0)) {
        std::fprintf(stderr, "Usage: zarvelia-tour OUTFOLDER\n"
                             "Works the program's real screens on a scratch catalogue, leaves a picture of each step\n"
                             "and the printed lists in OUTFOLDER, and ends with status 1 when something was wrong.\n"
                             "       zarvelia-tour --display\n"
                             "Ends with status 0 where windows can be shown.\n");
        return 2;
    }
    if (qstrcmp(argv[1], "--display") == 0) return tryDisplay(argc, argv);
    // The same pictures on every machine; QT_QPA_PLATFORM=xcb lets one watch.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("LC_ALL", "C.UTF-8");
    qInstallMessageHandler(listen);
    bool right = false;
    {
        const QApplication application(argc, argv);
        tour::Tour tour(QDir().absoluteFilePath(QString::fromLocal8Bit(argv[1])));
        right = tour.run(tour::allSteps());
    }
    if (!complaints.isEmpty()) std::fprintf(stderr, "The toolkit complained %d times.\n", int(complaints.size()));
    return right && complaints.isEmpty() ? 0 : 1;
}
