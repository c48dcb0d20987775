// Medians of two pieces of work measured in turns, and the table that sets them side by side.
#pragma once

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <functional>
#include <vector>

namespace zv::bench {

using Work = std::function<void()>;

inline double secondsOf(const Work& work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double medianOf(std::vector<double> seconds) {
    const auto middle = seconds.begin() + static_cast<std::ptrdiff_t>(seconds.size() / 2);
    std::nth_element(seconds.begin(), middle, seconds.end());
    return *middle;
}

class Table {
  public:
    Table() { std::printf("%-42s %12s %14s %8s %8s\n", "work", "ours (us)", "yardstick (us)", "ratio", "target"); }

    /// Measures both in turns, so that a slow moment of the machine meets both alike.
    void compare(const char* name, int rounds, double target, const Work& ours, const Work& yardstick) {
        std::vector<double> first;
        std::vector<double> second;
        for (int i = 0; i < rounds; ++i) {
            first.push_back(secondsOf(ours));
            second.push_back(secondsOf(yardstick));
        }
        line(name, medianOf(first), medianOf(second), target);
    }

    void line(const char* name, double ours, double yardstick, double target) {
        const double ratio = ours / yardstick;
        const bool ok = ratio <= target;
        allHold_ = allHold_ && ok;
        std::printf("%-42s %12.1f %14.1f %8.2f %8.2f %s\n", name, ours * 1e6, yardstick * 1e6, ratio, target,
                    ok ? "ok" : "TOO SLOW");
    }

    bool allHold() const { return allHold_; }

  private:
    bool allHold_ = true;
};

} // namespace zv::bench
