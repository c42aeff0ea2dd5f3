// SPDX-License-Identifier: MIT
#pragma once

#include "browser/LinkFacts.h"

#include <vector>

namespace qlm {

class App;

// A link under judgement: its facts and those of the page it stands on.
struct JudgedLink {
    JudgedLink(App& theApp, const Element& element,
               std::shared_ptr<PageFacts> page = std::make_shared<PageFacts>());

    App& app;
    LinkFacts facts;
    QString address; // of the page in WebBrowser1
    bool newLayout;
    // Cleared for page furniture: the same address may stand elsewhere on the page as a profile.
    bool remember = true;

    bool At(const char16_t* part) const;
    bool HrefHas(const char16_t* part);
    bool TextHas(int ancestor, const char16_t* part);
    bool InnerHas(int ancestor, const char16_t* part);
    bool OuterHas(int ancestor, const char16_t* part);
    bool OuterHasExact(int ancestor, const char16_t* part);
    bool TextBegins(int ancestor, const char16_t* part);
    bool TextIs(const char16_t* text);
};

// A page with a rule of its own: the first row whose page it is decides for good.
struct PageLinkRule {
    bool (*isPage)(const JudgedLink&);
    bool (*isProfile)(JudgedLink&);
};
const std::vector<PageLinkRule>& PageLinkRules();

// The generic recognition: a profile link when any row holds.
using LinkTest = bool (*)(JudgedLink&);
const std::vector<LinkTest>& RecognitionRules();

// What is no profile link although it looks like one.
struct ExclusionRule {
    LinkTest fits;
    bool mayForget; // has a say in whether the link is remembered, so it is asked even after one that fits
};
const std::vector<ExclusionRule>& ExclusionRules();

// The address ends with "/comments" or "/notifications".
bool IsCommentsOrNotificationsAddress(const QString& address);
// "http://{SiteRootHost}/" and a name.
bool IsVanityAddress(App& app, const QString& href);
// What stands behind the host: behind the first "/" from the eighth character on.
QString VanityName(const QString& href);
// A vanity address whose name is no page of the site.
bool IsVanityProfile(App& app, const QString& href);

} // namespace qlm
