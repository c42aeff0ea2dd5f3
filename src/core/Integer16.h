// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>
#include <limits>
#include <stdexcept>

namespace qlm {

// The value as a 16-bit integer; throws "Overflow" for one beyond.
inline qint16 InInteger(qint64 value) {
    if (value < std::numeric_limits<qint16>::min() || value > std::numeric_limits<qint16>::max())
        throw std::overflow_error("Overflow");
    return static_cast<qint16>(value);
}

} // namespace qlm
