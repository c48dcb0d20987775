#include "driver/scripted.h"

namespace zv::driver {

using namespace Qt::StringLiterals;

int ScriptedBoxes::MsgBox(const QString& text, int style) {
    if (whileShown) whileShown();
    if (expected_.empty()) {
        failure_(u"Unexpected box of style %1: %2"_s.arg(style).arg(text));
        return style == box::YesNo || style == box::YesNoInformation ? box::No : box::Ok;
    }
    const Expected next = expected_.front();
    expected_.pop_front();
    if (next.text != text || next.style != style)
        failure_(u"Expected a box of style %1: %2\nbut style %3 came: %4"_s.arg(QString::number(next.style), next.text,
                                                                                QString::number(style), text));
    return next.answer;
}

void ScriptedBoxes::checkAllShown() {
    for (const Expected& missing : expected_) failure_(u"A box did not come: "_s + missing.text);
    expected_.clear();
}

QString ScriptedFiles::openFile(const QString& title, const QString& filter, const QString& fileName) {
    shown = {title, filter, fileName};
    if (chosen_.empty()) {
        failure_(u"Unexpected file dialog: "_s + title);
        return {};
    }
    const QString path = chosen_.front();
    chosen_.pop_front();
    return path;
}

} // namespace zv::driver
