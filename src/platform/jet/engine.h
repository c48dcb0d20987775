// The database engine: opens catalogue files, makes new ones, compacts them.
#pragma once

#include "platform/jet/table_def.h"
#include <map>
#include <memory>
#include <vector>

namespace zv::jet {

class Database;

class DBEngine {
  public:
    /// The tables that a catalogue of this program holds.
    explicit DBEngine(std::vector<TableDef> tables);
    ~DBEngine();

    /// The open file of that path: one connection however many ask for it, closed when the last lets go.
    /// Error 3024 without a file, 3044 without its folder, 3343 for a file that is no catalogue (the text says what it
    /// is: a genuine Jet file and how to convert it, another SQLite file, a newer version), 3049 for a damaged one,
    /// 3051 without the right to read. A file that is refused is not changed by a byte. A file or folder without write
    /// permission opens for reading; writes then raise 3027.
    std::shared_ptr<Database> OpenDatabase(const QString& path);

    /// Makes an empty catalogue with all tables. Error 3204 if anything of that name exists; a file that could not be
    /// made whole is removed.
    void CreateDatabase(const QString& path);

    /// Writes a compacted copy, forced to the disk. Error 3356 while this engine has the source open, 3204 if anything
    /// of the destination's name exists, even an empty file; 3024, 3026, 3049, 3343 for the source or the disk. A copy
    /// that fails half-way is removed. Keys keep their values and the next key stays beyond all given before.
    void CompactDatabase(const QString& source, const QString& destination);

  private:
    std::vector<TableDef> tables_;
    std::map<QString, std::weak_ptr<Database>> open_; ///< by absolute path
};

} // namespace zv::jet
