// Numbers in text, small file services, and the guard that no error passes.
#include "platform/base/files.h"
#include "platform/base/runtime_error.h"
#include "platform/base/text.h"
#include "support/error_of.h"
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sys/stat.h>

using namespace Qt::StringLiterals;

namespace zv {
namespace {

using test::errorOf;

TEST(Text, tellsNumbersFromOtherTexts) {
    struct Case {
        QString text;
        double value;
    };
    for (const Case& one :
         {Case{u"12"_s, 12}, {u" \t12 "_s, 12}, {u"+5"_s, 5},     {u"-5"_s, -5},     {u"5-"_s, -5},
          {u"5+"_s, 5},      {u"1.5"_s, 1.5},   {u".5"_s, 0.5},   {u"5."_s, 5},      {u"1,234"_s, 1234},
          {u"1,2,3"_s, 123}, {u"5,"_s, 5},      {u"1e3"_s, 1000}, {u"1E+3"_s, 1000}, {u"1e-3"_s, 0.001},
          {u"1d3"_s, 1000},  {u"$5"_s, 5},      {u"-$5"_s, -5},   {u"(5)"_s, -5},    {u"&HFF"_s, 255},
          {u"&hffff"_s, -1}, {u"&O17"_s, 15},   {u"-0"_s, 0}}) {
        EXPECT_TRUE(IsNumeric(one.text)) << one.text.toStdString();
        EXPECT_EQ(CDbl(one.text), one.value) << one.text.toStdString();
    }
    for (const QString& text :
         {u""_s,   u"  "_s,  u"-"_s,   u"+"_s,     u"--5"_s, u"-5-"_s,   u"."_s,      u"1.2.3"_s,
          u","_s,  u"1e"_s,  u"1e+"_s, u"1e5.5"_s, u"$"_s,   u"("_s,     u"(5"_s,     u"5)"_s,
          u"&H"_s, u"&O8"_s, u"1 2"_s, u"5%"_s,    u"5x"_s,  u"12:00"_s, u"\u0665"_s, u"1.5,2"_s}) {
        EXPECT_FALSE(IsNumeric(text)) << text.toStdString();
        EXPECT_EQ(errorOf([&] { CDbl(text); }), 13) << text.toStdString();
    }
    EXPECT_EQ(errorOf([] { CDbl(u"1e400"); }), 6);
}

TEST(Text, readsTheNumberAtTheHead) {
    struct Case {
        QString text;
        double value;
    };
    for (const Case& one : {Case{u"- 5"_s, -5}, {u"1,700"_s, 1},  {u"$5"_s, 0},      {u"(5)"_s, 0},    {u"5-"_s, 5},
                            {u"1e3"_s, 1000},   {u"1d3"_s, 1000}, {u"1e"_s, 1},      {u"1e-"_s, 1},    {u"&HFF"_s, 255},
                            {u"&H10x"_s, 16},   {u"&H"_s, 0},     {u"50%"_s, 50},    {u"12\r3"_s, 12}, {u""_s, 0},
                            {u"-"_s, 0},        {u"."_s, 0},      {u"1.2.3"_s, 1.2}, {u" -1"_s, -1},   {u".5"_s, 0.5}})
        EXPECT_EQ(Val(one.text), one.value) << one.text.toStdString();
    EXPECT_EQ(Val(u" 2 45 7"_s), 2457);
    EXPECT_EQ(Val(u"12\n3 abc"_s), 123);
    EXPECT_EQ(Val(u"&HFFFF"_s), -1);
    EXPECT_EQ(errorOf([] { Val(u"50.5%"); }), 13);
    EXPECT_EQ(errorOf([] { Val(u"1e400"); }), 6);
}

TEST(Text, writesAndRoundsNumbers) {
    EXPECT_EQ(CStr(0.5), u"0.5"_s);
    EXPECT_EQ(CStr(-0.0), u"0"_s);
    EXPECT_EQ(CStr(1e20), u"1E+20"_s);
    EXPECT_EQ(CStr(123456789012345), u"123456789012345"_s);
    EXPECT_EQ(CStr(0.1 + 0.2), u"0.3"_s);
    EXPECT_EQ(Str(0.5) + Str(-0.5) + Str(3) + Str(-3) + Str(0), u" .5-.5 3-3 0"_s);
    EXPECT_EQ(Trim(u"  a \t "), u"a \t"_s);
    EXPECT_EQ(Trim(u"   "), u""_s);
    EXPECT_EQ(toInteger(2.5), 2);
    EXPECT_EQ(toInteger(-1.5), -2);
    EXPECT_EQ(toInteger(-32768.5), -32768);
    EXPECT_EQ(errorOf([] { toInteger(32767.5); }), 6);
    EXPECT_EQ(toLong(32768), 32768);
    EXPECT_EQ(errorOf([] { toLong(2147483648.0); }), 6);
    EXPECT_EQ(errorOf([] { toLong(std::nan("")); }), 6);
}

class FilesTest : public testing::Test {
  protected:
    QString make(const QString& name) const {
        QFile file(at(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return composed(name);
    }
    QString at(const QString& name) const { return folder.filePath(name); }
    /// The path as the logic builds it.
    QString composed(const QString& name) const { return folder.path() + u'\\' + name; }

    QTemporaryDir folder;
};

TEST_F(FilesTest, readsThePathsThatTheLogicComposes) {
    EXPECT_EQ(nativePath(u"/a/b\\DataZV.mdb"_s), u"/a/b/DataZV.mdb"_s);
    EXPECT_EQ(nativePath(u"/a\\b\\DataZV.mdb"_s), u"/a\\b/DataZV.mdb"_s);
    EXPECT_EQ(nativePath(u"/a\\b/DataZV.mdb"_s), u"/a\\b/DataZV.mdb"_s);
    EXPECT_EQ(nativePath(u"/\\DataZV.mdb"_s), u"//DataZV.mdb"_s);
}

TEST_F(FilesTest, findsFilesByTheirNameOnTheDisk) {
    EXPECT_EQ(Dir(make(u"DataZV.mdb"_s)), u"DataZV.mdb"_s);
    EXPECT_EQ(Dir(composed(u"datazv.mdb"_s)), u""_s);
    EXPECT_EQ(Dir(make(u".hidden"_s)), u""_s);
    QDir(folder.path()).mkdir(u"sub"_s);
    EXPECT_EQ(Dir(composed(u"sub"_s)), u""_s);
    EXPECT_EQ(Dir(at(u"none/x"_s)), u""_s);
}

TEST_F(FilesTest, deletesAndRenamesWithThePlatformsErrors) {
    const QString file = make(u"a"_s);
    const QString other = make(u"b"_s);
    EXPECT_EQ(errorOf([&] { Name(file, other); }), 58);
    EXPECT_EQ(errorOf([&] { Name(composed(u"none"_s), composed(u"c"_s)); }), 53);
    EXPECT_EQ(errorOf([&] { Name(file, at(u"none/c"_s)); }), 76);
    Name(file, composed(u"c"_s));
    EXPECT_EQ(Dir(composed(u"c"_s)), u"c"_s);
    EXPECT_EQ(errorOf([&] { Kill(file); }), 53);
    EXPECT_EQ(errorOf([&] { Kill(folder.path()); }), 53);
    chmod(at(u"b"_s).toUtf8().constData(), 0444);
    EXPECT_EQ(errorOf([&] { Kill(other); }), 75);
    chmod(at(u"b"_s).toUtf8().constData(), 0644);
    Kill(other);
    EXPECT_EQ(Dir(other), u""_s);
    EXPECT_EQ(errorOf([&] { syncToDisk(other); }), 75);
    syncToDisk(composed(u"c"_s));
}

TEST(Errors, handsWhatEscapesToTheHandlerAndLetsNothingThrough) {
    QStringList seen;
    const auto previous = setFatalErrorHandler(
        [&seen](const RuntimeError& error) { seen << u"%1 %2"_s.arg(error.number()).arg(error.text()); });
    guarded([] {});
    guarded([] { throw RuntimeError(13); });
    guarded([] { throw RuntimeError(3075, u"why"_s); });
    guarded([] { throw std::bad_alloc(); });
    guarded([] { throw std::runtime_error("odd"); });
    guarded([] { throw 1; });
    setFatalErrorHandler(previous);
    EXPECT_EQ(seen.join(u'|').toStdString(),
              "13 Type mismatch|3075 why|7 Out of memory|5 Invalid procedure call or argument: odd|"
              "5 Invalid procedure call or argument");
    EXPECT_EQ(RuntimeError::textOf(4711), u"Application-defined or object-defined error"_s);
    EXPECT_STREQ(RuntimeError(9).what(), "Subscript out of range");
}

} // namespace
} // namespace zv
