// Error 3075, with the place in the statement that could not be read.
#pragma once

#include "platform/base/runtime_error.h"
#include <string_view>

namespace zv::jet {

/// The error for what stands in a statement (UTF-8) from there on; a long rest is cut.
inline RuntimeError syntaxError(std::string_view message, std::string_view place) {
    constexpr qsizetype shown = 80;
    const auto text = [](std::string_view utf8) {
        return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    };
    return RuntimeError(3075, QStringLiteral("%1 in query expression '%2'.")
                                  .arg(text(message), text(place.substr(0, 4 * shown)).left(shown)));
}

} // namespace zv::jet
