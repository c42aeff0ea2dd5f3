// SPDX-License-Identifier: MIT
#include "SignInDetours.h"

#include "../Frame.h"
#include "../Html.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace qlm::practice {

namespace {

struct DetourRow {
    FaultKind kind;
    QStringView title;
    QStringView text;
    QStringView link;
    QStringView path; // of the link, at the site's root
};

constexpr std::array detourRows{
    DetourRow{FaultKind::Advert, u"Today only", u"The kite shop has a sale.", u"Skip this Advertisement",
              u"/home"},
    DetourRow{FaultKind::Moving, u"A note to everybody",
              u"We are moving MySpace music players and video players to a new place.", u"Go on", u"/home"},
    DetourRow{FaultKind::Foreign, u"Willkommen", u"Mitglieder-Login", u"Hier anmelden", u"/home"},
    DetourRow{FaultKind::Return, u"That took a while", u"Your visit has come to an end.",
              u"Return to MySpace", u"/home"},
    DetourRow{FaultKind::Welcome, u"Welcome back", u"Hello! You are logged in.", u"Go on", u"/home"},
    DetourRow{FaultKind::Cached, u"Hello again", u"View My: Profile | Friends | Comments", u"Sign Out",
              u"/signout?from=cache"},
    DetourRow{FaultKind::Birthday, u"Birthdays", u"You can allow others to see when it's my birthday.",
              u"Not now", u"/home"},
    DetourRow{FaultKind::Certificate, u"A warning",
              u"There is a problem with this site's security certificate.", u"Go on all the same", u"/home"},
};

} // namespace

Response SignInDetour(Visit& visit, FaultKind kind, Handler handler) {
    const auto row = std::find_if(detourRows.begin(), detourRows.end(),
                                  [&](const DetourRow& candidate) { return candidate.kind == kind; });
    if (row == detourRows.end())
        throw std::logic_error("a fault that is no detour");
    const QString box = Fill(uR"(<div class="box notice"><h2>{title}</h2><div class="in"><p>{text}</p>
<ul class="links"><li><a href="{url}">{link}</a></li></ul></div></div>)",
                             {{u"title", row->title.toString()},
                              {u"text", row->text.toString()},
                              {u"url", Url(Role::SiteRoot, row->path.toString())},
                              {u"link", row->link.toString()}});
    Response page = Framed(visit, {.title = row->title.toString(), .main = box, .tab = {}});
    if (kind == FaultKind::Welcome)
        for (const auto& header : handler(visit).headers)
            if (header.first == u"Set-Cookie")
                page.headers.append(header);
    return page;
}

} // namespace qlm::practice
