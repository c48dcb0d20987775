// The companion tool as it is called from a shell: status, words, and what it leaves on the disk.
#include "tool_call.h"

#include <QDir>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>
#include <gtest/gtest.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

TEST(Tool, MakesAnEmptyCatalogueOnce) {
    const QTemporaryDir scratch;
    ASSERT_TRUE(QDir(scratch.path()).mkdir(u"Мои диски"_s));
    const QString folder = scratch.filePath(u"Мои диски"_s), file = folder + u"/DataZV.mdb"_s;
    EXPECT_EQ(call({u"new"_s, folder}).status, 0);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList{u"DataZV.mdb"_s});
    {
        SQLite::Database catalogue(file.toStdString(), SQLite::OPEN_READONLY);
        SQLite::Statement tables(catalogue,
                                 "SELECT name FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'");
        int count = 0;
        for (; tables.executeStep(); ++count) {
            const std::string name = tables.getColumn(0).getString();
            EXPECT_EQ(catalogue.execAndGet("SELECT count(*) FROM " + name).getInt(), 0) << name;
        }
        EXPECT_EQ(count, 17);
    }
    const QByteArray before = bytesOf(file);
    const Outcome again = call({u"new"_s, folder});
    EXPECT_EQ(again.status, 1);
    EXPECT_TRUE(again.words.contains(u"DataZV.mdb is there already"_s)) << again.words.toStdString();
    EXPECT_EQ(bytesOf(file), before);
}

TEST(Tool, RefusesFoldersThatItCannotUse) {
    const QTemporaryDir scratch;
    const auto refused = [&scratch](const QString& folder, const QString& why) {
        const Outcome outcome = call({u"new"_s, folder});
        EXPECT_EQ(outcome.status, 1) << folder.toStdString();
        EXPECT_TRUE(outcome.words.contains(why)) << outcome.words.toStdString();
    };
    refused(scratch.filePath(u"missing"_s), u"is no folder"_s);
    ASSERT_TRUE(QDir(scratch.path()).mkpath(u"taken/DataZV.mdb"_s));
    refused(scratch.filePath(u"taken"_s), u"is there already"_s);
    ASSERT_TRUE(QDir(scratch.path()).mkdir(u"linked"_s));
    ASSERT_TRUE(QFile::link(u"/nowhere/else"_s, scratch.filePath(u"linked/DataZV.mdb"_s)));
    refused(scratch.filePath(u"linked"_s), u"is there already"_s);
    // Nobody, not even root, makes files there.
    refused(u"/proc"_s, u"/proc"_s);
    if (::geteuid() == 0) return;
    ASSERT_TRUE(QDir(scratch.path()).mkdir(u"locked"_s));
    ASSERT_TRUE(QFile::setPermissions(scratch.filePath(u"locked"_s), QFile::ReadOwner | QFile::ExeOwner));
    refused(scratch.filePath(u"locked"_s), u"may not be written to"_s);
}

TEST(Tool, SaysHowItIsCalled) {
    const Outcome outcome = call({});
    EXPECT_NE(outcome.status, 0);
    EXPECT_TRUE(outcome.words.contains(u"--help"_s)) << outcome.words.toStdString();
}
