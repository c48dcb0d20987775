// The screens of the recordings on 30,000 recordings: accepting a broad filter against plain SQLite asked by a join, a
// page of the list with all fields, and the print.
//
//   cmake --preset bench && cmake --build --preset bench --target zv_bench_recordings &&
//   build/bench/bench/zv_bench_recordings [CATALOGUE]
//
// A catalogue is copied and measured in place of the made one. Ends with 1 if a target is missed.
#include "desk.h"
#include "measure.h"
#include "recording_catalogue.h"
#include <QApplication>
#include <QFile>
#include <QTemporaryDir>
#include <SQLiteCpp/SQLiteCpp.h>

namespace zv::bench {

using namespace Qt::StringLiterals;
using store::Kind;

namespace {

constexpr int SelectNumber = 14, ShowEditNumber = 21, ListNumber = 28;

int selected(Desk& desk) { return desk.program.store.memory.of(Kind::Grabacion).ContSel; }

void accept(Table& table, Desk& desk, SQLite::Database& plain, const char* name, const QStringList& filter,
            const std::string& join) {
    std::vector<double> ours, theirs;
    int found = 0;
    for (int i = 0; i < 7; ++i) {
        desk.hands.click(u"BtnNueva"_s);
        desk.hands.choose(u"ComboCampo"_s, filter[0]);
        desk.hands.choose(u"ComboCriterio"_s, filter[1]);
        desk.hands.get<forms::TextBox>(u"TxtValFiltro"_s).setText(filter[2]);
        desk.hands.click(u"BtnAnadir"_s);
        ours.push_back(secondsOf([&] { desk.hands.click(u"BtnAceptar"_s); }));
        found = 0;
        theirs.push_back(secondsOf([&] {
            SQLite::Statement query(plain, join);
            while (query.executeStep()) ++found;
        }));
    }
    if (found != selected(desk)) fail(u"%1 recordings found, %2 by the join"_s.arg(selected(desk)).arg(found));
    std::printf("%s: %d recordings\n", name, found);
    table.line((std::string(name) + " / join").c_str(), medianOf(ours), medianOf(theirs), 3);
    table.line((std::string(name) + " / 1.5 s").c_str(), medianOf(ours), 1.5, 1);
}

void select(Table& table, Desk& desk, const QString& file) {
    SQLite::Database plain(file.toStdString(), SQLite::OPEN_READONLY);
    desk.hands.go(SelectNumber);
    const std::string recordings = "SELECT DISTINCT g.* FROM Grabacion AS g ";
    accept(table, desk, plain, "ORC York", {u"ORC Orc-Ens-Cho"_s, u"Contains"_s, u"York"_s},
           recordings + "JOIN RelacionOrquesta AS r ON r.IdGrabacion = g.IdGrabacion JOIN Orquesta AS o ON "
                        "o.IdOrquesta = r.IdOrquesta WHERE o.Nombre LIKE '%York%'");
    accept(table, desk, plain, "COM Surname a", {u"COM Surname"_s, u"Contains"_s, u"a"_s},
           recordings + "JOIN Compositor AS c ON c.Id = g.IdCompositor WHERE c.Apellidos LIKE '%a%'");
    accept(table, desk, plain, "PER Name a", {u"PER Name"_s, u"Contains"_s, u"a"_s},
           recordings + "JOIN RelacionInterprete AS r ON r.IdGrabacion = g.IdGrabacion JOIN Interprete AS i ON "
                        "i.IdInterprete = r.IdInterprete WHERE i.Nombre LIKE '%a%'");
}

void list(Table& table, Desk& desk) {
    auto& channel = desk.program.store.Data(Kind::Grabacion);
    channel.RecordSource = u"SELECT * FROM Grabacion"_s;
    channel.Refresh();
    desk.hands.go(ListNumber);
    desk.hands.tickAll();
    desk.hands.click(u"BtnListar"_s);
    auto& bar = desk.hands.get<forms::ScrollBar>(u"VScroll"_s);
    std::vector<double> pages;
    for (int i = 0; i < 21; ++i) {
        const int page = bar.Max() / 30 * (i + 1);
        pages.push_back(secondsOf([&] {
            bar.setValue(page);
            desk.hands.get<forms::FlexGrid>(u"Tabla"_s).grab();
        }));
    }
    table.line("List page, 34 items / 150 ms", medianOf(pages), 0.15, 1);
}

/// Each step of the bar shows a recording with all its parts; the screen is painted.
void walk(Table& table, Desk& desk) {
    desk.hands.go(ShowEditNumber);
    auto& bar = desk.hands.get<forms::ScrollBar>(u"HScroll"_s);
    std::vector<double> steps;
    for (int i = 0; i < 101; ++i)
        steps.push_back(secondsOf([&] {
            bar.setValue(bar.Max() / 102 * i + 2);
            desk.hands.screen()->grab();
        }));
    table.line("Next recording, shown and painted / 30 ms", medianOf(steps), 0.03, 1);
}

void print(Table& table, Desk& desk) {
    const auto seconds = [&](int records) {
        auto& channel = desk.program.store.Data(Kind::Grabacion);
        channel.RecordSource = u"SELECT * FROM Grabacion WHERE IdGrabacion < %1"_s.arg(records + 1);
        channel.Refresh();
        desk.hands.tickAll();
        return secondsOf([&] { desk.hands.click(u"BtnImprimir"_s); });
    };
    const double half = seconds(500);
    table.line("Print 1,000 recordings / twice 500", seconds(1000), 2 * half, 1.3);
}

bool run(const QString& catalogue) {
    QTemporaryDir folder;
    const QString file = folder.filePath(store::DatabaseFile);
    if (catalogue.isEmpty())
        fillRecordings(file);
    else if (!QFile::copy(catalogue, file))
        fail(u"No catalogue "_s + catalogue);
    Table table;
    Desk desk(folder.path());
    desk.hands.enter();
    select(table, desk, file);
    list(table, desk);
    walk(table, desk);
    desk.hands.go(ListNumber);
    print(table, desk);
    return table.allHold();
}

} // namespace
} // namespace zv::bench

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(argc, argv);
    return zv::bench::run(QApplication::arguments().value(1)) ? 0 : 1;
}
