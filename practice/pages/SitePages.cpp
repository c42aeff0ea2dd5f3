// SPDX-License-Identifier: MIT
#include "SitePages.h"

#include "NoticePages.h"

namespace qlm::practice {

Response SitePage(Visit& visit) {
    return visit.address.segments.value(0).compare(u"music"_s, Qt::CaseInsensitive) == 0
               ? Notice(visit, u"Music"_s, u"Charts, artists and shows are among the lists."_s)
               : Notice(visit, u"Press room"_s, u"Nobody has written about the practice site yet."_s);
}

} // namespace qlm::practice
