// A catalogue's file as any tool of SQLite sees it: what tests and the tour hold the program against.
#pragma once

#include <QStringList>
#include <SQLiteCpp/SQLiteCpp.h>

namespace zv::plain {

/// The answer to a statement, a line for each row, columns joined by "|".
inline QStringList rows(const QString& file, const QString& statement) {
    SQLite::Database database(file.toStdString(), SQLite::OPEN_READONLY);
    SQLite::Statement query(database, statement.toStdString());
    QStringList lines;
    while (query.executeStep()) {
        QStringList cells;
        for (int i = 0; i < query.getColumnCount(); ++i)
            cells += QString::fromStdString(query.getColumn(i).getString());
        lines += cells.join(u'|');
    }
    return lines;
}

/// Columns of a table, rows in the order of their keys.
inline QStringList stored(const QString& file, const QString& table, const QString& columns) {
    return rows(file, QStringLiteral("SELECT ") + columns + QStringLiteral(" FROM ") + table +
                          QStringLiteral(" ORDER BY rowid"));
}

/// Runs a statement that changes the file.
inline void run(const QString& file, const QString& statement) {
    SQLite::Database(file.toStdString(), SQLite::OPEN_READWRITE).exec(statement.toStdString());
}

} // namespace zv::plain
