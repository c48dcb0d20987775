// The query dialect: the corpus, long and deep statements, and mutated ones.
#include "catalogue.h"
#include <QElapsedTimer>
#include <QFile>
#include <algorithm>
#include <fstream>
#include <random>

using namespace Qt::StringLiterals;

namespace zv::jet::test {
namespace {

struct Line {
    int number;
    QString statement, expected;
};

class DialectTest : public testing::Test {
  protected:
    DialectTest() {
        std::ifstream file(ZV_TEST_DATA "/dialect.txt");
        std::string text;
        for (int number = 1; std::getline(file, text); ++number) {
            const QString line = QString::fromStdString(text);
            if (line.startsWith(u"row ")) addRow(line.sliced(4).split(u'|'));
            const qsizetype arrow = line.indexOf(u" => ");
            if (arrow > 0 && !line.startsWith(u'#'))
                lines.push_back({number, whole(line.first(arrow)), line.sliced(arrow + 4).trimmed()});
        }
    }

    static QString whole(const QString& statement) {
        const bool part = statement.startsWith(u"WHERE") || statement.startsWith(u"ORDER");
        return part ? u"SELECT * FROM Compositor "_s + statement : statement;
    }

    void addRow(const QStringList& values) {
        QStringList literals;
        for (const QString& value : values) {
            const QString text = value.trimmed();
            literals << (text == u"NULL" ? text : u'\'' + QString(text).replace(u'\'', u"''"_s) + u'\'');
        }
        sqlite(catalogue.path, (u"INSERT INTO Compositor VALUES (%1)"_s).arg(literals.join(u',')).toUtf8().constData());
    }

    /// The keys of the rows, or the error, as the corpus writes them.
    QString resultOf(const QString& statement) {
        try {
            const QStringList keys = catalogue.texts(statement, u"Id"_s);
            return keys.isEmpty() ? u"none"_s : keys.join(u' ');
        } catch (const RuntimeError& error) {
            return u"error %1"_s.arg(error.number());
        }
    }

    Catalogue catalogue;
    std::vector<Line> lines;
};

TEST_F(DialectTest, answersTheCorpus) {
    ASSERT_GT(lines.size(), 100u);
    for (const Line& line : lines)
        EXPECT_EQ(resultOf(line.statement).toStdString(), line.expected.toStdString())
            << "line " << line.number << ": " << line.statement.toStdString();
}

TEST_F(DialectTest, joinsUnknownNamesAndTellsWhereTheSyntaxBreaks) {
    try {
        catalogue.open(u"SELECT * FROM Compositor WHERE a = 1 OR B = 2 OR A = 3 ORDER BY c"_s);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.text(), u"Too few parameters. Expected 3."_s);
    }
    try {
        catalogue.open(u"SELECT * FROM Compositor WHERE Apellidos = 'O'Brien'"_s);
        FAIL();
    } catch (const RuntimeError& error) {
        EXPECT_TRUE(error.text().startsWith(u"Syntax error (missing operator) in query expression 'Brien"))
            << error.text().toStdString();
    }
}

TEST_F(DialectTest, takesAccentsHoweverTheyAreSpelled) {
    sqlite(catalogue.path,
           "INSERT INTO Compositor (Id, Apellidos, Notas) VALUES (20, 'Dvor\u030Ca\u0301k', 'opera\u0301 q\u0301')");
    EXPECT_EQ(resultOf(whole(u"WHERE Apellidos = 'Dvořák' ORDER BY Id"_s)), u"1 8 20"_s);
    EXPECT_EQ(resultOf(whole(u"WHERE Apellidos LIKE 'dvo?ák'"_s)), u"1 8 20"_s);
    EXPECT_EQ(resultOf(whole(u"WHERE Apellidos LIKE '*r\u030Ca\u0301*'"_s)), u"1 8 20"_s);
    EXPECT_EQ(resultOf(whole(u"WHERE Notas LIKE '*opera*'"_s)), u"1 2"_s);
    EXPECT_EQ(resultOf(whole(u"WHERE Notas LIKE '*q' AND Id = 20"_s)), u"none"_s);
}

/// How long the long statements may take here: they take milliseconds unless their time grows with the square.
constexpr int kPatience = 20000;

TEST_F(DialectTest, takesVeryLongAndDeepStatements) {
    QElapsedTimer timer;
    timer.start();
    QString keys = u"Id=100"_s;
    for (int i = 1; i < 32766; ++i) keys += u" OR Id=%1"_s.arg(100 + i);
    EXPECT_EQ(resultOf(whole(u"WHERE ((%1 OR Id=3) AND Fecha1=1819)"_s.arg(keys))), u"3"_s);
    QString deep = QString(30000, u'(') + u"Id = 1"_s;
    for (int i = 0; i < 30000; ++i) deep += i % 2 == 0 ? u" AND Notas LIKE '*o*')"_s : u" OR Fecha1 = -5)"_s;
    EXPECT_EQ(resultOf(whole(u"WHERE "_s + deep)), u"1"_s);
    const QString open(100000, u'(');
    const QString closed(100000, u')');
    EXPECT_EQ(resultOf(whole(u"WHERE "_s + open + u"Id = 2"_s + closed)), u"2"_s);
    EXPECT_EQ(resultOf(whole(u"WHERE "_s + open + u"Id = 2"_s)), u"error 3075"_s);
    EXPECT_EQ(resultOf(whole(u"WHERE "_s + QString(u"NOT "_s).repeated(50000) + u"Id = 2"_s)), u"2"_s);
    EXPECT_EQ(resultOf(whole(u"WHERE Id = 1"_s + QString(u" OR Id = 2"_s).repeated(300000))), u"error 3360"_s);
    EXPECT_LT(timer.elapsed(), kPatience);
}

TEST_F(DialectTest, answersOrRefusesWhateverItIsGiven) {
    std::mt19937 random(4711);
    QStringList pieces =
        u"(~)~'~\"~[~]~ NOT ~ AND ~ OR ~ LIKE ~*~=~<~-~&H~1e~ ORDER BY ~\u0301~Notas~Id~#~?~[!~;"_s.split(u'~');
    pieces += {QString(QChar(0xD800)), QString(QChar(0))};
    const auto below = [&random](qsizetype n) { return static_cast<qsizetype>(random() % static_cast<unsigned>(n)); };
    int answered = 0;
    for (int i = 0; i < 4000; ++i) {
        QString statement = lines[static_cast<std::size_t>(below(static_cast<qsizetype>(lines.size())))].statement;
        for (qsizetype changes = 1 + below(3); changes > 0; --changes) {
            const qsizetype at = below(statement.size() + 1);
            if (below(2) == 0)
                statement.remove(at, 1 + below(6));
            else
                statement.insert(at, pieces[below(pieces.size())]);
        }
        if (!resultOf(statement).startsWith(u"error")) ++answered;
    }
    EXPECT_GT(answered, 50);
}

} // namespace
} // namespace zv::jet::test
