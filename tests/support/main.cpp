// Entry of the test programs that need a QApplication.
#include <QApplication>
#include <gtest/gtest.h>

/// The system's font matcher keeps what it looked up for a rare letter.
extern "C" const char* __lsan_default_suppressions() { return "leak:libfontconfig\n"; }

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
