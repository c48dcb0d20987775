// Entry of the test programs that need a QApplication.
#include <QApplication>
#include <gtest/gtest.h>

/// While the toolkit's threads end, the search for leaks breaks down now and then, and not for a leak: it is left to
/// the test programs without a toolkit.
extern "C" const char* __asan_default_options() { return "detect_leaks=0"; }

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
