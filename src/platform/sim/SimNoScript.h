// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// Where scripts run, what stands in a NOSCRIPT is text, not markup. The parser knows no scripts; it is told
// by another element whose content it takes for text, which carries this attribute.
inline constexpr auto NoScriptMark = "quillmere-noscript";

// The same page with its NOSCRIPT elements written so.
QString WithNoScriptAsText(const QString& html);

} // namespace qlm
