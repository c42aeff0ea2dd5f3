// SPDX-License-Identifier: MIT
#pragma once

#include "BrowserTest.h"
#include "gather/GatheredList.h"
#include "inbound/InboundReports.h"
#include "steps/RunReport.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// A site on which two people have asked the account, and which keeps two requests of its own that nobody has
// answered. One kind of page may fail until it is repaired.
class InboundRun : public BrowserTest {
protected:
    InboundRun() {
        StartOn(u"SiteDomain=site.example.com\nSiteRootHost=www.site.example.com\n"
                "MessagingHost=mail.site.example.com\nMobileHost=mobile.site.example.com\n"
                "ProductServer=http://product.example.com\n"_s);
        State().blnLoggingEnabled = true;
        app->diagnostics.onLine = [this](const QString& line) { trail += line; };
        State().blnNewLayout = true;
        State().MyProfileID = u"12345"_s;
        State().AccountEmail = u"tam@example.com"_s;
        State().AccountPassword = u"opensesame"_s;
        app->controls.SetTicked("optAcceptDontSend"_L1, true);
        world.web.responder = [this](const SimRequest& request) { return Answer(request); };
    }

    struct Failure {
        QString part{}; // of the address
        QString method = u"GET"_s;
        SimFault fault = SimFault::None;
        std::optional<QString> body{};
    };

    SimAnswer Answer(const SimRequest& request) {
        SimAnswer answer;
        const QString body = BodyOf(request);
        const bool isBroken =
            broken && request.url.contains(broken->part) && request.method == broken->method;
        answer.html = u"<html><body><a href='/home'>Home</a>"_s +
                      (isBroken ? broken->body.value_or(body) : body) + u"</body></html>"_s;
        if (isBroken)
            answer.fault = broken->fault;
        return answer;
    }

    QString BodyOf(const SimRequest& request) {
        const QString& url = request.url;
        if (url.contains(u"/answer?"_s))
            return Take(asking, url.section(u'?', -1), done);
        if (url.contains(u"friendRequestsV3"_s)) {
            if (request.method == u"POST")
                for (const QString& id : QStringList(asking))
                    Take(asking, id, done);
            return OlderList();
        }
        if (url.contains(u"friendrequest"_s))
            return NewerList();
        return url.contains(u"//mobile."_s) ? MobileBodyOf(url) : u"Request Sent!"_s;
    }

    static QString Take(QStringList& waiting, const QString& id, QStringList& done) {
        waiting.removeOne(id);
        done.append(id);
        return {};
    }

    QString NewerList() const {
        if (asking.isEmpty())
            return u"There are 0 requests in this folder"_s;
        QString entries;
        for (const QString& id : asking)
            entries += u"<input type=checkbox mode='FriendRequest,%1,x'><form id=f%1 method=post "
                       "action='/answer?%1'></form><button type=button data-on-click='send #f%1; after 300ms "
                       "append #log <p>%1 is now your friend</p>'>Accept</button>"_s.arg(id);
        return u"Select all"_s + entries + u"<div id=log></div>"_s;
    }

    QString OlderList() const {
        if (asking.isEmpty())
            return u"<div id=spanapprovebottom></div>You have no requests"_s;
        QString entries;
        for (const QString& id : asking)
            entries += u"<input type=checkbox id=request%1 value=%1>"_s.arg(id);
        return u"<form id=all method=post action='/index.cfm?fuseaction=mail.friendRequestsV3'>"_s + entries +
               u"</form><span>This profile no longer exists</span><span data-on-click='append #log <p>You "
               u"have "
               "denied a friend request from nobody</p>'>Deny</span><input type=button name=approvesbutton>"
               "<div id=spanapprovebottom data-on-script=ProcessMultiAction data-do='submit #all'></div>"
               "<div id=log></div>"_s;
    }

    QString MobileBodyOf(const QString& url) {
        const QString id = url.section(u'?', -1);
        if (url.contains(u"signout"_s))
            return u"<form method=post action=/login.wap><input id=emailTextBox name=e><input "
                   "id=passwordTextBox name=p type=password><input type=submit id=loginCommand></form>"_s;
        if (url.contains(u"login"_s))
            return u"My Profile"_s;
        if (url.contains(u"/friend?"_s))
            return u"<a href='/sure?%1'>Cancel Request</a>"_s.arg(id.section(u'=', 1).section(u'&', 0, 0));
        if (url.contains(u"/sure?"_s))
            return u"Are you sure you want to cancel? <form id=f method=post action='/done?%1'></form><a "
                   "href='javascript:void(0)' data-on-click='submit #f'>OK</a>"_s.arg(id);
        if (url.contains(u"/done?"_s))
            Take(unanswered, id, done);
        return SentList();
    }

    QString SentList() const {
        QString entries;
        for (const QString& id : unanswered)
            entries += u"<a href='/friend?friendid=%1&pvm=7'>%1</a>"_s.arg(id);
        return unanswered.isEmpty() ? u"There are 0 sent requests"_s
                                    : entries + u"<a href='/messaging/sentrequests.wap?p=2&x=1'><img "
                                                "class=pagination_next></a>"_s;
    }

    QString Told() { return dialogs.Texts().join(u'|'); }
    QString HowTheRunsEnded(const ReportKind& kind) {
        QStringList ends;
        for (const ReportedRun& run : app->Get<RunReport>().Runs(kind))
            ends.append(run.how);
        return ends.join(u'|');
    }

    QStringList asking{u"1001"_s, u"1002"_s};
    QStringList unanswered{u"2001"_s, u"2002"_s};
    QStringList done; // accepted or canceled, in this order
    std::optional<Failure> broken;
};

} // namespace qlm
