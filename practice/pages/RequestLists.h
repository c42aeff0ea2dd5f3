// SPDX-License-Identifier: MIT
#pragma once

#include "../Visit.h"

namespace qlm::practice {

/// One page of a list of requests.
struct RequestPage {
    QList<qint64> ids;
    int page = 1;
    int pages = 1;
    int first = 0; ///< counted from 0
    int count = 0;
    QString address; ///< what a page's number follows

    QString Slice() const {
        return u"Listing %1-%2 of %3"_s.arg(first + 1).arg(first + ids.size()).arg(count);
    }
};
/// `key` names the page's number in the address.
RequestPage PageOf(const Visit& visit, const QList<qint64>& all, int perPage, const QString& key = u"page"_s);

/// What stands in for the script of the box that ticks all others.
QString ClicksOnAll(const RequestPage& page);

/// What the link to the last page calls.
enum class LastLink { None, PostBack, GoToPage };

/// Takes a request of the account back; false when it isn't pending.
bool CancelRequest(Visit& visit, qint64 target);

/// Which page it is of how many, and the way to the others; "" when there is only one.
QString RequestPager(const RequestPage& page, LastLink how);

QString RequestScripts();

} // namespace qlm::practice
