// A layer below SQLite that makes the disk fail: full, broken or read-only, from the k-th write on.
#pragma once

#include <memory>

namespace zv::test {

enum class Fault { NoSpace, IoError, ReadOnly };

/// While one lives, all files that SQLite opens go through it. One at a time; connections opened under it must be
/// closed before it goes.
class FaultVfs {
  public:
    FaultVfs();
    ~FaultVfs();
    FaultVfs(const FaultVfs&) = delete;
    FaultVfs& operator=(const FaultVfs&) = delete;

    /// From now on: that many changes of files pass, then the next ones fail: that many, or all of them. Changes are
    /// writes, cuts, syncs and removals; on a disk that is read-only, the making of new files. A full disk fails its
    /// writes as full and the rest as broken.
    void failAfter(int passing, Fault fault, int failures = 1 << 30);
    /// The disk works again.
    void heal();
    /// Whether a change has failed since failAfter.
    bool hasFailed() const;

    struct State;

  private:
    std::unique_ptr<State> state_;
};

} // namespace zv::test
