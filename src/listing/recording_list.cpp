#include "listing/recording_list.h"

#include "listing/work_texts.h"
#include "platform/base/text.h"
#include "store/current_selection.h"

namespace zv::listing {

using namespace Qt::StringLiterals;
using store::Kind;
using store::PartRow;
using store::RecordingItem;

namespace {

constexpr int RecordingTab = 6;

const RecordingItem& itemAt(int item) { return store::RecordingItems[item]; }

bool isGroup(Kind kind) { return kind == Kind::Orquesta || kind == Kind::Director || kind == Kind::Interprete; }

} // namespace

FormReg1LisGrabacion::FormReg1LisGrabacion(shell::Context& context, QWidget* parent, const QString& name)
    : ListScreen(context, parent, name, store::info(Kind::Grabacion)), parts_(store()) {}

void FormReg1LisGrabacion::Carga() {
    if (check_.passes(context(), *this)) ListScreen::Carga();
}

// Not on the way to the Select screen of a part, whose selection is to be seen there.
void FormReg1LisGrabacion::Form_Unload() {
    if (context().navigator->SolapaRegistros1 == RecordingTab) store::showWholeTables(store());
}

QStringList FormReg1LisGrabacion::itemCaptions() const {
    QStringList captions;
    for (const RecordingItem& item : store::RecordingItems) captions += item.listed().toString();
    return captions;
}

bool FormReg1LisGrabacion::isNumber(int item) const { return itemAt(item).isNumber(); }

// The names of orchestras have no column beside them.
bool FormReg1LisGrabacion::areLinesLevel(int item) const {
    return isGroup(itemAt(item).source) && itemAt(item).source != Kind::Orquesta;
}

QString FormReg1LisGrabacion::picturePath() { return parts_.part(Kind::Soporte).text(u"Imagen"); }

void FormReg1LisGrabacion::moveTo(int position) {
    ListScreen::moveTo(position);
    parts_.forget();
}

// Line k of each column of a group belongs to its member k; one whose row is gone leaves an empty line.
QString FormReg1LisGrabacion::cellText(int item) {
    const RecordingItem& of = itemAt(item);
    if (of.source == Kind::Grabacion) return Data().boundText(of.column.toString());
    if (isGroup(of.source)) {
        QStringList lines;
        for (const PartRow& member : parts_.group(of.source)) lines += member.text(of.column);
        return lines.join(u'\r');
    }
    const PartRow& part = parts_.part(of.source);
    if (!part.exists()) return {};
    if (of.source == Kind::Obra) return workCell(of.column, [&part](QStringView column) { return part.text(column); });
    const QString text = part.text(of.column);
    return of.isNumber() && Val(text) == 0 ? QString() : text;
}

QString FormReg1LisGrabacion::paperText(int item) {
    const RecordingItem& of = itemAt(item);
    if (of.source != Kind::Obra) return cellText(item);
    const PartRow& part = parts_.part(of.source);
    if (!part.exists()) return {};
    return workOnPaper(of.column, [&part](QStringView column) { return part.text(column); });
}

// On paper a group is one field, whichever of its items are ticked.
QStringList FormReg1LisGrabacion::values() {
    QStringList texts;
    bool groupTold = false;
    for (int i = 0; i + 1 < itemCount(); ++i) {
        if (i > 0 && itemAt(i).source != itemAt(i - 1).source) groupTold = false;
        if (!isChosen(i) || groupTold) continue;
        groupTold = isGroup(itemAt(i).source);
        texts += groupTold ? groupOnPaper(itemAt(i).source) : paperText(i);
    }
    return texts;
}

QString FormReg1LisGrabacion::groupOnPaper(Kind group) {
    QStringList members;
    bool empty = true;
    for (const PartRow& member : parts_.group(group)) {
        QString text;
        bool first = true;
        for (int i = 0; i + 1 < itemCount(); ++i) {
            if (itemAt(i).source != group || !isChosen(i)) continue;
            const QString piece = member.text(itemAt(i).column);
            if (!first) text += itemAt(i).column == u"Instrumento" ? u", "_s : u" "_s;
            text += piece;
            first = false;
            empty = empty && piece.isEmpty();
        }
        members += text;
    }
    return empty ? QString() : members.join(u" * "_s);
}

} // namespace zv::listing
