// A store on a catalogue of its own in a temporary folder.
#pragma once

#include "plain_file.h"
#include "store/channels.h"
#include "store/messages.h"
#include "support/readable.h"
#include <QTemporaryDir>
#include <gtest/gtest.h>

namespace zv::store::test {

/// Keeps the boxes that came, as "style: text".
class KeptBoxes : public MessageBoxes {
  public:
    QStringList shown;
    int MsgBox(const QString& text, int style) override {
        shown += QString::number(style) + QStringLiteral(": ") + text;
        return box::Ok;
    }
};

class StoreTest : public ::testing::Test {
  protected:
    StoreTest() { engine.CreateDatabase(file()); }

    QString file() const { return folder.filePath(DatabaseFile); }
    void load() { store.load(folder.path()); }

    /// Runs a statement on the file, as any other tool would.
    void sql(const QString& statement) { plain::run(file(), statement); }
    /// Rows of a statement straight from the file, columns joined by "|".
    QStringList rows(const QString& statement) { return plain::rows(file(), statement); }

    /// The state of the generic writes: the flag and the number of the last error.
    QString errorState() const {
        return (store.module1.ErrorBaseDatos ? QStringLiteral("set ") : QStringLiteral("clear ")) +
               QString::number(store.module1.Err);
    }

    QTemporaryDir folder;
    KeptBoxes boxes;
    jet::DBEngine engine{tableDefs()};
    Store store{engine, boxes};
};

} // namespace zv::store::test
