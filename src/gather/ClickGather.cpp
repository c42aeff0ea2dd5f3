// SPDX-License-Identifier: MIT
#include "gather/ClickGather.h"

#include "browser/NavigationGuard.h"
#include "browser/ProfileLinks.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatheredList.h"
#include "gather/IdResolution.h"
#include "steps/BrowserHost.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

ClickGather::ClickGather(App& app) : m_app(app) {
    app.Get<BrowserHost>().gatherClicked = [this](const QString& url) { return GatherClickedProfile(url); };
}

void ClickGather::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debuggather.txt"_s, text);
}

bool ClickGather::GatherClickedProfile(const QString& url) {
    Trace(u"CLICK-GATHER1 - "_s + url);
    const NavigationGuard guard(m_app.WebBrowser1());
    const Element link = FindProfileLink(url);
    if (link.IsNull())
        return false;
    Trace(u"CLICK-GATHER4 - "_s + link.Href());
    AddClickedProfile(link);
    return true;
}

Element ClickGather::FindProfileLink(const QString& url) {
    Trace(u"CLICK-GATHER2"_s);
    for (const Element& link : m_app.WebBrowser1().Document().Links())
        if (link.Href().toLower() == url.toLower()) {
            Trace(u"CLICK-GATHER3 - "_s + link.Href());
            if (m_app.Get<ProfileLinks>().IsProfileLink(link, true))
                return link;
        }
    return {};
}

void ClickGather::AddClickedProfile(const Element& link) {
    const RunMark mark = m_app.waiting.Mark();
    const QString id = m_app.Get<IdResolution>().GetFriendIDFromLink(link);
    // A run that was begun while the profile was fetched has nothing to do with it.
    if (!m_app.waiting.IsCurrent(mark))
        return;
    Trace(u"CLICK-GATHER5 - "_s + id);
    if (!IsNumeric(id)) {
        m_app.ShowMessage(
            u"An error has occurred on MySpace's end while trying to retrieve the ID. Please try again."_s);
        return;
    }
    const bool known = m_app.Get<GatheredList>().IsInList(id, false);
    Trace(u"CLICK-GATHER6 - "_s + FromBoolean(known));
    if (known)
        return;
    Trace(u"CLICK-GATHER7 - ADD TO LIST"_s);
    m_app.Get<GatheredList>().Add(id, u"WebBrowser1_BeforeNavigate2"_s);
}

} // namespace qlm
