// SPDX-License-Identifier: MIT
#include "RequestListDesigns.h"

namespace qlm::practice {

namespace {

constexpr RequestListDesign rows[] = {
    {.name = u"newer", .says = u"each is accepted in place"},
    {.name = u"older", .says = u"all that are ticked are accepted at once", .older = true},
    {.name = u"older-second", .says = u"the version before", .older = true, .isSecond = true},
    {.name = u"no-buttons", .says = u"no button that accepts", .hasButtons = false},
    {.name = u"older-no-buttons", .says = u"no button that accepts", .older = true, .hasButtons = false},
    {.name = u"no-numbers", .says = u"boxes that don't say whose they are", .hasNumbers = false},
    {.name = u"no-last", .says = u"no link to the last page", .hasLastLink = false},
    {.name = u"older-no-last", .says = u"no link to the last page", .older = true, .hasLastLink = false},
};

} // namespace

std::span<const RequestListDesign> RequestListDesigns() {
    return rows;
}

} // namespace qlm::practice
