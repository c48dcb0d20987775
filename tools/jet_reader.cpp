// The rows and values of a Jet file, over libmdb.
#include "jet_reader.h"

#include <QFile>
#include <QFileInfo>
#include <QtEndian>
#include <glib.h>
// After glib.h, which may not be read inside of its extern "C".
#include <mdbtools.h>

using namespace Qt::StringLiterals;

namespace zv::tool {

struct JetHandle {
    explicit JetHandle(MdbHandle* opened) : mdb(opened) {}
    ~JetHandle() { mdb_close(mdb); }
    JetHandle(const JetHandle&) = delete;
    JetHandle& operator=(const JetHandle&) = delete;

    MdbHandle* mdb;
    qint64 pages = 0;
};

struct JetDefinition {
    explicit JetDefinition(MdbTableDef* read) : table(read) {}
    ~JetDefinition() { mdb_free_tabledef(table); }
    JetDefinition(const JetDefinition&) = delete;
    JetDefinition& operator=(const JetDefinition&) = delete;

    MdbColumn* column(int index) const {
        return static_cast<MdbColumn*>(g_ptr_array_index(table->columns, static_cast<guint>(index)));
    }

    MdbTableDef* table;
    qint64 lastNumber = 0;
};

namespace {

constexpr int kVersionAt = 0x14;
constexpr int kNewestVersion = 6; ///< beyond it nobody knows what the pages look like
constexpr int kOldPage = 2048;    ///< bytes of a page of version 0
constexpr int kPage = 4096;       ///< bytes of a page of all others

constexpr int kDataPage = 1;
constexpr int kOwnerAt = 4;         ///< of a data page: the page that defines its table
constexpr int kOffsetMask = 0x1FFF; ///< of a slot: where on the page its row begins
constexpr int kElsewhere = 0x4000;  ///< the slot holds only the place of the row, which was moved
constexpr int kGone = 0x8000;       ///< the row was removed, or was moved here and is found by its first slot
constexpr int kMostMoves = 8;

constexpr int kNoteHead = 12; ///< bytes in the row before a long text that stands there, or that tell where it is
constexpr quint32 kNoteSize = 0x3FFFFFFF;
constexpr quint32 kNoteInRow = 0x80000000;
constexpr quint32 kNoteOnOnePage = 0x40000000;

template <class Number>
Number numberAt(const void* bytes, qsizetype offset) {
    return qFromLittleEndian<Number>(static_cast<const char*>(bytes) + offset);
}

QString nameOf(const char* utf8) { return QString::fromUtf8(utf8); }

JetType typeOf(int libraryType) {
    switch (libraryType) {
    case MDB_BYTE:
    case MDB_INT:
    case MDB_LONGINT: return JetType::Whole;
    case MDB_FLOAT:
    case MDB_DOUBLE:
    case MDB_MONEY: return JetType::Real;
    case MDB_TEXT:
    case MDB_MEMO: return JetType::Text;
    default: return JetType::Other;
    }
}

int widthOf(int libraryType) {
    switch (libraryType) {
    case MDB_BYTE: return 1;
    case MDB_INT: return 2;
    case MDB_LONGINT:
    case MDB_FLOAT: return 4;
    default: return 8;
    }
}

JetValue numberOf(int libraryType, const char* bytes) {
    switch (libraryType) {
    case MDB_BYTE: return qint64{numberAt<quint8>(bytes, 0)};
    case MDB_INT: return qint64{numberAt<qint16>(bytes, 0)};
    case MDB_LONGINT: return qint64{numberAt<qint32>(bytes, 0)};
    case MDB_FLOAT: return double{numberAt<float>(bytes, 0)};
    case MDB_MONEY: return static_cast<double>(numberAt<qint64>(bytes, 0)) / 10000;
    default: return numberAt<double>(bytes, 0);
    }
}

/// Text of two bytes per character, of which stretches may be packed: a pair of marks leads in, the packed stretch
/// comes first, and each zero byte where a character would begin changes between packed and plain.
QString unpacked(const QByteArray& bytes) {
    QString text;
    text.reserve(bytes.size());
    bool packed = true;
    for (qsizetype i = 2; i < bytes.size();) {
        if (bytes[i] == 0) {
            packed = !packed;
            ++i;
        } else if (packed) {
            text += QChar(static_cast<char16_t>(static_cast<uchar>(bytes[i++])));
        } else {
            if (i + 2 > bytes.size()) break;
            text += QChar(numberAt<char16_t>(bytes.constData(), i));
            i += 2;
        }
    }
    return text;
}

qint64 pageSize(const QByteArray& header) { return header[kVersionAt] == 0 ? kOldPage : kPage; }

} // namespace

void requireJetFile(const QString& path) {
    const QFileInfo info(path);
    if (!info.exists()) throw ConvertError(u"%1 does not exist."_s.arg(path));
    if (!info.isFile()) throw ConvertError(u"%1 is no file."_s.arg(path));
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) throw ConvertError(u"%1 may not be read."_s.arg(path));
    if (file.size() == 0) throw ConvertError(u"%1 is empty."_s.arg(path));
    const QByteArray header = file.read(kVersionAt + 4);
    const auto begins = [&header](const char* name) {
        return header.startsWith(QByteArrayView("\x00\x01\x00\x00", 4)) && header.mid(4).startsWith(name);
    };
    if (!begins("Standard Jet DB") && !begins("Standard ACE DB"))
        throw ConvertError(u"%1 is no Jet database."_s.arg(path));
    if (header.size() < kVersionAt + 4 || file.size() % pageSize(header) != 0 || file.size() < 3 * pageSize(header))
        throw ConvertError(u"%1 is damaged: it is cut off."_s.arg(path));
    if (numberAt<quint32>(header.constData(), kVersionAt) > kNewestVersion)
        throw ConvertError(u"%1 is a Jet database of an unknown version."_s.arg(path));
}

JetFile::JetFile(const QString& path) {
    requireJetFile(path);
    MdbHandle* mdb = mdb_open(QFile::encodeName(path).constData(), MDB_NOFLAGS);
    if (!mdb) throw ConvertError(u"%1 is damaged, or kept under a password."_s.arg(path));
    file_ = std::make_shared<JetHandle>(mdb);
    file_->pages = QFileInfo(path).size() / mdb->fmt->pg_size;
    if (!mdb_read_catalog(mdb, MDB_TABLE))
        throw ConvertError(u"%1 is damaged: its list of tables cannot be read."_s.arg(path));
    for (guint i = 0; i < mdb->num_catalog; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (mdb_is_user_table(entry)) names_.push_back(nameOf(entry->object_name));
    }
}

JetTable JetFile::table(const QString& name) {
    MdbHandle* mdb = file_->mdb;
    for (guint i = 0; i < mdb->num_catalog; ++i) {
        auto* entry = static_cast<MdbCatalogEntry*>(g_ptr_array_index(mdb->catalog, i));
        if (!mdb_is_user_table(entry) || nameOf(entry->object_name).compare(name, Qt::CaseInsensitive) != 0) continue;
        const auto unreadable = [&name] {
            return ConvertError(u"The old catalogue is damaged: table %1 cannot be read."_s.arg(name));
        };
        MdbTableDef* read = mdb_read_table(entry);
        if (!read) throw unreadable();
        auto definition = std::make_unique<JetDefinition>(read);
        // Its page is still the current one. The last number assigned stands behind the number of rows.
        definition->lastNumber = numberAt<qint32>(mdb->pg_buf, mdb->fmt->tab_num_rows_offset + 4);
        if (!mdb_read_columns(read) || read->columns->len != read->num_cols) throw unreadable();
        return {file_, std::move(definition)};
    }
    throw ConvertError(u"The old file is no whole catalogue: it has no table %1."_s.arg(name));
}

JetTable::JetTable(std::shared_ptr<JetHandle> file, std::unique_ptr<JetDefinition> definition)
    : file_(std::move(file)), definition_(std::move(definition)), name_(nameOf(definition_->table->name)) {
    for (int i = 0; i < static_cast<int>(definition_->table->num_cols); ++i) {
        const MdbColumn* column = definition_->column(i);
        columns_.push_back({nameOf(column->name), typeOf(column->col_type), column->is_long_auto != 0});
    }
}

JetTable::~JetTable() = default;
JetTable::JetTable(JetTable&&) noexcept = default;

int JetTable::indexOf(const QString& column) const {
    for (std::size_t i = 0; i < columns_.size(); ++i)
        if (columns_[i].name.compare(column, Qt::CaseInsensitive) == 0) return static_cast<int>(i);
    return -1;
}

qint64 JetTable::countedRows() const { return definition_->table->num_rows; }
qint64 JetTable::lastNumber() const { return definition_->lastNumber; }

void JetTable::damaged() const {
    throw ConvertError(u"The old catalogue is damaged: not all rows of table %1 can be read."_s.arg(name_));
}

/// Makes a data page of this table the current one. Returns the number of its slots.
int JetTable::openPage(quint32 page) {
    MdbHandle* mdb = file_->mdb;
    if (page >= file_->pages || mdb_read_pg(mdb, page) != mdb->fmt->pg_size) damaged();
    if (mdb->pg_buf[0] != kDataPage || numberAt<quint32>(mdb->pg_buf, kOwnerAt) != definition_->table->entry->table_pg)
        damaged();
    const int slots = numberAt<quint16>(mdb->pg_buf, mdb->fmt->row_count_offset);
    if (mdb->fmt->row_count_offset + 2 + 2 * slots > mdb->fmt->pg_size) damaged();
    return slots;
}

std::vector<JetPlace> JetTable::places() {
    MdbHandle* mdb = file_->mdb;
    std::vector<JetPlace> found;
    mdb_rewind_table(definition_->table);
    while (mdb_read_next_dpg(definition_->table)) {
        const auto page = static_cast<quint32>(mdb->cur_pg);
        const int slots = openPage(page);
        for (int slot = 0; slot < slots; ++slot)
            if (!(numberAt<quint16>(mdb->pg_buf, mdb->fmt->row_count_offset + 2 + 2 * slot) & kGone))
                found.push_back({page, slot});
    }
    // The library ends quietly where the file does.
    if (mdb->cur_pg >= file_->pages || static_cast<qint64>(found.size()) < countedRows()) damaged();
    return found;
}

/// Makes the page of a row the current one, wherever the row was moved. Returns where it lies on the page.
JetTable::Stretch JetTable::findRow(JetPlace place) {
    MdbHandle* mdb = file_->mdb;
    for (int moves = 0; moves <= kMostMoves; ++moves) {
        int start = 0;
        std::size_t size = 0;
        if (place.slot >= openPage(place.page) || mdb_find_row(mdb, place.slot, &start, &size) != 0) damaged();
        const Stretch row{start & kOffsetMask, static_cast<int>(size)};
        if (!(start & kElsewhere)) return row;
        if (row.size < 4) damaged();
        const auto next = numberAt<quint32>(mdb->pg_buf, row.start);
        place = {next >> 8, static_cast<int>(next & 0xFF)};
    }
    damaged();
}

std::vector<JetValue> JetTable::read(const JetPlace& place, const std::vector<int>& columns) {
    MdbHandle* mdb = file_->mdb;
    const bool old = IS_JET3(mdb);
    const Stretch row = findRow(place);
    if (row.size < 4) damaged();
    const int rowColumns = old ? mdb->pg_buf[row.start] : numberAt<quint16>(mdb->pg_buf, row.start);
    std::vector<MdbField> fields(columns_.size());
    if (mdb_crack_row(definition_->table, row.start, static_cast<std::size_t>(row.size), fields.data()) < 0) damaged();
    std::vector<JetValue> values;
    for (const int index : columns) {
        const MdbColumn* column = definition_->column(index);
        const MdbField& field = fields[static_cast<std::size_t>(index)];
        // A row that was written before the column was added does not have it.
        if (field.is_null || column->col_num >= rowColumns) {
            values.emplace_back();
            continue;
        }
        if (field.start < row.start || field.siz < 0 || field.start + field.siz > row.start + row.size) damaged();
        values.push_back(
            value(columns_[static_cast<std::size_t>(index)].type, column->col_type, {field.start, field.siz}));
    }
    return values;
}

JetValue JetTable::value(JetType type, int libraryType, Stretch field) {
    const auto* bytes = reinterpret_cast<const char*>(file_->mdb->pg_buf) + field.start;
    if (libraryType == MDB_MEMO) return memo(field);
    if (type == JetType::Text) return text(QByteArray(bytes, field.size));
    if (type == JetType::Other) return {};
    if (field.size < widthOf(libraryType)) damaged();
    return numberOf(libraryType, bytes);
}

/// A long text stands in its row, on a page of its own, or in a chain of pieces, each led by the place of the next.
QString JetTable::memo(Stretch field) {
    if (field.size == 0) return u""_s;
    if (field.size < kNoteHead) damaged();
    const auto* head = file_->mdb->pg_buf + field.start;
    const auto marks = numberAt<quint32>(head, 0);
    const auto size = static_cast<qsizetype>(marks & kNoteSize);
    if (marks & kNoteInRow) {
        if (size > field.size - kNoteHead) damaged();
        return text(QByteArray(reinterpret_cast<const char*>(head) + kNoteHead, size));
    }
    return text(noteOnPages(numberAt<quint32>(head, 4), size, !(marks & kNoteOnOnePage)));
}

QByteArray JetTable::noteOnPages(quint32 place, qsizetype size, bool chained) {
    MdbHandle* mdb = file_->mdb;
    if (size > file_->pages * mdb->fmt->pg_size) damaged();
    QByteArray note;
    const int lead = chained ? 4 : 0;
    while (note.size() < size) {
        void* page = nullptr;
        int start = 0;
        std::size_t stored = 0;
        if ((place >> 8) >= file_->pages || mdb_find_pg_row(mdb, static_cast<int>(place), &page, &start, &stored) != 0)
            damaged();
        const auto length = static_cast<qsizetype>(stored) - lead;
        const int slots = numberAt<quint16>(page, mdb->fmt->row_count_offset);
        if (numberAt<quint8>(page, 0) != kDataPage || static_cast<int>(place & 0xFF) >= slots || length <= 0) damaged();
        note.append(static_cast<const char*>(page) + start + lead, qMin(length, size - note.size()));
        if (!chained) break;
        place = numberAt<quint32>(page, start);
    }
    if (note.size() < size) damaged();
    return note;
}

QString JetTable::text(const QByteArray& bytes) {
    if (bytes.isEmpty()) return u""_s;
    if (IS_JET3(file_->mdb)) { // one byte per character, in the code page that the file names
        QByteArray utf8(4 * bytes.size() + 1, '\0');
        const int size = mdb_unicode2ascii(file_->mdb, bytes.constData(), static_cast<std::size_t>(bytes.size()),
                                           utf8.data(), static_cast<std::size_t>(utf8.size()));
        return QString::fromUtf8(utf8.constData(), size);
    }
    if (bytes.startsWith("\xFF\xFE")) return unpacked(bytes);
    QString plain(bytes.size() / 2, Qt::Uninitialized);
    for (qsizetype i = 0; i < plain.size(); ++i) plain[i] = QChar(numberAt<char16_t>(bytes.constData(), 2 * i));
    return plain;
}

} // namespace zv::tool
