// SPDX-License-Identifier: MIT
#include "StatusDesigns.h"

namespace qlm::practice {

namespace {

constexpr StatusDesign rows[] = {
    {.name = u"newer", .says = u"posted in place", .hint = u"Share what you\u2019re into"},
    {.name = u"older", .says = u"one line; the page loads again", .older = true},
    {.name = u"late", .says = u"the box comes late", .isLate = true},
    {.name = u"older-late", .says = u"the box comes late", .older = true, .isLate = true},
    {.name = u"buttons", .says = u"another button to share beside the box", .hasOthers = true},
    {.name = u"older-buttons",
     .says = u"another button to share beside the box",
     .older = true,
     .hasOthers = true},
    {.name = u"no-hint", .says = u"says nothing of sharing", .hint = u""},
    {.name = u"older-no-hint", .says = u"says nothing of sharing", .older = true, .hint = u""},
    {.name = u"no-filter", .says = u"a stream that can't be narrowed down", .hasFilter = false},
    {.name = u"older-no-filter",
     .says = u"a stream that can't be narrowed down",
     .older = true,
     .hasFilter = false},
    {.name = u"no-share", .says = u"no button that posts", .hasShare = false},
    {.name = u"older-no-share", .says = u"no button that posts", .older = true, .hasShare = false},
    {.name = u"no-delete", .says = u"nothing can be deleted", .isDeletable = false},
    {.name = u"older-no-delete", .says = u"nothing can be deleted", .older = true, .isDeletable = false},
};

} // namespace

std::span<const StatusDesign> StatusDesigns() {
    return rows;
}

} // namespace qlm::practice
