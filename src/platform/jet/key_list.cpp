// The keys of a recordset's rows, in order.
#include "platform/jet/key_list.h"

#include <numeric>

namespace zv::jet {

void KeyList::append(std::int64_t key) {
    if (keys_.empty()) {
        if (count_ == 0) first_ = key;
        if (key == first_ + count_) {
            ++count_;
            return;
        }
        writeOut();
    }
    keys_.push_back(key);
    ++count_;
}

void KeyList::removeAt(int position) {
    if (keys_.empty() && (position == 0 || position == count_ - 1)) {
        if (position == 0) ++first_;
    } else {
        writeOut();
        keys_.erase(keys_.begin() + position);
    }
    --count_;
}

void KeyList::writeOut() {
    if (!keys_.empty()) return;
    keys_.resize(static_cast<std::size_t>(count_));
    std::iota(keys_.begin(), keys_.end(), first_);
}

} // namespace zv::jet
