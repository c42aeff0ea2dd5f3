// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

#include <optional>

namespace qlm::practice {

enum class Design { Newer, Older };

/// The page with the drawn word that only a person can read. `refused` says that an answer was wrong.
Response CaptchaPage(Visit& visit, qint64 target, Design design, const QString& intro, bool refused);

/// The image and the field for its word, for a form of another page.
QString CaptchaFields(Visit& visit, qint64 target, Design design, bool refused);

/// What was typed under the image; nothing when the visit sends no answer.
std::optional<QString> SentAnswer(const Visit& visit);

/// The image of a CAPTCHA; the address holds target and round.
Response CaptchaImage(Visit& visit);

/// A CAPTCHA in front of any other page, answered at that page's own address.
/// Nothing when the visitor has just answered it: the page itself is due then.
std::optional<Response> CaptchaGate(Visit& visit);

} // namespace qlm::practice
