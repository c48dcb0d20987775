#include "screen_catalogue.h"

#include "platform/jet/engine.h"
#include "store/movements.h"
#include "store/schema.h"
#include <QStringList>
#include <SQLiteCpp/SQLiteCpp.h>
#include <random>

namespace zv::bench {

using namespace Qt::StringLiterals;
using store::Value;

namespace {

class Words {
  public:
    QString some(int count) {
        static const QStringList words =
            u"Allegro ma non troppo Sinfonía Konzert für Violine und Orchester opera "
            u"Béla Antonín Dvořák Johann Sebastian Ludwig van Gran Teatro del Liceo"_s.split(u' ');
        QStringList text;
        for (int i = 0; i < count; ++i) text += words[static_cast<int>(engine_() % unsigned(words.size()))];
        return text.join(u' ');
    }
    int number(int from, int to) { return from + static_cast<int>(engine_() % unsigned(to - from + 1)); }

  private:
    std::mt19937 engine_{7};
};

/// Names and seconds of a number of movements, as they are stored.
std::pair<QString, QString> movements(Words& words, int count, int& total) {
    QString names, times;
    for (int i = 0; i < count; ++i) {
        const int seconds = words.number(40, 1500);
        names += words.some(3) + store::MovementEnd;
        times += u" %1"_s.arg(seconds) + store::MovementEnd;
        total += seconds;
    }
    return {names, times};
}

QString valueOf(const store::Field& field, Words& words) {
    switch (field.value) {
    case Value::Year:
        return QString::number(words.number(0, 3) ? words.number(1600, 1990) % (field.limit == 2 ? 21 : 9999) : 0);
    case Value::Text: return field.limit == 1 ? QString::number(words.number(1, 3)) : words.some(2).left(field.limit);
    case Value::Memo: return words.some(45);
    default: return {};
    }
}

void fillTable(SQLite::Database& database, const store::KindInfo& kind, int rows) {
    QStringList columns, marks;
    for (const store::Field& field : kind.fields) {
        if (field.value == Value::Key) continue;
        columns += field.column.toString();
        marks += u"?"_s;
    }
    SQLite::Statement insert(
        database, (u"INSERT INTO %1(%2) VALUES(%3)"_s.arg(kind.table.toString(), columns.join(u','), marks.join(u',')))
                      .toStdString());
    Words words;
    for (int row = 0; row < rows; ++row) {
        int total = 0;
        const int count = row + 1 == rows ? 150 : words.number(4, 40);
        const auto [names, times] = movements(words, kind.kind == store::Kind::Obra ? count : 0, total);
        insert.reset();
        int mark = 0;
        for (const store::Field& field : kind.fields) {
            if (field.value == Value::Key) continue;
            QString value = valueOf(field, words);
            if (field.column == u"Movimientos") value = names;
            if (field.column == u"TiempoMovimientos") value = times;
            if (field.column == u"TiempoTotal") value = QString::number(total);
            if (field.column == u"NumeroMovimientos") value = QString::number(count);
            if (kind.kind == store::Kind::Grabacion && field.value == Value::Number) value = QString::number(row + 1);
            insert.bind(++mark, value.toStdString());
        }
        insert.exec();
    }
}

} // namespace

void fillCatalogue(const QString& path, int rows) {
    jet::DBEngine(store::tableDefs()).CreateDatabase(path);
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA synchronous=OFF");
    SQLite::Transaction transaction(database);
    for (const store::KindInfo& kind : store::kinds()) fillTable(database, kind, rows);
    transaction.commit();
}

} // namespace zv::bench
