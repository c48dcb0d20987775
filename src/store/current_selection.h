// The check that every Recording screen makes before it is filled: a recording is put together from whole tables, so no
// selection may hide a part of one. Also how the channels of the parts go back to whole tables.
#pragma once

#include "store/channels.h"
#include <vector>

namespace zv::store {

/// A kind that recordings are made of, in the words of the check.
struct PartKind {
    Kind kind;
    QStringView caption;
    QStringView onlyWith; ///< key of the current recording without which its selection does not count; empty for none
};

/// The six of them in the order of their tabs.
inline constexpr PartKind PartKinds[] = {
    {Kind::Compositor, u"Composer", u""},  {Kind::Obra, u"Work", u"IdObra"},
    {Kind::Orquesta, u"Orchestra", u""},   {Kind::Director, u"Conductor", u""},
    {Kind::Interprete, u"Performer", u""}, {Kind::Soporte, u"Format", u"IdSoporte"},
};

/// The selections of parts that do not show all records.
class CurrentSelection {
  public:
    /// Looks at the counters; a work or a format counts only if the current recording has one.
    explicit CurrentSelection(Store& store);

    /// No selection stands in the way.
    bool isClear() const { return marked_.empty(); }
    /// Kind of the first one that does.
    Kind first() const { return marked_.front()->kind; }
    /// The question, for a box of style 33.
    QString question() const;
    /// Closes them: their channels show all records, their counters say so, their memory is as at the start.
    void close();

  private:
    Store& store_;
    std::vector<const PartKind*> marked_;
};

/// Gives the channels of the parts and of the links their whole tables. A part's channel stands on the position that
/// its screens remember; one beyond the end becomes the last.
void showWholeTables(Store& store);

} // namespace zv::store
