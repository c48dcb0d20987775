// The rows of a statement: an ordered list of keys, each row read when it is first looked at.
#pragma once

#include <QString>
#include <memory>
#include <vector>

namespace zv::jet {

class Database;
class Recordset;

/// A field of the row that AddNew or Edit prepares, or of the current row.
class Field {
  public:
    /// The value as text, "" for Null. Error 3021 without a current row, 3167 if the row is gone.
    QString Value() const;
    /// Converts a text to the column's kind. Error 3020 outside AddNew and Edit, 3421 for a text that is no number,
    /// 3163 for one that is too long.
    void setValue(const QString& text);

  private:
    friend class Recordset;
    Field(Recordset& owner, int column) : owner_(owner), column_(column) {}
    Recordset& owner_;
    int column_;
};

class Recordset {
  public:
    /// Runs a statement. Errors 3075 and its like for what the dialect does not take.
    Recordset(std::shared_ptr<Database> database, const QString& source);
    ~Recordset();

    /// Rows of the statement, exact at any time; falls with Delete, grows with a new row.
    int RecordCount() const;
    bool EOF_() const;
    void MoveFirst();
    void MoveLast();
    void MoveNext();
    /// Position of the current row from 0, -1 without one.
    int AbsolutePosition() const;
    /// Error 3021 without rows, 3001 for a position outside the rows.
    void setAbsolutePosition(int position);

    void AddNew();
    void Edit();
    /// Writes the new or changed row and commits it to the disk. The current row stays current after AddNew; the new
    /// row is the last one.
    void Update();
    /// Removes the current row and commits. The following row takes its position at the next MoveNext.
    void Delete();

    /// Error 3265 for an unknown name; case does not count.
    Field Fields(const QString& name);

    /// Texts of a column in all rows, in their order: a walk over them that reads nothing else. "" for Null and for a
    /// row that is gone. The current row stays. Error 3265 for an unknown name.
    std::vector<QString> columnTexts(const QString& name);

    class Impl;
    Impl& impl() { return *impl_; }

  private:
    std::unique_ptr<Impl> impl_;
};

} // namespace zv::jet
