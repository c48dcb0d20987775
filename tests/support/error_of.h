// The run-time error that something raises.
#pragma once

#include "platform/base/runtime_error.h"

namespace zv::test {

/// The number of the run-time error that the work raises, 0 if it raises none.
template <class Work>
int errorOf(Work&& work) {
    try {
        work();
        return 0;
    } catch (const RuntimeError& error) {
        return error.number();
    }
}

} // namespace zv::test
