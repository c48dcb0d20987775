// The engine against plain SQLite on a catalogue of 32,000 composers.
//
//   cmake --preset bench && cmake --build --preset bench --target zv_bench_store && build/bench/bench/zv_bench_store
//
// Ends with 1 if a target is missed.
#include "catalogue_generator.h"
#include "measure.h"
#include "platform/jet/data_control.h"
#include "platform/jet/engine.h"
#include <QFile>
#include <QTemporaryDir>
#include <SQLiteCpp/Column.h>
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <random>

using namespace Qt::StringLiterals;

namespace zv::bench {
namespace {

constexpr int kRows = 32000;
constexpr int kTables = 14;

/// Results are added up here, so that no work can be left out.
volatile std::int64_t sink = 0;

class Bench {
  public:
    Bench() {
        generateCatalogue(path_, composerTables(kTables), kRows);
        QFile::copy(path_, yardstickPath_);
        plain_ = std::make_unique<SQLite::Database>(yardstickPath_.toStdString(), SQLite::OPEN_READWRITE, 2000);
        plain_->exec("PRAGMA synchronous=EXTRA");
        plain_->exec("PRAGMA cache_size=-32768");
        control_.DatabaseName = path_;
    }

    bool run() {
        refresh();
        start();
        like();
        order();
        position();
        insert();
        return table_.allHold();
    }

  private:
    void select(const QString& source) {
        control_.RecordSource = source;
        control_.Refresh();
        jet::Recordset& rows = control_.Recordset();
        if (rows.RecordCount() == 0) return;
        rows.MoveLast();
        sink = sink + rows.RecordCount();
        rows.MoveFirst();
    }

    void plainKeys(const char* sql) {
        std::vector<std::int64_t> keys;
        SQLite::Statement statement(*plain_, sql);
        while (statement.executeStep()) keys.push_back(statement.getColumn(0).getInt64());
        sink = sink + static_cast<std::int64_t>(keys.size());
    }

    void refresh() {
        table_.compare(
            "Refresh of a whole table", 101, 1.5, [this] { select(u"SELECT * FROM Compositor"_s); },
            [this] { plainKeys("SELECT rowid FROM Compositor"); });
    }

    /// All tables opened and counted, from a closed file: what the program does before it shows anything.
    void start() {
        const auto ours = [this] {
            control_.Close();
            for (const auto& def : composerTables(kTables)) select(def.name);
        };
        const auto plain = [this] {
            SQLite::Database fresh(yardstickPath_.toStdString());
            for (const auto& def : composerTables(kTables)) {
                SQLite::Statement statement(fresh, "SELECT rowid FROM " + def.name.toStdString());
                while (statement.executeStep()) sink = sink + statement.getColumn(0).getInt64();
            }
        };
        table_.compare("Opening and counting 14 tables", 15, 1.5, ours, plain);
    }

    void like() {
        std::vector<double> ours, scan, keys;
        for (int i = 0; i < 31; ++i) {
            ours.push_back(secondsOf([this] {
                select(u"SELECT * FROM Compositor"_s);
                select(u"SELECT * FROM Compositor WHERE Notas LIKE '*opera*'"_s);
            }));
            scan.push_back(secondsOf([this] { plainKeys("SELECT rowid FROM Compositor WHERE Notas LIKE '%opera%'"); }));
            keys.push_back(secondsOf([this] { plainKeys("SELECT rowid FROM Compositor"); }));
        }
        table_.line("Accept Notas LIKE '*opera*'", medianOf(ours), 2 * medianOf(scan) + 1.5 * medianOf(keys), 1);
    }

    void order() {
        table_.compare(
            "ORDER BY Apellidos", 31, 3, [this] { select(u"SELECT * FROM Compositor ORDER BY Apellidos ASC"_s); },
            [this] { plainKeys("SELECT rowid FROM Compositor ORDER BY Apellidos"); });
    }

    void position() {
        select(u"SELECT * FROM Compositor ORDER BY Apellidos"_s);
        const QStringList columns{u"Id"_s,     u"Nombre"_s, u"Apellidos"_s, u"Fecha1"_s,
                                  u"Fecha2"_s, u"Notas"_s,  u"Imagen"_s};
        SQLite::Statement byKey(*plain_, "SELECT * FROM Compositor WHERE Id = ?");
        std::mt19937 random(7);
        constexpr int moves = 200;
        const auto ours = [&] {
            for (int i = 0; i < moves; ++i) {
                control_.Recordset().setAbsolutePosition(static_cast<int>(random() % kRows));
                for (const QString& column : columns) sink = sink + control_.boundText(column).size();
            }
        };
        const auto plain = [&] {
            for (int i = 0; i < moves; ++i) {
                byKey.reset();
                byKey.bind(1, static_cast<int>(random() % kRows));
                if (!byKey.executeStep()) continue;
                for (int column = 0; column < 7; ++column)
                    sink = sink + static_cast<std::int64_t>(byKey.getColumn(column).getString().size());
            }
        };
        table_.compare("200 times to a position and its row", 51, 3, ours, plain);
    }

    void insert() {
        select(u"SELECT * FROM Compositor"_s);
        const auto ours = [this] {
            jet::Recordset& rows = control_.Recordset();
            rows.AddNew();
            rows.Fields(u"Nombre"_s).setValue(u"Clara"_s);
            rows.Fields(u"Apellidos"_s).setValue(u"Wieck"_s);
            rows.Fields(u"Fecha1"_s).setValue(u"1819"_s);
            rows.Fields(u"Fecha2"_s).setValue(u"1896"_s);
            rows.Fields(u"Notas"_s).setValue(u"Pianist"_s);
            rows.Fields(u"Imagen"_s).setValue(u""_s);
            rows.Update();
        };
        const auto plain = [this] {
            SQLite::Statement statement(*plain_, "INSERT INTO Compositor (Nombre, Apellidos, Fecha1, Fecha2, Notas, "
                                                 "Imagen) VALUES (?,?,?,?,?,?)");
            statement.bind(1, "Clara");
            statement.bind(2, "Wieck");
            statement.bind(3, 1819);
            statement.bind(4, 1896);
            statement.bind(5, "Pianist");
            statement.bind(6, "");
            statement.exec();
        };
        table_.compare("AddNew to Update", 101, 1.3, ours, plain);
    }

    QTemporaryDir folder_;
    QString path_ = folder_.filePath(u"DataZV.mdb"_s);
    QString yardstickPath_ = folder_.filePath(u"plain.mdb"_s);
    jet::DBEngine engine_{composerTables(kTables)};
    jet::DataControl control_{engine_};
    std::unique_ptr<SQLite::Database> plain_;
    Table table_;
};

} // namespace
} // namespace zv::bench

int main() { return zv::bench::Bench().run() ? 0 : 1; }
