// The platform's numbers for what SQLite reports.
#pragma once

#include "platform/base/runtime_error.h"
#include <SQLiteCpp/Exception.h>

namespace zv::jet {

/// The run-time error of a failed SQLite call on the file of that path: 3026 disk full, 3027 read-only, 3260 locked,
/// 3022 duplicate key, 3051 not to be opened, 3049 damaged, not readable or anything else.
RuntimeError runtimeErrorOf(const SQLite::Exception& failure, const QString& path);

/// Runs work on the file of that path; what SQLite reports leaves as a RuntimeError.
template <class Work>
auto translated(const QString& path, Work&& work) {
    try {
        return work();
    } catch (const SQLite::Exception& failure) {
        throw runtimeErrorOf(failure, path);
    }
}

} // namespace zv::jet
