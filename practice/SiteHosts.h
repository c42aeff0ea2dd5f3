// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <optional>

namespace qlm::practice {

/// Every host that the practice site plays.
enum class Role {
    SiteRoot,
    Home,
    Login,
    Messaging,
    Friends,
    Profile,
    Comment,
    Groups,
    Events,
    Bulletins,
    SearchService,
    BrowseUsers,
    Video,
    Music,
    TopArtists,
    Forum,
    School,
    Creative,
    Invite,
    Mobile,
    LinkRedirect,
    WebSearch,
    Product,
    ProductAlternate,
    Control,
};

/// The domain that all hosts share; session cookies are set for it.
QString SiteDomain();

/// The bare host name of a role.
QString Host(Role role);

/// "http://" + host + `path`; `path` begins with "/".
QString Url(Role role, const QString& path);

/// The role of a host name, without regard to letter case or a port; nothing for a strange host.
std::optional<Role> RoleOf(const QString& host);

} // namespace qlm::practice
