#include "store/current_selection.h"

#include "platform/base/text.h"
#include "store/messages.h"
#include <algorithm>

namespace zv::store {

using namespace Qt::StringLiterals;

namespace {

bool isMarked(Store& store, const PartKind& part) {
    const KindMemory& memory = store.memory.of(part.kind);
    if (memory.Cont == memory.ContSel) return false;
    return part.onlyWith.isEmpty() || Val(store.Data(Kind::Grabacion).boundText(part.onlyWith.toString())) > 0;
}

} // namespace

CurrentSelection::CurrentSelection(Store& store) : store_(store) {
    for (const PartKind& part : PartKinds)
        if (isMarked(store, part)) marked_.push_back(&part);
}

QString CurrentSelection::question() const {
    QString text = u"\r    "_s + MensaSeleccionActual + u"\r\r"_s;
    for (const PartKind* part : marked_) text += u"    - "_s + part->caption.toString() + u'\r';
    return text + u"\r    "_s + MensaNoMuestra + u"   \r\r"_s;
}

void CurrentSelection::close() {
    for (const PartKind* part : marked_) {
        jet::DataControl& channel = store_.Data(part->kind);
        channel.RecordSource = info(part->kind).selectAll();
        channel.Refresh();
        KindMemory& memory = store_.memory.of(part->kind);
        memory.ContSel = memory.Cont;
        memory.ContFil = 0;
        memory.MemoSel.reset();
    }
}

void showWholeTables(Store& store) {
    // By channel, which is the order of the kinds.
    for (const Kind kind :
         {Kind::Compositor, Kind::Obra, Kind::Director, Kind::Orquesta, Kind::Soporte, Kind::Interprete}) {
        jet::DataControl& channel = store.Data(kind);
        channel.RecordSource = info(kind).selectAll();
        channel.Refresh();
        jet::Recordset& rows = channel.Recordset();
        if (rows.RecordCount() == 0) continue;
        rows.MoveLast();
        qint32& Posicion = store.memory.of(kind).Posicion;
        if (Posicion > rows.RecordCount() || Posicion < 0) Posicion = rows.RecordCount();
        rows.setAbsolutePosition(std::max(Posicion, 1) - 1);
    }
    for (const LinkInfo& link : links()) {
        jet::DataControl& channel = store.Data(1, link.channel);
        channel.RecordSource = u"SELECT * FROM "_s + link.table.toString();
        channel.Refresh();
    }
}

} // namespace zv::store
