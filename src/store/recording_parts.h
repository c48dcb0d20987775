// What a recording is made of: its composer, work and format, and the groups that the link tables tie to it. The reads
// leave the channels as they stand.
#pragma once

#include "store/channels.h"
#include <map>

namespace zv::store {

/// A record that a recording points to. All its texts are empty if its row is gone.
class PartRow {
  public:
    PartRow() = default;
    PartRow(const KindInfo& kind, std::vector<QString> texts) : kind_(&kind), texts_(std::move(texts)) {}

    bool exists() const { return kind_ != nullptr; }
    QString text(QStringView column) const;

  private:
    const KindInfo* kind_ = nullptr;
    std::vector<QString> texts_; ///< by position in the kind's fields
};

/// Column of the recording that holds the key of its composer, work or format.
QString recordingColumn(Kind part);
/// The table that ties recordings to conductors, orchestras or performers.
const LinkInfo& linkOf(Kind group);

/// The record of a kind with that key. A key of 0 or less has none.
PartRow readPart(Store& store, Kind kind, double key);
/// The records with those keys, in their order and as many; those whose row is gone are empty.
std::vector<PartRow> readParts(Store& store, Kind kind, const std::vector<double>& keys);
/// Keys of a recording's group, by rows of the link table.
std::vector<double> linkedKeys(Store& store, Kind group, double recording);

/// The parts of the recording on which its channel stands, each read when it is first asked for.
class RecordingParts {
  public:
    explicit RecordingParts(Store& store) : store_(store) {}

    /// To be called when the channel has moved.
    void forget();
    /// Composer, work or format.
    const PartRow& part(Kind kind);
    /// Conductors, orchestras or performers, one for each link.
    const std::vector<PartRow>& group(Kind kind);

  private:
    Store& store_;
    std::map<Kind, PartRow> parts_;
    std::map<Kind, std::vector<PartRow>> groups_;
};

} // namespace zv::store
