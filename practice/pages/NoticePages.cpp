// SPDX-License-Identifier: MIT
#include "NoticePages.h"

#include "../Frame.h"
#include "../Html.h"

namespace qlm::practice {

Response Notice(const Visit& visit, const QString& title, const QString& text, int status) {
    const QString box = Fill(
        uR"(<div class="box notice"><h2>{title}</h2><div class="in"><p>{text}</p>
<ul class="links"><li><a href="{home}">Back to the start</a></li></ul></div></div>)",
        {{u"title", title}, {u"text", text}, {u"home", Url(Role::Home, u"/index.cfm?fuseaction=home"_s)}});
    Page page{.title = title, .main = box, .tab = {}};
    page.status = status;
    return Framed(visit, page);
}

Response NotFound(Visit& visit) {
    return Notice(visit, u"Nothing here"_s, u"Sorry, the page you wish to access cannot be found."_s, 404);
}

Response ServerErrorPage(const Visit& visit) {
    return Notice(visit, u"Server Error in '/' Application."_s,
                  u"Something has gone wrong on our side. Please come back in a while."_s, 500);
}

Response DailyLimitPage(const Visit& visit, bool friendRequest) {
    return Notice(visit, u"That's all for today"_s,
                  friendRequest ? u"You have reached the maximum limit of friend requests for the day."_s
                                : u"Sorry, you have exceeded your daily useage."_s);
}

Response UnexpectedError(Visit& visit) {
    return Notice(visit, u"Sorry!"_s, u"An unexpected error has occurred. We have made a note of it."_s);
}

Response WrongPage(const Visit& visit) {
    return Notice(visit, u"Spotlight of the week"_s,
                  u"Pepper Island, the film about a lighthouse and a very stubborn goat, opens on Friday."_s);
}

} // namespace qlm::practice
