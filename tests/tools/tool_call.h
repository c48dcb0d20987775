// Calls the companion tool as a shell would.
#pragma once

#include "support/file_bytes.h"
#include <QProcess>
#include <gtest/gtest.h>

using zv::test::bytesOf, zv::test::write;

struct Outcome {
    int status;
    QString words; ///< on its error channel
    QString output;
};

inline Outcome call(const QStringList& arguments) {
    QProcess process;
    process.start(QStringLiteral(ZV_TOOL), arguments);
    EXPECT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    return {process.exitCode(), QString::fromLocal8Bit(process.readAllStandardError()),
            QString::fromLocal8Bit(process.readAllStandardOutput())};
}
