#include "recording_catalogue.h"

#include "platform/jet/engine.h"
#include "store/schema.h"
#include <SQLiteCpp/SQLiteCpp.h>
#include <random>

namespace zv::bench {

namespace {

constexpr int Recordings = 30000, Works = 30000, Composers = 3000, Conductors = 800, Orchestras = 460,
              Performers = 7500, Formats = 6700;

class Chance {
  public:
    int upTo(int last) { return 1 + static_cast<int>(engine_() % unsigned(last)); }
    std::string word() {
        static const std::string words[] = {"Clara",   "Ludwig", "Miriam",     "Joost",     "Ingrid",  "Vega",
                                            "Sokolov", "Berg",   "Fontanella", "Whitmore",  "Dvořák",  "Muñoz",
                                            "Kjøsnes", "Brecht", "Rossi",      "Lindström", "Oyelowo", "Tzortzis"};
        return words[upTo(int(std::size(words))) - 1];
    }

  private:
    std::mt19937 engine_{11};
};

void fillPeople(SQLite::Database& database, Chance& chance) {
    SQLite::Statement composer(database, "INSERT INTO Compositor(Nombre, Apellidos, Fecha1, Fecha2) VALUES(?,?,?,0)");
    SQLite::Statement conductor(database, "INSERT INTO Director(Nombre, Apellidos) VALUES(?,?)");
    SQLite::Statement performer(database, "INSERT INTO Interprete(Nombre, Apellidos, Instrumento) VALUES(?,?,'Viola')");
    SQLite::Statement orchestra(database, "INSERT INTO Orquesta(OrqGrpCor, Nombre) VALUES('1',?)");
    const auto people = [&](SQLite::Statement& insert, int count, bool dated) {
        for (int i = 0; i < count; ++i) {
            insert.reset();
            insert.bind(1, chance.word());
            insert.bind(2, chance.word() + "-" + chance.word());
            if (dated) insert.bind(3, 1600 + chance.upTo(350));
            insert.exec();
        }
    };
    people(composer, Composers, true);
    people(conductor, Conductors, false);
    people(performer, Performers, false);
    for (int i = 0; i < Orchestras; ++i) {
        orchestra.reset();
        orchestra.bind(1, (i % 10 ? "Orchestra of " + chance.word() : "York Philharmonic") + " " + std::to_string(i));
        orchestra.exec();
    }
}

void fillWorks(SQLite::Database& database, Chance& chance) {
    SQLite::Statement work(database, "INSERT INTO Obra(Nombre, Numero, Movimientos, TiempoMovimientos, TiempoTotal, "
                                     "NumeroMovimientos, Autor) VALUES(?,?,'Allegro#Andante#Menuetto#Presto#',"
                                     "' 420# 380# 240# 310#',1350,4,?)");
    for (int i = 0; i < Works; ++i) {
        work.reset();
        work.bind(1, "Sonata " + chance.word());
        work.bind(2, i % 20);
        work.bind(3, chance.word());
        work.exec();
    }
    SQLite::Statement format(database, "INSERT INTO Soporte(Discografica, NumeroCatalogo, Formato) VALUES(?,?,'CD')");
    for (int i = 0; i < Formats; ++i) {
        format.reset();
        format.bind(1, chance.word());
        format.bind(2, i);
        format.exec();
    }
}

void fillLinks(SQLite::Database& database, Chance& chance) {
    SQLite::Statement recording(database,
                                "INSERT INTO Grabacion(IdCompositor, IdObra, IdSoporte, Notas) VALUES(?,?,?,'live')");
    SQLite::Statement orchestra(database, "INSERT INTO RelacionOrquesta VALUES(?,?)");
    SQLite::Statement conductor(database, "INSERT INTO RelacionDirector VALUES(?,?)");
    SQLite::Statement performer(database, "INSERT INTO RelacionInterprete VALUES(?,?)");
    const auto link = [](SQLite::Statement& insert, int of, int to) {
        insert.reset();
        insert.bind(1, of);
        insert.bind(2, to);
        insert.exec();
    };
    for (int i = 1; i <= Recordings; ++i) {
        recording.reset();
        recording.bind(1, chance.upTo(Composers));
        recording.bind(2, i);
        recording.bind(3, chance.upTo(Formats));
        recording.exec();
        const bool york = chance.upTo(16) > 1;
        link(orchestra, i, york ? 1 + 10 * (chance.upTo(Orchestras / 10) - 1) : chance.upTo(Orchestras));
        if (chance.upTo(10) > 1) link(conductor, i, chance.upTo(Conductors));
        for (int k = chance.upTo(10) % 4; k > 1; --k) link(performer, i, chance.upTo(Performers));
    }
}

} // namespace

void fillRecordings(const QString& path) {
    jet::DBEngine(store::tableDefs()).CreateDatabase(path);
    SQLite::Database database(path.toStdString(), SQLite::OPEN_READWRITE);
    database.exec("PRAGMA synchronous=OFF");
    SQLite::Transaction transaction(database);
    Chance chance;
    fillPeople(database, chance);
    fillWorks(database, chance);
    fillLinks(database, chance);
    transaction.commit();
}

} // namespace zv::bench
