// SPDX-License-Identifier: MIT
#pragma once

#include "Address.h"
#include "Exchange.h"
#include "SiteHosts.h"
#include "World.h"

namespace qlm::practice {

/// One request on its way through the site, with what a page needs to answer it.
struct Visit {
    World& world;
    const Request& request;
    Role role;
    Address address;
    Fields form;                      ///< what was posted
    QString session;                  ///< the cookie's value, "" without one
    const Account* account = nullptr; ///< who is signed in
    QStringList captures;             ///< what the route's placeholders stand for, in order
    bool captchaForced = false;       ///< a fault wants a CAPTCHA before anything happens

    bool IsPost() const { return request.method == u"POST"; }
    QString FullAddress() const { return Host(role) + request.path; }
};

using Handler = Response (*)(Visit&);

} // namespace qlm::practice
