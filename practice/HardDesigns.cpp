// SPDX-License-Identifier: MIT
#include "Designs.h"
#include "Entries.h"
#include "pages/HardPages.h"

namespace qlm::practice {

namespace {

constexpr ListDesign rows[] = {
    {.name = u"hard-links",
     .title = u"Twenty thousand links",
     .role = Role::SiteRoot,
     .path = u"hard/links",
     .perPage = 20000,
     .entries = 30,
     .handler = ManyLinksPage},
    {.name = u"hard-bare",
     .title = u"Links without addresses",
     .role = Role::SiteRoot,
     .path = u"hard/bare",
     .page = u"?x=1&page=",
     .entry = BareLinkEntry,
     .head = u"<p class=\"slice\">Showing {from}-{to} of {count}</p>",
     .next = {u"Next \u203A"}},
    {.name = u"hard-frames",
     .title = u"Frames within frames",
     .role = Role::SiteRoot,
     .path = u"hard/frames",
     .page = u"?x=1&page=",
     .perPage = 12,
     .entries = 30,
     .entry = NestedEntry,
     .head = u"<p class=\"slice\">Showing {from}-{to} of {count}</p>",
     .next = {u"Next \u203A"}},
    {.name = u"hard-names",
     .title = u"Names in other writing",
     .role = Role::SiteRoot,
     .path = u"hard/names",
     .page = u"?x=1&page=",
     .entry = StrangeNameEntry,
     .head = u"<p class=\"slice\">Showing {from}-{to} of {count}</p>",
     .next = {u"Next \u203A"}},
    {.name = u"hard-silent",
     .title = u"Profiles that never tell their number",
     .role = Role::SiteRoot,
     .path = u"hard/silent",
     .entries = 3,
     .handler = SilentProfilesPage},
    {.name = u"hard-circle",
     .title = u"A next page that is the same again",
     .role = Role::SiteRoot,
     .path = u"hard/circle",
     .entries = 20,
     .handler = CirclePage},
};

} // namespace

std::span<const ListDesign> HardDesigns() {
    return rows;
}

} // namespace qlm::practice
