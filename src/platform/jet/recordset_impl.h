// The state behind a recordset: where it stands, the row it stands on, and the row being written.
#pragma once

#include "platform/jet/database.h"
#include "platform/jet/key_list.h"
#include "platform/jet/recordset.h"
#include <optional>
#include <variant>

namespace zv::jet {

class Recordset::Impl {
  public:
    Impl(std::shared_ptr<Database> database, const QString& source);

    int count() const { return keys_.size(); }
    bool atEnd() const { return atEnd_; }
    int position() const { return atEnd_ ? -1 : position_; }

    void moveFirst();
    void moveLast();
    void moveNext();
    void moveTo(int position);

    void addNew();
    void edit();
    void update();
    void remove();

    /// Index of a column, error 3265 without one.
    int columnOf(const QString& name) const;
    /// Text of a column in the row being written, or in the current row. Errors 3021, 3167.
    QString value(int column);
    void setValue(int column, const QString& text);
    /// Text of a column in the current row, "" without a row.
    QString boundText(const QString& name);
    std::vector<QString> columnTexts(const QString& name);

  private:
    enum class Mode { Reading, Adding, Editing };
    using Assigned = std::variant<std::monostate, std::int64_t, double, std::string>;

    void stand(int position);
    void requireRow() const;
    void requireWritable() const;
    /// Reads the current row if that has not been done; false if it is gone.
    bool readRow();
    Assigned converted(const Column& column, const QString& text) const;
    void insertRow();
    void changeRow();
    std::vector<std::size_t> assignedColumns() const;
    void execute(const std::string& sql, const std::vector<std::size_t>& columns, std::optional<std::int64_t> key);

    std::shared_ptr<Database> database_;
    Table table_;
    KeyList keys_;
    int position_ = 0;
    bool atEnd_ = false;
    bool removed_ = false; ///< the row at the position was deleted; the following one has its place by now

    std::optional<SQLite::Statement> reader_;
    std::optional<std::vector<QString>> row_; ///< texts of the current row

    Mode mode_ = Mode::Reading;
    std::vector<Assigned> assigned_;
};

} // namespace zv::jet
