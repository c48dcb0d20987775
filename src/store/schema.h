// What the catalogue keeps: one description per kind of record. The tables, the editors, the filters, the lists, the
// printed lines and the working memory all read it; a further plain kind is one more description.
#pragma once

#include "platform/jet/table_def.h"
#include <QStringView>
#include <array>
#include <span>
#include <vector>

namespace zv::store {

struct Module1;

/// The kinds in the order of their channels: Records I, then Records II.
enum class Kind {
    Compositor,
    Obra,
    Director,
    Orquesta,
    Soporte,
    Interprete,
    Grabacion,
    Instrumento,
    Agrupacion,
    Evento,
    Escenario,
    Publicacion,
    Emisora,
    Internet
};
inline constexpr int KindCount = 14;

enum class Value {
    Key,     ///< number that the database assigns
    Number,  ///< number without a box of its own
    Year,    ///< number typed in a box: an empty box is 0, a 0 is shown as an empty box
    Text,    ///< text of at most `limit` characters
    Memo,    ///< long text
    Picture, ///< memo that holds the full path of a picture file
};

/// One field of a record. The order of the fields is that of writing, of the filters, of the lists and of the paper.
struct Field {
    QStringView column;
    Value value = Value::Text;
    int limit = 0;           ///< characters (digits) that its box takes
    QStringView bound;       ///< hidden bound control
    QStringView control;     ///< box on the editors; empty for none
    QStringView memo;        ///< working memory of the Add screen; empty for none
    QStringView listed;      ///< caption in Select and List; empty where it is not on offer
    bool identifier = false; ///< may not be empty when a record is saved
    bool heading = false;    ///< part of the name under the picture
};

/// How the List screen of a kind works its page out when it is loaded.
struct ListLoad {
    int margin = 300;         ///< twips that the height of the grid loses to the heading
    bool movesToLast = false; ///< the channel goes to its last record first
    bool clampsBelow = false; ///< a page that the zoom asks for is held above the first, too
};

struct KindInfo {
    Kind kind;
    QStringView table;
    QStringView shortName;        ///< in the names of the working memory
    int form = 1;                 ///< 1 Records I, 2 Records II
    int channel = 0;              ///< of the hidden form of that number
    int tab = 0;                  ///< entity tab, from 0
    QStringView title;            ///< LabBaseDatos of the Select screen, and the title on paper
    int fieldCount = 0;           ///< the fixed number of fields that the screens tell
    int valueLimit = 75;          ///< characters of a filter's value
    bool partOfRecording = false; ///< a recording may point to the record: its screens are a place to pick parts from
    qint32 Module1::*shownKey = nullptr; ///< takes the key of the record that the Show-Edit screen shows
    bool identifierTip = true;           ///< the identifier boxes of the Add screen carry the tip "Identifier"
    bool acceptTrapped = true;           ///< a failure while a change is accepted is reported; else it ends the program
    bool hashKeptOut = false;    ///< the value of a filter may not hold "#", which would split the remembered rows
    bool laterByValue = false;   ///< a later numeric filter takes the number that its value begins with
    QStringView saveTail = u" "; ///< what ends the query of the Add screen's save
    QStringView listTicks;       ///< name of the array of ticks
    ListLoad listLoad = {};
    QStringView drawing; ///< picture that stands for the lack of one
    std::span<const Field> fields;
    int listItems = 0;                           ///< items of the list of fields; 0 where they are the listed fields
    std::span<const QStringView> clauses = {};   ///< WHERE texts that the selection keeps, where it has several
    std::span<const QStringView> onlyOrder = {}; ///< words of the two ordering lists, where each has one row
    std::span<const QStringView> nameRows = {};  ///< captions in Select that stand for the name, where it has several

    /// Position of a column in `fields`, -1 for none.
    int indexOf(QStringView column) const;
    const Field& key() const { return fields.front(); }
    /// "SELECT * FROM " and the table.
    QString selectAll() const;
};

const KindInfo& info(Kind kind);
std::span<const KindInfo> kinds();
/// The kind of an entity tab (from 0) of Records I or II (1 or 2).
const KindInfo& kindOfTab(int form, int tab);

/// One of the three tables that tie a recording to a group.
struct LinkInfo {
    QStringView table;
    int channel; ///< of the first hidden form
    std::array<Field, 2> fields;
};
std::span<const LinkInfo> links();

/// All 17 tables as the engine needs them.
std::vector<jet::TableDef> tableDefs();

} // namespace zv::store
