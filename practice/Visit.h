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
    QList<qint64> shown;              ///< who stands on the page's list with a number that can be read there
    QList<qint64> shownByName;        ///< who stands there by a name alone

    /// Somebody stands on the page's list. `isNumbered` when the page gives the number away even of those
    /// whose address is a name.
    void Show(const Person& person, bool isNumbered = false) {
        (isNumbered || person.vanity.isEmpty() ? shown : shownByName).append(person.id);
    }
    bool IsPost() const { return request.method == u"POST"; }
    QString FullAddress() const { return Host(role) + request.path; }
};

using Handler = Response (*)(Visit&);

} // namespace qlm::practice
