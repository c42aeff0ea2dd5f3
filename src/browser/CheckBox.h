// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

namespace qlm {

inline bool IsChecked(const Element& box) {
    return !box.GetAttribute(QStringLiteral("checked")).isEmpty();
}

} // namespace qlm
