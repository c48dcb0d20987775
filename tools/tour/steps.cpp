// The tour in its order. A step for a further screen is one more row.
#include "tour/steps.h"

namespace zv::tour {

std::vector<Step> allSteps() {
    return {
        {"presentation", presentation},
        {"add-composer", addComposer},
        {"add-composers", addComposers},
        {"away-and-back", awayAndBack},
        {"undo", undo},
        {"show-edit", walk},
        {"modify-cancel", modifyAndCancel},
        {"modify-accept", modifyAndAccept},
        {"remove", removeComposer},
        {"select", filterComposers},
        {"show-selection", walkSelection},
        {"list", listSelection},
        {"select-all", selectAll},
        {"list-pictures", listPictures},
        {"print", printComposers},
        {"add-grouping", addGroupings},
        {"show-grouping", showGrouping},
        {"select-grouping", filterGroupings},
        {"list-grouping", printGroupings},
        {"add-parts", addParts},
        {"trip-to-conductors", tripToConductors},
        {"compose-recording", composeRecording},
        {"compose-further", composeFurther},
        {"show-recording", showRecording},
        {"show-recording-1920x1080", showRecordingLarge},
        {"select-recording", filterRecordings},
        {"list-recording", listRecordings},
        {"print-recording", printRecordings},
        {"report", readReport},
        {"help", readHelp},
        {"every-tab", everyTab},
        {"window-712x626", smallWindow},
        {"window-1920x1080", largeWindow},
        {"window-3840x2160", hugeWindow},
        {"close-and-compact", closeAndCompact},
        {"reopen", reopen},
    };
}

} // namespace zv::tour
