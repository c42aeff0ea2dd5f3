// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// What stands above somebody's comments for whoever is signed in: the box for a new one.
struct CommentBox {
    std::optional<Response> page; ///< stands in place of the whole page
    QString markup;
};

/// Takes what was sent from it, if the visit brings something. Empty for who isn't signed in.
CommentBox BoxForComment(Visit& visit, const Person& owner);

} // namespace qlm::practice
