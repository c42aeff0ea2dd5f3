// SPDX-License-Identifier: MIT
#include "browser/PageView.h"
#include "core/App.h"
#include "gather/Pager.h"

#include <vector>

namespace qlm {

namespace {

const std::vector<PageMarks>& NextPageSigns() {
    using enum In;
    static const std::vector<PageMarks> signs{
        {{Markup, u"gotopage"}},
        {{Markup, u"javascript:nextpage"}},
        {{Markup, u"javascript: __msgPostRedirect('Page:"}},
        {{Text, u"next >"}},
        {{Text, u"next ›"}},
        {{Text, u"next »"}},
        {{Address, u"http://{SearchServiceHost}/index.cfm?fuseaction=sitesearch.results"}, {Link, u"&pg="}},
        {{Address, u"/music/charts"}, {Text, u"more"}},
        {{Address, u"http://{FriendsHost}/index.cfm?fuseaction=user.viewfriends"}, {Link, u"&p="}},
        {{Link, u"requestlist.GoToPage("}},
        {{Link, u"gotonextpage()"}},
        {{Markup, u"pageBtn nextBtn"}},
        {{Element, u"nextPage"}},
    };
    return signs;
}

} // namespace

// A page that is still to come has none, and is not waited for.
bool Pager::ShowsNextPageSign() {
    const Document document = m_app.WebBrowser1().Document();
    return document && !document.Body().IsNull() && ShownPage(m_app).IsOneOf(NextPageSigns());
}

} // namespace qlm
