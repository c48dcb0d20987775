// A small catalogue in a folder of its own, for the tests of the engine.
#pragma once

#include "platform/jet/data_control.h"
#include "platform/jet/engine.h"
#include "support/error_of.h"
#include <QStringList>
#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <sqlite3.h>

namespace zv::jet::test {

inline std::vector<TableDef> tableDefs() {
    using enum ColumnKind;
    return {{QStringLiteral("Compositor"),
             {{QStringLiteral("Id"), Key},
              {QStringLiteral("Nombre"), Text, 50},
              {QStringLiteral("Apellidos"), Text, 50},
              {QStringLiteral("Fecha1"), Number},
              {QStringLiteral("Fecha2"), Number},
              {QStringLiteral("Notas"), Memo}}},
            {QStringLiteral("RelacionDirector"),
             {{QStringLiteral("IdGrabacion"), Number, 0, true}, {QStringLiteral("IdDirector"), Number, 0, true}}}};
}

using zv::test::errorOf;

/// Runs plain SQLite statements on a file, as any other tool would.
inline void sqlite(const QString& path, const char* sql) {
    sqlite3* handle = nullptr;
    ASSERT_EQ(sqlite3_open(path.toUtf8().constData(), &handle), SQLITE_OK);
    char* message = nullptr;
    sqlite3_exec(handle, sql, nullptr, nullptr, &message);
    EXPECT_EQ(message, nullptr) << message;
    sqlite3_free(message);
    sqlite3_close(handle);
}

class Catalogue {
  public:
    Catalogue() { engine.CreateDatabase(path); }

    DataControl open(const QString& source) {
        DataControl control(engine);
        control.DatabaseName = path;
        control.RecordSource = source;
        control.Refresh();
        return control;
    }

    /// The texts of a column in the rows of a statement.
    QStringList texts(const QString& source, const QString& column) {
        DataControl control = open(source);
        QStringList found;
        for (Recordset& rows = control.Recordset(); !rows.EOF_(); rows.MoveNext()) found << control.boundText(column);
        return found;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(QStringLiteral("DataZV.mdb"));
    DBEngine engine{tableDefs()};
};

} // namespace zv::jet::test
