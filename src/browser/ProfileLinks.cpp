// SPDX-License-Identifier: MIT
#include "browser/ProfileLinks.h"

#include "browser/ProfileLinkRules.h"
#include "core/App.h"
#include "core/Text.h"

#include <QSet>
#include <limits>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

bool ProfileLinks::IsProfileLink(const Element& link, bool clickedLink) {
    JudgedLink judged(m_app, link);
    const bool isProfile = IsProfileLink(judged, clickedLink);
    if (!judged.remember)
        m_app.state.blnRememberLink = false;
    return isProfile;
}

bool ProfileLinks::IsProfileLink(JudgedLink& link, bool clickedLink) {
    if (link.newLayout)
        for (const PageLinkRule& rule : PageLinkRules())
            if (rule.isPage(link))
                return rule.isProfile(link);
    if (link.HrefHas(u"http://{LinkRedirectHost}"))
        return false;
    const auto& recognition = RecognitionRules();
    if (std::none_of(recognition.begin(), recognition.end(), [&](LinkTest holds) { return holds(link); }))
        return false;
    return clickedLink || !IsExcluded(link);
}

bool ProfileLinks::IsExcluded(JudgedLink& link) {
    bool excluded = false;
    for (const ExclusionRule& rule : ExclusionRules())
        if ((!excluded || rule.mayForget) && rule.fits(link))
            excluded = true;
    return excluded;
}

qint16 ProfileLinks::CountProfileLinks(const QString& mode) {
    QSet<QString> addresses;
    const auto page = std::make_shared<PageFacts>();
    for (const Element& element : m_app.WebBrowser1().Document().Links()) {
        JudgedLink link(m_app, element, page);
        const QString href = link.facts.Href();
        if (addresses.contains(href))
            continue;
        const bool counts = mode == u"images"_s  ? Has(href, u"friendID="_s) && link.InnerHas(0, u"<img")
                            : mode == u"video"_s ? Has(href, u"ChannelID="_s)
                                                 : IsProfileLink(link, false);
        if (counts)
            addresses.insert(href);
    }
    return static_cast<qint16>(std::min<qsizetype>(addresses.size(), std::numeric_limits<qint16>::max()));
}

} // namespace qlm
