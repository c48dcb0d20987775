// The keys of a recordset's rows, in order. Rows without gaps in their keys take no memory.
#pragma once

#include <cstdint>
#include <vector>

namespace zv::jet {

class KeyList {
  public:
    KeyList() = default;
    /// The keys first, first + 1, ..., as many as told.
    KeyList(std::int64_t first, int count) : first_(first), count_(count) {}
    explicit KeyList(std::vector<std::int64_t> keys) : count_(static_cast<int>(keys.size())), keys_(std::move(keys)) {}

    int size() const { return count_; }
    std::int64_t at(int position) const {
        return keys_.empty() ? first_ + position : keys_[static_cast<std::size_t>(position)];
    }
    void append(std::int64_t key);
    void removeAt(int position);

  private:
    void writeOut();

    std::int64_t first_ = 0;
    int count_ = 0;
    std::vector<std::int64_t> keys_; ///< empty while the keys run without gaps
};

} // namespace zv::jet
