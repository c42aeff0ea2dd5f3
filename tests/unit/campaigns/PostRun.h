// SPDX-License-Identifier: MIT
#pragma once

#include "BrowserTest.h"
#include "campaigns/Campaigns.h"
#include "campaigns/OpenNotes.h"
#include "gather/GatheredList.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// An account with a bulletin and a status update to post, every minute, and the site's pages that take and
// delete them.
class PostRun : public BrowserTest {
protected:
    explicit PostRun(bool newLayout) {
        State().blnNewLayout = newLayout;
        State().MyProfileID = u"12345"_s;
        SetBody(Site(u"bulletins/new"_s), newLayout ? NewForm() : OldForm());
        SetBody(Site(u"bulletins/posted"_s), u"Your bulletin has been posted"_s);
        SetBody(Site(u"bulletins/12345"_s), MyPosts());
        SetBody(Site(u"bulletins/deleted"_s), u"gone"_s);
        SetBody(Site(u"sunk"_s), u"x"_s);
        SetHome(Box() + Share() + (newLayout ? NewStream() : OldStream()));
        for (const auto& [field, text] : {std::pair{"txtBulSubject"_L1, u"Gig"_s},
                                          {"txtBulMessage"_L1, u"Come"_s},
                                          {"txtStatusBody"_L1, u"On the road"_s},
                                          {"txtPostAmount"_L1, u"2"_s},
                                          {"txtBulTimerFrom"_L1, u"1"_s},
                                          {"txtBulTimerTo"_L1, u"1"_s},
                                          {"txtStatusPostAmount"_L1, u"2"_s},
                                          {"txtStatusTimerFrom"_L1, u"1"_s},
                                          {"txtStatusTimerTo"_L1, u"1"_s}})
            app->controls.SetText(field, text);
        for (const auto box : {"chkAntiFlood"_L1, "chkStatusAntiFlood"_L1})
            app->controls.SetTicked(box, true);
    }

    QString Site(const QString& path) { return app->Expand(u"http://{SiteRootHost}/"_s) + path; }
    QString Home() {
        return app->Expand(State().blnNewLayout ? u"http://{HomeHost}/index.cfm?fuseaction=home&f=7"_s
                                                : u"http://{HomeHost}"_s);
    }
    // What must not stand in the body's markup before it is there goes into the head.
    void SetBody(const QString& url, const QString& body, SimFault fault = SimFault::None,
                 const QString& head = {}) {
        SimAnswer answer;
        answer.html = u"<html><head>"_s + head + u"</head><body><a href='/home'>Home</a>"_s + body +
                      u"</body></html>"_s;
        answer.fault = fault;
        world.web.SetAnswer(url, answer);
    }
    void SetHome(const QString& body, SimFault fault = SimFault::None) {
        SetBody(Home(), body, fault,
                u"<meta id=loads data-on-click='set #s class streamContainer listViewContainer MSIcon "
                "loadingIconWhiteLight'>"_s);
    }

    static QString Source() { return u"<a href='javascript:void(0)' title='View Source'>HTML</a>"_s; }
    static QString Subject() {
        return u"<form method=post action=/bulletins/posted><input id=subject name=Subject_Textbox>"_s;
    }
    static QString Editor() {
        return u"<textarea name=rte></textarea><span id=rte_editsource><b>S</b></span>"
               "<div id=rte_editsourcearea></div>"_s;
    }
    static QString Plain() {
        return u"<textarea id=plain "
               "name=ctl00_ctl00_ctl00_cpMain_cpMain_cpMain_BulletinPostWithRTE_ctl01></textarea>"_s;
    }
    static QString Press() { return u"<input type=submit value=Post></form>"_s; }
    static QString OldForm() { return Source() + Subject() + Plain() + Press(); }
    static QString NewForm() { return Source() + Subject() + Editor() + Press(); }
    static QString MyPosts() {
        return u"My posts<form method=post action=/bulletins/deleted><input type=checkbox name=messageID "
               "value=71><button type=submit value=Delete>Delete</button></form>"_s;
    }

    static QString Box() {
        return u"<p>Share what you're into</p><form id=f method=post action='/sunk?shared' target=sink>"
               "<textarea id=spStatus name=status></textarea></form><iframe name=sink srcdoc=x></iframe>"_s;
    }
    static QString Share() { return u"<button id=submitBtn data-on-click='submit #f'>Share</button>"_s; }
    static QString Gone() {
        return u"<form id=d method=post action='/sunk?deleted' target=sink><input type=hidden name=x value=y>"
               "</form>"_s;
    }
    static QString Ask() {
        return u"<div>Are you sure you want to delete this update"
               "<input type=button value=' Yes ' data-on-click='submit #d'></div>"_s;
    }
    static QString OldStream() {
        return u"<div id=filterStreamByFriend><select data-on-change='append #stream <a id=del "
               u"href=#x>Delete "
               "This Update</a>'><option value=0>All</option><option value=1>Just Me</option></select></div>"
               "<div id=stream></div>"_s +
               Gone() + Ask();
    }
    static QString NewStream() {
        const QString loads = u"<a href=#x data-on-click='click #loads; after 500ms set #s class x'>%1</a>"_s;
        return loads.arg(u"Just me"_s) + loads.arg(u"Status"_s) + u"<div id=s></div>"_s + Gone() +
               u"<a href=#x><b>Delete This Update</b></a><button data-on-click='submit #d'>OK</button>"_s;
    }

    void StartBulletins() { app->commands.Run(u"picCmdBulSend_Click"_s); }
    void StartStatuses() { app->commands.Run(u"piccmdSendStatusUpdates_Click"_s); }
    // Until nothing runs, and no post is waited for.
    void RunOn() {
        platform->Pump().RunUntil([this] { return State().CurrentAction.isEmpty(); }, 1'200'000);
    }
    // What was posted and deleted since the last look.
    QStringList Posted() {
        QStringList posted;
        for (const auto& form : Browser().TakePosted())
            posted += form.url.mid(form.url.lastIndexOf(form.url.contains(u'?') ? u'?' : u'/') + 1);
        return posted;
    }
    QString ValueOf(const QString& id) {
        const Document page = Browser().Document();
        const Element element = page ? page.GetElementById(id) : Element();
        return element ? element.Value() : QString();
    }
    QStringList Notes(const Campaign& campaign) {
        return OpenNotes(app->files, app->ProgramFile(QString::fromLatin1(campaign.timing.noteFile))).All();
    }
    QStringList Report(const Campaign& campaign) {
        const QString path = app->ProgramFile(QString::fromLatin1(campaign.report.file));
        return app->files.FileExists(path) ? app->files.ReadLines(path) : QStringList();
    }
    QString StoredToday(const Campaign& campaign) {
        return world.settings.GetSetting(u"Counters\\"_s + State().AccountEmail,
                                         QString::fromLatin1(campaign.today.key), u"0"_s);
    }
};

} // namespace qlm
