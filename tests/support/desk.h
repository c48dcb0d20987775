// A whole program on a catalogue of its own in a temporary folder, with boxes and dialogs that answer by a script.
#pragma once

#include "driver/driver.h"
#include "platform/printing/recording_printer.h"
#include "support/readable.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zv::test {

/// Rows for a table: columns joined by commas, then values in SQL.
struct Rows {
    QString table, columns;
    QStringList values;
};

class Desk : public ::testing::Test {
  public:
    ~Desk() override;

  protected:
    Desk();

    /// Fills the catalogue before the program opens it.
    void put(const Rows& rows);
    /// Starts the program and goes to the first working screen. size: client pixels.
    void start(QSize size = {1100, 760});
    /// Ends the program without a word, as its process would; start begins it anew on the same file.
    void stop();
    /// Closes the main window, answering the question of compaction.
    void close(int answer = box::No);
    /// Rows of a table straight from the file, columns joined by "|".
    QStringList stored(const QString& table, const QString& columns);

    /// Runs a statement on the file, as another program would.
    void sql(const QString& statement);

    /// Lines of the working memory that differ from an earlier dump.
    QStringList changesSince(const QString& before);
    /// Accepts an Add screen that saves.
    void save();
    /// Writes a picture of that size in pixels and gives its path.
    QString picture(const QString& name, QSize size, const char* format = "BMP");
    /// Name of the control that has the focus.
    static QString focus();

    QString folder() const { return folder_.path(); }
    QString file() const { return folder_.filePath(store::DatabaseFile); }
    store::KindMemory& memory(store::Kind kind) { return program->store.memory.of(kind); }

    QTemporaryDir folder_;
    driver::ScriptedBoxes boxes;
    driver::ScriptedFiles files;
    printing::RecordingPrinterDialogs printers;
    std::unique_ptr<app::Program> program;
    std::unique_ptr<driver::Driver> hands;
};

} // namespace zv::test
