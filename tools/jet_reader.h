// Reads the tables of a genuine Jet file: libmdb finds pages, tables and the fields of a row; which rows there are and
// what their values say is worked out here, for the library cannot tell Null from an empty text, cuts long texts, and
// takes a row that was moved and then removed for a living one. It trusts the file and may crash on a damaged one, so
// use it in a process that may die (see convert.cpp); whatever it returns is checked before it is used.
#pragma once

#include <QString>
#include <memory>
#include <stdexcept>
#include <variant>
#include <vector>

namespace zv::tool {

/// The old file cannot be read or taken over; the text tells the user why, in one or two sentences.
class ConvertError : public std::runtime_error {
  public:
    explicit ConvertError(const QString& text) : std::runtime_error(text.toStdString()) {}
};

using JetValue = std::variant<std::monostate, qint64, double, QString>; ///< Null, two kinds of number, text

enum class JetType {
    Whole, ///< whole number of 1, 2 or 4 bytes
    Real,  ///< floating point number, or an amount with four decimals
    Text,  ///< text, short or long
    Other  ///< anything that no catalogue has
};

struct JetColumn {
    QString name;
    JetType type;
    bool counted; ///< the old engine assigned its numbers
};

/// Where a row is found: the page, and the slot on it (from 0) that stands for the row even when the row was moved.
struct JetPlace {
    quint32 page;
    int slot;
};

struct JetHandle;
struct JetDefinition;

class JetTable {
  public:
    JetTable(std::shared_ptr<JetHandle> file, std::unique_ptr<JetDefinition> definition);
    ~JetTable();
    JetTable(JetTable&&) noexcept;
    JetTable& operator=(JetTable&&) = delete;

    const QString& name() const { return name_; }
    const std::vector<JetColumn>& columns() const { return columns_; }
    /// Index of a column, -1 without one; case does not count.
    int indexOf(const QString& column) const;
    /// Number of rows by the table's own count, which is 0 or too low where the old engine was not ended in order.
    qint64 countedRows() const;
    /// The last number that the old engine assigned, 0 if it does not say.
    qint64 lastNumber() const;

    /// The places of all rows, in stored order. ConvertError for a damaged file.
    std::vector<JetPlace> places();
    /// The values of some columns (indexes) of one row. ConvertError for a damaged file.
    std::vector<JetValue> read(const JetPlace& place, const std::vector<int>& columns);

  private:
    struct Stretch {
        int start;
        int size;
    };
    Stretch findRow(JetPlace place);
    int openPage(quint32 page);
    JetValue value(JetType type, int libraryType, Stretch field);
    QString memo(Stretch field);
    QByteArray noteOnPages(quint32 place, qsizetype size, bool chained);
    QString text(const QByteArray& bytes);
    [[noreturn]] void damaged() const;

    std::shared_ptr<JetHandle> file_;
    std::unique_ptr<JetDefinition> definition_;
    QString name_;
    std::vector<JetColumn> columns_;
};

class JetFile {
  public:
    /// Opens a file for reading only. ConvertError if it is no Jet file, cut off, or cannot be read.
    explicit JetFile(const QString& path);

    /// Names of the tables that the file's user made.
    const std::vector<QString>& tableNames() const { return names_; }
    /// A table; case does not count. ConvertError without it, or if it is damaged.
    JetTable table(const QString& name);

  private:
    std::shared_ptr<JetHandle> file_;
    std::vector<QString> names_;
};

/// Looks at the length and the first bytes of a file, without the library. ConvertError if it cannot be read, is no Jet
/// file, or is cut off.
void requireJetFile(const QString& path);

} // namespace zv::tool
