// The steps of the tour, and the records that they put into the catalogue.
#pragma once

#include "tour/tour.h"

namespace zv::tour {

struct Composer {
    QString name, surname, year1, year2, notes;
    QString picture; ///< file name of its picture, "" for none
};

/// Those that stay in the catalogue, in the order in which they are added.
const std::vector<Composer>& composers();

// Ways that several steps go.

/// Accepts an Add screen that saves. steps_editors.cpp.
void save(Tour& tour);
/// Adds a filter on the Select screen. steps_list.cpp.
void addFilter(Tour& tour, const QString& field, const QString& criterion, const QString& value);
/// Gives the window another size. steps_window.cpp.
void resize(Tour& tour, QSize size);

// Records I: steps_editors.cpp, steps_list.cpp.
void presentation(Tour& tour);
void addComposer(Tour& tour);
void addComposers(Tour& tour);
void awayAndBack(Tour& tour);
void undo(Tour& tour);
void walk(Tour& tour);
void modifyAndCancel(Tour& tour);
void modifyAndAccept(Tour& tour);
void removeComposer(Tour& tour);
void filterComposers(Tour& tour);
void walkSelection(Tour& tour);
void listSelection(Tour& tour);
void selectAll(Tour& tour);
void listPictures(Tour& tour);
void printComposers(Tour& tour);

// Records II: steps_grouping.cpp.
void addGroupings(Tour& tour);
void showGrouping(Tour& tour);
void filterGroupings(Tour& tour);
void printGroupings(Tour& tour);

// Recordings: steps_recording.cpp.
void addParts(Tour& tour);
void tripToConductors(Tour& tour);
void composeRecording(Tour& tour);
void composeFurther(Tour& tour);
void showRecording(Tour& tour);
void showRecordingLarge(Tour& tour);
void filterRecordings(Tour& tour);
void listRecordings(Tour& tour);
void printRecordings(Tour& tour);

// Report, help, about: steps_report.cpp.
void readReport(Tour& tour);
void readHelp(Tour& tour);

// The window: steps_window.cpp.
void everyTab(Tour& tour);
void smallWindow(Tour& tour);
void largeWindow(Tour& tour);
void hugeWindow(Tour& tour);
void closeAndCompact(Tour& tour);
void reopen(Tour& tour);

} // namespace zv::tour
