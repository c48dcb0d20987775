// The screens on a catalogue of 32,000 records of every kind.
//
//   cmake --preset bench && cmake --build --preset bench --target zv_bench_screens &&
//   build/bench/bench/zv_bench_screens
//
// Ends with 1 if a target is missed. With "--start FOLDER NANOSECONDS" it is the process whose start is measured.
#include "desk.h"
#include "measure.h"
#include "screen_catalogue.h"
#include "store/messages.h"
#include <QApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>

namespace zv::bench {

using namespace Qt::StringLiterals;
using store::Kind;

namespace {

constexpr int Rows = 32000, FewRows = 1000;
constexpr double Frame = 1.0 / 60;

qint64 nanoseconds() { return std::chrono::steady_clock::now().time_since_epoch().count(); }

double medianSeconds(int rounds, const Work& work) {
    std::vector<double> seconds;
    for (int i = 0; i < rounds; ++i) seconds.push_back(secondsOf(work));
    return medianOf(seconds);
}

void listPages(Table& table, Desk& many, Desk& few) {
    many.list(22);
    few.list(22);
    const double first = medianSeconds(21, [&] { few.turnPage(); }),
                 second = medianSeconds(21, [&] { many.turnPage(); });
    table.line("List page of composers, many / 1,000", second, first, 1.25);
    table.line("List page of composers / frame", second, Frame, 1);
    many.list(23);
    table.line("List page of works / two frames", medianSeconds(21, [&] { many.turnPage(); }), 2 * Frame, 1);
}

void showWork(Table& table, Desk& many) {
    many.program.store.memory.of(Kind::Obra).Posicion = many.program.store.memory.of(Kind::Obra).Cont;
    many.hands.go(15);
    const double seconds = medianSeconds(21, [&] {
        many.hands.go(15);
        many.program.store.memory.of(Kind::Obra).Posicion = many.program.store.memory.of(Kind::Obra).Cont;
        const Work open = [&] { many.hands.go(16); };
        open();
    });
    const double there = medianSeconds(21, [&] { many.hands.go(15); });
    table.line("Show-Edit of the last work / frame", std::max(seconds - there, 1e-6), Frame, 1);
}

void save(Table& table, Desk& many, const QString& file) {
    SQLite::Database plain(file.toStdString(), SQLite::OPEN_READWRITE, 2000);
    plain.exec("PRAGMA synchronous=EXTRA");
    many.hands.go(1);
    std::vector<double> ours, commits, scans;
    for (int i = 0; i < 21; ++i) {
        many.hands.type(u"TxtApellidos"_s, u"Vega"_s);
        many.boxes.expect(store::MensaGrabadoBien, box::Information);
        ours.push_back(secondsOf([&] { many.hands.click(u"BtnGuardar"_s); }));
        commits.push_back(
            secondsOf([&] { plain.exec("INSERT INTO Compositor(Apellidos, Notas) VALUES('Vega', '')"); }));
        scans.push_back(secondsOf([&] {
            SQLite::Statement keys(plain, "SELECT rowid FROM Compositor");
            while (keys.executeStep()) {
            }
        }));
    }
    table.line("Save / 1.3 commits + 3 scans of the keys", medianOf(ours),
               1.3 * medianOf(commits) + 3 * medianOf(scans), 1);
}

void print(Table& table, Desk& many) {
    const auto seconds = [&](int records) {
        many.hands.go(8);
        many.program.store.Data(Kind::Compositor).RecordSource =
            u"SELECT * FROM Compositor WHERE Id < %1"_s.arg(records + 1);
        many.program.store.Data(Kind::Compositor).Refresh();
        many.hands.go(22);
        return secondsOf([&] { many.hands.click(u"BtnImprimir"_s); });
    };
    const double one = seconds(1000);
    table.line("Print 2,000 records / twice 1,000", seconds(2000), 2 * one, 1.3);
}

void start(Table& table, const QString& folder) {
    std::vector<double> seconds, megabytes;
    for (int i = 0; i < 7; ++i) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {u"--start"_s, folder, QString::number(nanoseconds())});
        process.waitForFinished();
        const QStringList words = QString::fromUtf8(process.readAllStandardOutput()).split(u' ');
        if (words.size() != 2) fail(u"The measured process failed"_s);
        seconds.push_back(words[0].toDouble());
        megabytes.push_back(words[1].toDouble());
    }
    table.line("Process start to presentation / 0.3 s", medianOf(seconds), 0.3, 1);
    table.line("Resident memory (bytes as us) / 150 MiB", medianOf(megabytes), 150, 1);
}

/// Prints the seconds since the process was asked for until the presentation is painted, and its resident MiB.
int measuredStart(const QString& folder, qint64 asked) {
    Desk desk(folder);
    QApplication::processEvents();
    desk.program.window.grab();
    const double seconds = double(nanoseconds() - asked) / 1e9;
    QFile status(u"/proc/self/status"_s);
    double mebibytes = 0;
    if (status.open(QIODevice::ReadOnly))
        for (const QByteArray& line : status.readAll().split('\n'))
            if (line.startsWith("VmRSS:")) mebibytes = line.mid(6).simplified().split(' ').first().toDouble() / 1024;
    std::printf("%.6f %.1f", seconds, mebibytes);
    return 0;
}

/// What the engine takes for the works, whose notes and movements are long.
void works(Table& table, Desk& many, const QString& file) {
    SQLite::Database plain(file.toStdString(), SQLite::OPEN_READONLY, 2000);
    const auto scan = [&plain](const char* sql) {
        return [&plain, sql] {
            SQLite::Statement keys(plain, sql);
            while (keys.executeStep()) {
            }
        };
    };
    jet::DataControl& channel = many.program.store.Data(Kind::Obra);
    const auto select = [&channel](const QString& source) {
        return [&channel, source] {
            channel.RecordSource = source;
            channel.Refresh();
            if (channel.Recordset().RecordCount() != 0) channel.Recordset().MoveLast();
        };
    };
    table.compare("Refresh of the works", 21, 1.5, select(u"SELECT * FROM Obra"_s), scan("SELECT rowid FROM Obra"));
    const double keys = medianSeconds(21, scan("SELECT rowid FROM Obra"));
    const double like = medianSeconds(21, scan("SELECT rowid FROM Obra WHERE Movimientos LIKE '%opera%'"));
    table.line("Works, Movements Contains opera",
               medianSeconds(21, select(u"SELECT * FROM Obra WHERE Movimientos LIKE '*opera*'"_s)),
               2 * like + 1.5 * keys, 1);
    table.compare("Works ordered by Author", 21, 3, select(u"SELECT * FROM Obra ORDER BY Autor ASC"_s),
                  scan("SELECT rowid FROM Obra ORDER BY Autor"));
    select(u"SELECT * FROM Obra"_s)();
    int position = 0;
    SQLite::Statement row(plain, "SELECT * FROM Obra WHERE Id = ?");
    table.compare(
        "Work at a position", 201, 3,
        [&] {
            channel.Recordset().setAbsolutePosition((position += 97) % channel.Recordset().RecordCount());
            channel.boundText(u"Nombre"_s);
        },
        [&] {
            row.reset();
            row.bind(1, position % 30000 + 1);
            row.executeStep();
        });
}

/// With a catalogue named, a copy of it stands in for the made one.
bool run(const QString& catalogue) {
    QTemporaryDir many, few;
    const QString file = many.filePath(store::DatabaseFile);
    if (catalogue.isEmpty())
        fillCatalogue(file, Rows);
    else if (!QFile::copy(catalogue, file))
        fail(u"No catalogue "_s + catalogue);
    fillCatalogue(few.filePath(store::DatabaseFile), FewRows);
    Table table;
    start(table, many.path());
    Desk large(many.path()), small(few.path());
    large.hands.enter();
    small.hands.enter();
    listPages(table, large, small);
    showWork(table, large);
    works(table, large, file);
    print(table, large);
    save(table, large, file);
    return table.allHold();
}

} // namespace
} // namespace zv::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    const QStringList arguments = QApplication::arguments();
    if (arguments.size() == 4 && arguments[1] == QLatin1String("--start"))
        return zv::bench::measuredStart(arguments[2], arguments[3].toLongLong());
    return zv::bench::run(arguments.value(1)) ? 0 : 1;
}
