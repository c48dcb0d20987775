// Entry of the test programs that need a QApplication.
#include <QApplication>
#include <cstdio>
#include <gtest/gtest.h>

/// While the toolkit's threads end, the search for leaks breaks down now and then, and not for a leak: it is left to
/// the test programs without a toolkit.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

namespace {

/// A complaint of the toolkit fails the test in which it comes, but for what is said wherever there is no desktop.
void listen(QtMsgType type, const QMessageLogContext&, const QString& text) {
    std::fprintf(stderr, "%s\n", qPrintable(text));
    if (type == QtFatalMsg) std::abort();
    if (type == QtDebugMsg || type == QtInfoMsg) return;
    for (const char* usual : {"propagateSizeHints", "XDG_RUNTIME_DIR", "This plugin does not support"})
        if (text.contains(QLatin1StringView(usual))) return;
    ADD_FAILURE() << "The toolkit complains: " << text.toStdString();
}

} // namespace

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    qInstallMessageHandler(listen);
    return RUN_ALL_TESTS();
}
