// SPDX-License-Identifier: MIT
#include "SiteHosts.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

struct HostRow {
    Role role;
    QLatin1StringView name;
};

constexpr std::array hostRows{
    HostRow{Role::SiteRoot, "www"_L1},
    HostRow{Role::Home, "home"_L1},
    HostRow{Role::Login, "login"_L1},
    HostRow{Role::Messaging, "messaging"_L1},
    HostRow{Role::Friends, "friends"_L1},
    HostRow{Role::Profile, "profile"_L1},
    HostRow{Role::Comment, "comment"_L1},
    HostRow{Role::Groups, "groups"_L1},
    HostRow{Role::Events, "events"_L1},
    HostRow{Role::Bulletins, "bulletins"_L1},
    HostRow{Role::SearchService, "searchservice"_L1},
    HostRow{Role::BrowseUsers, "browseusers"_L1},
    HostRow{Role::Video, "vids"_L1},
    HostRow{Role::Music, "music"_L1},
    HostRow{Role::TopArtists, "topartists"_L1},
    HostRow{Role::Forum, "forum"_L1},
    HostRow{Role::School, "schools"_L1},
    HostRow{Role::Creative, "creative"_L1},
    HostRow{Role::Invite, "invites"_L1},
    HostRow{Role::Mobile, "m"_L1},
    HostRow{Role::LinkRedirect, "links"_L1},
    HostRow{Role::WebSearch, "websearch"_L1},
    HostRow{Role::Product, "product"_L1},
    HostRow{Role::ProductAlternate, "product2"_L1},
    HostRow{Role::Control, "control"_L1},
};

} // namespace

QString SiteDomain() {
    return u"myspace.example.com"_s;
}

QString Host(Role role) {
    const auto row =
        std::find_if(hostRows.begin(), hostRows.end(), [&](const HostRow& r) { return r.role == role; });
    if (row == hostRows.end())
        throw std::logic_error("role without a host");
    return row->name + u'.' + SiteDomain();
}

QString Url(Role role, const QString& path) {
    return u"http://"_s + Host(role) + path;
}

std::optional<Role> RoleOf(const QString& host) {
    const QString bare = host.section(u':', 0, 0).toLower();
    for (const HostRow& row : hostRows)
        if (bare == row.name + u'.' + SiteDomain())
            return row.role;
    return std::nullopt;
}

} // namespace qlm::practice
