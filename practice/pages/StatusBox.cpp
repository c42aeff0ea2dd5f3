// SPDX-License-Identifier: MIT
#include "StatusBox.h"

#include "../Editors.h"
#include "../FormChoice.h"
#include "../Frame.h"
#include "../Html.h"
#include "../MiniProfile.h"
#include "NoticePages.h"
#include "WritingVisit.h"

#include <iterator>

namespace qlm::practice {

namespace {

constexpr qsizetype mostLetters = 140;

constexpr QStringView doings[] = {u"has a new picture", u"is in a good mood today",
                                  u"wrote about last weekend", u"changed the headline",
                                  u"joined a group about kites"};

// The bare host shows the older page.
bool IsOlder(const Visit& visit) {
    return visit.role == Role::Home && visit.address.segments.isEmpty();
}

QString PageAddress(const Visit& visit) {
    return Url(Role::Home, IsOlder(visit) ? u"/"_s : u"/index.cfm?fuseaction=home&f=7"_s);
}

const StatusDesign& DesignOf(const Visit& visit) {
    const auto designs = StatusDesigns();
    const StatusDesign* wanted = FormNamed(designs, visit.world.statuses.FormOf(visit.account->id));
    if (wanted && wanted->older == IsOlder(visit))
        return *wanted;
    return *std::ranges::find(designs, IsOlder(visit), &StatusDesign::older);
}

class StatusVisit : WritingVisit {
public:
    explicit StatusVisit(Visit& visit)
        : WritingVisit(visit, visit.world.statuses, u"status"_s, u"Status"_s) {}

    StatusAnswer Take(const QString& text);
    StatusAnswer Delete(int number);

private:
    StatusAnswer Refuse(const QString& outcome, const QString& notice);
};

StatusAnswer StatusVisit::Refuse(const QString& outcome, const QString& notice) {
    Write(outcome);
    return {std::nullopt, notice};
}

StatusAnswer StatusVisit::Take(const QString& text) {
    if (auto refusal = NumberedRefusal())
        return {refusal, {}};
    if (LimitReached())
        return Refuse(u"limit"_s, u"That's all for today. Come back tomorrow."_s);
    if (m_answer.way == Answer::Way::RefusedAfter)
        return Refuse(m_answer.word, TextOf(m_answer, m_person->name));
    if (text.trimmed().isEmpty())
        return Refuse(u"empty"_s, u"Please write something first."_s);
    const Post& post = m_visit.world.posts.Add({.kind = Post::Kind::Status,
                                                .author = m_sender,
                                                .subject = {},
                                                .body = text.left(mostLetters),
                                                .when = m_visit.world.now()});
    Deliver(u"posted"_s, u"posted-status"_s, {post.body}, QString::number(post.number));
    return {Redirect(PageAddress(m_visit)), {}};
}

StatusAnswer StatusVisit::Delete(int number) {
    const auto gone = m_visit.world.posts.Take(m_sender, number);
    if (!gone)
        return {std::nullopt, u"There is no such update."_s};
    const QString word = gone->kind == Post::Kind::Status ? u"deleted-status"_s : u"deleted-update"_s;
    m_visit.world.journal.Write(u"%1 %2 %3 "_s.arg(word, Who()).arg(number) + Quoted(gone->body));
    return {Redirect(PageAddress(m_visit)), {}};
}

QString TextField(const StatusDesign& design) {
    return design.older ? u"<input type=\"text\" id=\"spStatus\" name=\"spStatus\" value=\"\">"_s
                        : u"<textarea id=\"spStatus\" name=\"spStatus\" rows=\"2\" cols=\"60\"></textarea>"_s;
}

// The one that posts is known by its id.
QString ShareButtons(const StatusDesign& design) {
    QString buttons;
    if (design.hasOthers)
        buttons +=
            u"<button class=\"button plain\" id=\"sharePage\" name=\"sharePage\" value=\"1\">Share</button> "
            "<button type=\"button\" class=\"button plain\" id=\"submitBtnPicture\">Add a picture</button> "_s;
    if (!design.hasShare)
        return buttons;
    return buttons + (design.older ? uR"(<button class="button" id="status_submitBtn">Share</button>)"_s
                                   : uR"-(<button type="button" class="button" id="status_submitBtn"
 onclick="shareInPlace(this)" data-on-click="submit #statusForm">Share</button>)-"_s);
}

QString Form(const Visit& visit, const StatusDesign& design) {
    return Fill(uR"(<form method="post" action="{action}" id="statusForm">
<p><label class="whole" for="spStatus">{hint}</label></p><p>{!field}</p><p class="go">{!buttons}</p></form>)",
                {{u"action", PageAddress(visit)},
                 {u"hint", design.hint.toString()},
                 {u"field", TextField(design)},
                 {u"buttons", ShareButtons(design)}});
}

// Readers of the page wait for the box as an element.
QString Box(const Visit& visit, const StatusDesign& design, const QString& notice) {
    const QString form = Form(visit, design);
    const QString late =
        Fill(uR"(<div id="late" data-on-load="after 2s append #late {form}" data-field="{form}"></div>)",
             {{u"form", form}});
    return Fill(
        uR"(<div class="box compose" id="statusBox"><h2>Status</h2><div class="in">{!notice}{!form}</div></div>)",
        {{u"notice", notice.isEmpty() ? QString() : Fill(u"<p class=\"warn\">{n}</p>", {{u"n", notice}})},
         {u"form", design.isLate ? late : form}});
}

// What stands in the script is put on the page when somebody wants to delete something.
QString Question(const StatusDesign& design) {
    return design.older ? uR"(<p class="warn">Are you sure you want to delete this update?
<input type="button" class="button yes" value="Yes" data-on-click="submit #deleteForm">
<input type="button" class="button plain no" value="No"></p>)"_s
                        : uR"(<p class="warn">Delete it for good?
<button type="button" class="button yes" data-on-click="submit #deleteForm">OK</button>
<button type="button" class="button plain no">Cancel</button></p>)"_s;
}

QString DeleteLink(const StatusDesign& design, const Post& post) {
    return Fill(uR"-(<a href="javascript:void(0)" onclick="askDelete(this, {number}, {older})"
 data-on-click="set #deleteNumber value {number}; append #ask {question}"><span>{caption}</span></a>)-",
                {{u"number", QString::number(post.number)},
                 {u"older", design.older ? u"true"_s : u"false"_s},
                 {u"question", Question(design)},
                 {u"caption", design.older ? u"Delete This Update"_s : u"Delete this update"_s}});
}

QString OwnPost(const Visit& visit, const StatusDesign& design, const Post& post) {
    const Person& me = *visit.world.people.Find(post.author);
    return Fill(
        uR"(<div class="update"><div class="pic"><img src="{picture}" width="36" height="36" alt=""></div>
<p><b>{name}</b> {body} <span class="when">{when}</span> {!delete}</p></div>
)",
        {{u"picture", PictureUrl(me)},
         {u"name", FirstName(me)},
         {u"body", post.body},
         {u"when", post.when.toString(u"yyyy-MM-dd hh:mm"_s)},
         {u"delete", design.isDeletable ? DeleteLink(design, post) : QString()}});
}

QString OwnPosts(const Visit& visit, const StatusDesign& design, Post::Kind kind) {
    QString lines;
    for (const Post& post : visit.world.posts.Of(visit.account->id, kind))
        lines += OwnPost(visit, design, post);
    return lines;
}

QString FriendsUpdates(const World& world, qint64 owner) {
    QString lines;
    const auto friends = world.friends.Slice(world.people, owner, 1, int(std::size(doings)));
    for (qsizetype i = 0; i < friends.size(); ++i)
        lines += Fill(
            uR"(<div class="update"><div class="pic"><img src="{picture}" width="36" height="36" alt=""></div>
<p><a href="{url}">{name}</a> {doing}</p></div>
)",
            {{u"picture", PictureUrl(*friends[i])},
             {u"url", ProfileUrl(*friends[i])},
             {u"name", friends[i]->name},
             {u"doing", doings[i].toString()}});
    return lines;
}

bool ShowsOwnAlone(const Visit& visit) {
    return visit.address.query.value(u"friend"_s) == u"1";
}

// The own changes of a profile come before what was written, unless one asks for that alone.
QString Entries(const Visit& visit, const StatusDesign& design) {
    const bool isOfStatuses = design.older || visit.address.query.value(u"kind"_s) == u"status";
    if (!ShowsOwnAlone(visit))
        return FriendsUpdates(visit.world, visit.account->id);
    return (isOfStatuses ? QString() : OwnPosts(visit, design, Post::Kind::Change)) +
           OwnPosts(visit, design, Post::Kind::Status);
}

// Without scripts a grey stream is put in place of this one. Its class must not stand in the page's markup
// before.
QString FilterLink(const QString& caption, const QString& url) {
    return Fill(uR"-(<li><a href="{url}" onclick="return showStream(this)" data-on-click="remove #stream;
 append #streamHolder &lt;div id=stream
 class='streamContainer&amp;#32;listViewContainer&amp;#32;MSIcon&amp;#32;loadingIconWhiteLight'&gt;&lt;/div&gt;;
 after 800ms goto {url}">{caption}</a></li>)-",
                {{u"url", url}, {u"caption", caption}});
}

QString Filter(const Visit& visit, const StatusDesign& design) {
    const QString url = PageAddress(visit);
    if (design.older)
        return Fill(
            uR"-(<form method="get" action="{url}" id="streamFilter"><label for="filterStreamByFriend">Show:</label>
<select id="filterStreamByFriend" name="friend" onchange="this.form.submit()" data-on-change="submit #streamFilter">
<option value="0">Everybody</option><option value="1"{!me}>Just Me</option></select></form>)-",
            {{u"url", url}, {u"me", ShowsOwnAlone(visit) ? u" selected"_s : QString()}});
    const QString whose = ShowsOwnAlone(visit) ? url + u"&friend=1"_s : url;
    return u"<ul class=\"filter\">"_s + FilterLink(u"Everybody"_s, url) +
           FilterLink(u"Just me"_s, url + u"&friend=1"_s) + FilterLink(u"All updates"_s, whose) +
           FilterLink(u"Status"_s, whose + u"&kind=status"_s) + u"</ul>"_s;
}

QString Stream(const Visit& visit, const StatusDesign& design) {
    const QString entries = Entries(visit, design);
    return Fill(uR"(<div class="box" id="streamBox"><h2>Stream</h2><div class="in">{!filter}
<div id="ask"></div><div id="streamHolder"><div id="stream" class="streamContainer listViewContainer MSIcon">
{!entries}</div></div>
<form method="post" action="{action}" id="deleteForm">
<input type="hidden" id="deleteNumber" name="deleteUpdate" value="">
</form></div></div><script type="text/template" id="question">{!question}</script>)",
                {{u"filter", design.hasFilter ? Filter(visit, design) : QString()},
                 {u"entries", entries.isEmpty() ? u"<p class=\"empty\">Nothing yet.</p>"_s : entries},
                 {u"action", PageAddress(visit)},
                 {u"question", Question(design)}});
}

} // namespace

QString StatusMarkup(const Visit& visit, const QString& notice) {
    const StatusDesign& design = DesignOf(visit);
    return Box(visit, design, notice) + Stream(visit, design) + FormScripts();
}

StatusAnswer TakeStatus(Visit& visit) {
    if (!visit.IsPost())
        return {};
    if (visit.form.contains(u"deleteupdate"_s))
        return StatusVisit(visit).Delete(visit.form.value(u"deleteupdate"_s).toInt());
    if (visit.form.contains(u"sharepage"_s))
        return {Notice(visit, u"Share"_s, u"Tell a friend about the practice site."_s), {}};
    if (visit.form.contains(u"spstatus"_s))
        return StatusVisit(visit).Take(visit.form.value(u"spstatus"_s));
    return {};
}

} // namespace qlm::practice
