#include "store/recording_parts.h"

#include "platform/base/text.h"
#include <QStringList>
#include <cmath>
#include <limits>

namespace zv::store {

using namespace Qt::StringLiterals;

namespace {

PartRow currentRow(jet::DataControl& rows, const KindInfo& kind) {
    std::vector<QString> texts;
    texts.reserve(kind.fields.size());
    for (const Field& field : kind.fields) texts.push_back(rows.boundText(field.column.toString()));
    return {kind, std::move(texts)};
}

/// Whether a number can be the key of a row.
bool isKey(double key) { return key > 0 && key <= std::numeric_limits<qint32>::max() && key == std::floor(key); }

QString keyTerm(const KindInfo& kind, double key) { return kind.key().column.toString() + u'=' + CStr(key); }

} // namespace

QString PartRow::text(QStringView column) const {
    if (!kind_) return {};
    const int at = kind_->indexOf(column);
    return at < 0 ? QString() : texts_[static_cast<std::size_t>(at)];
}

QString recordingColumn(Kind part) { return u"Id"_s + info(part).table.toString(); }

const LinkInfo& linkOf(Kind group) {
    for (const LinkInfo& link : links())
        if (link.fields[1].column == info(group).key().column) return link;
    Q_UNREACHABLE();
}

PartRow readPart(Store& store, Kind kind, double key) { return readParts(store, kind, {key}).front(); }

std::vector<PartRow> readParts(Store& store, Kind kind, const std::vector<double>& keys) {
    const KindInfo& of = info(kind);
    QStringList terms;
    for (const double key : keys)
        if (isKey(key)) terms += keyTerm(of, key);
    std::vector<PartRow> parts(keys.size());
    if (terms.isEmpty()) return parts;
    jet::DataControl rows = store.query(of.selectAll() + u" WHERE "_s + terms.join(u" OR "_s));
    std::map<double, PartRow> byKey;
    for (int i = 0; i < rows.Recordset().RecordCount(); ++i) {
        rows.Recordset().setAbsolutePosition(i);
        byKey.emplace(Val(rows.boundText(of.key().column.toString())), currentRow(rows, of));
    }
    for (std::size_t i = 0; i < keys.size(); ++i)
        if (const auto found = byKey.find(keys[i]); found != byKey.end()) parts[i] = found->second;
    return parts;
}

std::vector<double> linkedKeys(Store& store, Kind group, double recording) {
    const LinkInfo& link = linkOf(group);
    std::vector<double> keys;
    if (!isKey(recording)) return keys;
    jet::DataControl rows =
        store.query(u"SELECT * FROM "_s + link.table.toString() + u" WHERE IdGrabacion="_s + CStr(recording));
    for (int i = 0; i < rows.Recordset().RecordCount(); ++i) {
        rows.Recordset().setAbsolutePosition(i);
        keys.push_back(Val(rows.boundText(link.fields[1].column.toString())));
    }
    return keys;
}

void RecordingParts::forget() {
    parts_.clear();
    groups_.clear();
}

const PartRow& RecordingParts::part(Kind kind) {
    const auto found = parts_.find(kind);
    if (found != parts_.end()) return found->second;
    const double key = Val(store_.Data(Kind::Grabacion).boundText(recordingColumn(kind)));
    return parts_[kind] = readPart(store_, kind, key);
}

const std::vector<PartRow>& RecordingParts::group(Kind kind) {
    const auto found = groups_.find(kind);
    if (found != groups_.end()) return found->second;
    const double recording = Val(store_.Data(Kind::Grabacion).boundText(info(Kind::Grabacion).key().column.toString()));
    return groups_[kind] = readParts(store_, kind, linkedKeys(store_, kind, recording));
}

} // namespace zv::store
