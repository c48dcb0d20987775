// Calls the companion tool as a shell would.
#pragma once

#include <QFile>
#include <QProcess>
#include <gtest/gtest.h>

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

inline QByteArray contents(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
}

inline void write(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
}
