// A data channel: the statement of its rows and the recordset that walks them.
#pragma once

#include "platform/jet/recordset.h"
#include <memory>

namespace zv::jet {

class DBEngine;

class DataControl {
  public:
    explicit DataControl(DBEngine& engine);
    ~DataControl();
    DataControl(DataControl&&) noexcept;

    QString DatabaseName; ///< path of the file; takes effect at the next Refresh
    QString RecordSource; ///< a table's name or a whole SELECT text; takes effect at the next Refresh

    /// Reruns the source; the recordset stands on its first row. A failing statement leaves the
    /// rows of the last good one.
    void Refresh();

    /// The recordset of the last Refresh. Error 91 without one.
    jet::Recordset& Recordset();

    /// Text of a column in the current row, as a bound control shows it: "" for Null, without a current row or without
    /// a recordset.
    QString boundText(const QString& column);

    /// Lets go of the recordset and the file.
    void Close();

  private:
    DBEngine* engine_;
    std::shared_ptr<Database> database_;
    std::unique_ptr<jet::Recordset> recordset_;
};

} // namespace zv::jet
