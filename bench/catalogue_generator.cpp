// Makes a large catalogue.
#include "catalogue_generator.h"

#include "platform/jet/engine.h"
#include <SQLiteCpp/Database.h>
#include <SQLiteCpp/Statement.h>
#include <SQLiteCpp/Transaction.h>
#include <array>
#include <random>

using namespace Qt::StringLiterals;

namespace zv::bench {
namespace {

constexpr std::array kFirstNames{"Johann",   "María José", "Antonín", "Camille",  "Béla",   "Wolfgang", "Clara",
                                 "François", "Isaac",      "Édouard", "Giuseppe", "Zoltán", "Nadia",    "Åse"};
constexpr std::array kSyllables{"al",  "ber", "cha", "dvo", "el", "fau",  "gri", "hän", "in", "jan", "kof", "lis",
                                "mar", "nič", "or",  "pé",  "ra", "schu", "tal", "vi",  "wa", "xen", "ño",  "zelen"};
constexpr std::array kWords{
    "the",  "First",   "symphony",  "was",   "written", "in",       "Vienna",   "and",       "played",  "by",
    "a",    "small",   "Orchestra", "of",    "friends", "quartet",  "éditions", "Études",    "for",     "pianoforte",
    "with", "choir",   "his",       "pupil", "Leipzig", "organist", "from",     "until",     "chamber", "music",
    "Op.",  "several", "masses",    "and",   "Dvořák",  "letters",  "to",       "publisher", "London",  "season"};

class Writer {
  public:
    std::string surname() {
        std::string name;
        for (auto i = 0u, n = 2 + static_cast<unsigned>(random_() % 3); i < n; ++i)
            name += kSyllables[random_() % kSyllables.size()];
        if (name[0] >= 'a' && name[0] <= 'z') name[0] = static_cast<char>(name[0] - 32);
        return name;
    }

    std::string firstName() { return kFirstNames[random_() % kFirstNames.size()]; }

    std::string notes() {
        const std::size_t place = random_() % 20 == 0 ? random_() % 250 : std::string::npos;
        std::string text;
        bool placed = place == std::string::npos;
        while (text.size() < 295) {
            if (!placed && text.size() >= place) {
                text += random_() % 2 == 0 ? "Opera " : "operas ";
                placed = true;
            }
            // Words beyond ASCII are rare, but most readers write one somewhere.
            const char* word = kWords[random_() % kWords.size()];
            if (static_cast<unsigned char>(word[0]) >= 0x80 && random_() % 4 != 0) continue;
            text += word;
            text += random_() % 12 == 0 ? ". " : " ";
        }
        return text;
    }

    int year() { return 1500 + static_cast<int>(random_() % 500); }

  private:
    std::mt19937 random_{20250101};
};

} // namespace

std::vector<jet::TableDef> composerTables(int tables) {
    using enum jet::ColumnKind;
    std::vector<jet::TableDef> defs;
    for (int i = 0; i < tables; ++i)
        defs.push_back({i == 0 ? u"Compositor"_s : u"Tabla%1"_s.arg(i),
                        {{u"Id"_s, Key},
                         {u"Nombre"_s, Text, 50},
                         {u"Apellidos"_s, Text, 50},
                         {u"Fecha1"_s, Number},
                         {u"Fecha2"_s, Number},
                         {u"Notas"_s, Memo},
                         {u"Imagen"_s, Memo}}});
    return defs;
}

void generateCatalogue(const QString& path, const std::vector<jet::TableDef>& tables, int rows) {
    jet::DBEngine(tables).CreateDatabase(path);
    SQLite::Database connection(path.toStdString(), SQLite::OPEN_READWRITE);
    SQLite::Transaction transaction(connection);
    SQLite::Statement insert(connection, "INSERT INTO Compositor VALUES (?,?,?,?,?,?,?)");
    Writer writer;
    for (int row = 0, key = 0; row < rows; ++row) {
        if (++key % 97 == 0) ++key;
        insert.bind(1, key);
        insert.bind(2, writer.firstName());
        insert.bind(3, writer.surname());
        const int born = writer.year();
        insert.bind(4, born);
        insert.bind(5, born + 60);
        insert.bind(6, writer.notes());
        insert.bind(7, row % 3 == 0 ? "" : "/home/ana/pictures/composers/portrait.jpg");
        insert.exec();
        insert.reset();
    }
    for (std::size_t i = 1; i < tables.size(); ++i)
        connection.exec("INSERT INTO " + tables[i].name.toStdString() + " SELECT * FROM Compositor");
    transaction.commit();
}

} // namespace zv::bench
