#include "editors/records1/name_boxes.h"

#include "platform/base/text.h"

namespace zv::editors {

using namespace Qt::StringLiterals;
using forms::TextBox;

namespace {

/// Which boxes a box looks at before it takes text, in order.
constexpr int Others[NameBoxes::Count][2] = {{1, 2}, {0, 2}, {1, 0}};

} // namespace

NameBoxes::NameBoxes(forms::Form& form, int limit)
    : boxes_{form.add<TextBox>(u"TxtNombreOrquesta"_s, {4740, 240, 5130, 315}),
             form.add<TextBox>(u"TxtNombreGrupo"_s, {4740, 645, 5130, 315}),
             form.add<TextBox>(u"TxtNombreCoro"_s, {4740, 1050, 5130, 315})} {
    for (TextBox* box : boxes_) box->setMaxLength(limit);
}

int NameBoxes::filled(int otherwise) const {
    for (int i = 0; i < Count; ++i)
        if (!Trim(box(i).Text()).isEmpty()) return i;
    return otherwise;
}

QString NameBoxes::text() const {
    const int i = filled(-1);
    return i < 0 ? QString() : box(i).Text();
}

void NameBoxes::setLocked(bool locked) {
    for (TextBox* box : boxes_) box->setLocked(locked);
}

void NameBoxes::followTabStop(QWidget* before) const {
    forms::chainTabStops({before, boxes_[0], boxes_[1], boxes_[2]});
}

void NameBoxes::clear() {
    for (TextBox* box : boxes_) box->setText({});
}

void NameBoxes::Colorear(bool filled) {
    for (TextBox* box : boxes_) {
        box->setToolTipText(filled ? QString() : store::EtiIdentificador);
        box->setBackColor(filled ? forms::colour::Panel : forms::colour::Missing);
    }
}

bool NameBoxes::yieldToOther(int i) {
    for (const int other : Others[i]) {
        if (Trim(box(other).Text()).isEmpty()) continue;
        box(i).setText({});
        box(other).setFocus(Qt::OtherFocusReason);
        return true;
    }
    return false;
}

} // namespace zv::editors
