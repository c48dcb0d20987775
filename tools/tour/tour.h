// The guided tour: the whole program on a scratch catalogue, worked through real events. Each step looks whether what
// it sees is right, and leaves a picture.
#pragma once

#include "driver/driver.h"
#include "tour/tour_dialogs.h"
#include <QTemporaryDir>
#include <memory>
#include <optional>

namespace zv::tour {

class Tour;

/// A step by its name, which is also that of its picture.
struct Step {
    const char* name;
    void (*run)(Tour& tour);
};

class Tour {
  public:
    /// out: folder for the pictures and the PDF; made if it is not there.
    explicit Tour(QString out);
    ~Tour();

    /// Runs the steps in their order, prints one line for each, and tells whether all was as it should be.
    bool run(const std::vector<Step>& steps);

    // The program under the hands of the tour.

    /// Starts the program on the scratch catalogue; the presentation is on display.
    void start();
    /// Closes the main window, answering the question of compaction.
    void close(int answer);
    driver::Driver& hands() { return *hands_; }
    shell::FormMdi& window() { return program_->window; }
    /// Path of a picture drawn for the records.
    QString picture(const QString& name) const { return scratch_.filePath(name); }
    QString out(const QString& name) const { return out_ + u'/' + name; }
    QString catalogue() const { return scratch_.filePath(store::DatabaseFile); }

    // Checks: what is wrong is printed with what was expected, and the tour fails in the end.

    void fail(const QString& words);
    void require(bool holds, const QString& words) {
        if (!holds) fail(words);
    }
    void same(const QString& what, const QString& expected, const QString& seen);
    void same(const QString& what, qint64 expected, qint64 seen) {
        same(what, QString::number(expected), QString::number(seen));
    }
    /// The text of a box or label of the screen on display.
    void shows(const QString& control, const QString& expected) { same(control, expected, hands().text(control)); }
    /// Rows of a table straight from the file in the order of their keys, columns joined by "|".
    QStringList stored(const QString& table, const QString& columns = QStringLiteral("*"));
    void sameRows(const QString& what, const QStringList& expected, const QStringList& seen) {
        same(what, expected.join(u'\n'), seen.join(u'\n'));
    }
    /// Compares the words of a PDF, without regard to line ends and runs of blanks; true if they are in it in this
    /// order. Without a reader of PDF texts on the machine it is always true.
    bool pdfHolds(const QString& pdf, const QStringList& words);

    /// Leaves a picture of the window (in `folder` of the pictures, if given). Without a call a step leaves its picture
    /// when it ends.
    void photograph(const QString& name = {});
    /// Leaves a picture of the window with a box in front of it.
    void photograph(const QPixmap& box);

    TourBoxes boxes;
    driver::ScriptedFiles files;
    TourPrinters printers;

    /// What one step leaves to the next.
    QStringList composersBefore;

  private:
    void save(const QPixmap& shown, const QString& path);

    QString out_;
    QTemporaryDir scratch_;
    std::unique_ptr<app::Program> program_;
    std::unique_ptr<driver::Driver> hands_;
    QString step_; ///< number and name of the step that runs
    bool photographed_ = false;
    int failures_ = 0;
};

/// The whole tour.
std::vector<Step> allSteps();

} // namespace zv::tour
