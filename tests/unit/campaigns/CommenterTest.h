// SPDX-License-Identifier: MIT
#pragma once

#include "BrowserTest.h"
#include "campaigns/Campaigns.h"
#include "campaigns/OpenNotes.h"
#include "campaigns/SentLog.h"
#include "gather/GatheredList.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

// An account with a comment to post, and the pages of one layout that take it.
class CommentRun : public BrowserTest {
protected:
    explicit CommentRun(bool newLayout) : m_newLayout(newLayout) {
        SetPage(OnOld(u"done"_s), u"Your comment has been posted!"_s);
        SetPage(app->Expand(u"http://{SiteRootHost}/posted"_s), u"x"_s);
        for (const QString& id : {u"1001"_s, u"1002"_s}) {
            SetPage(CommentPage(id), newLayout ? NewPage(id) : OldPage(id));
            SetPage(ConfirmPage(id),
                    u"<form method=post action=/done><input type=submit value='Post a Comment'></form>"_s);
        }
        Prepare();
    }

    void SetPage(const QString& url, const QString& body, SimFault fault = SimFault::None) {
        SimAnswer answer;
        answer.html = u"<html><body><a href='/home'>Home</a>"_s + body + u"</body></html>"_s;
        answer.fault = fault;
        world.web.SetAnswer(url, answer);
    }
    QString OnOld(const QString& path) { return app->Expand(u"http://{CommentHost}/"_s) + path; }
    QString CommentPage(const QString& id) {
        return m_newLayout ? app->Expand(u"http://{SiteRootHost}/%1/comments"_s).arg(id)
                           : OnOld(u"index.cfm?fuseaction=user.viewProfile_commentForm&friendID="_s + id);
    }
    QString ConfirmPage(const QString& id) { return OnOld(u"confirm/"_s + id); }
    static QString NewPage(const QString& id) {
        return u"<p id=hint>Post a comment...</p>"
               "<form id=form method=post action='/posted?%1' target=sink><div id=frame>"
               "<textarea id=box name=comment placeholder='Post a comment' data-on-input='hide #hint'"
               " data-on-focus='set #frame class absolute'></textarea></div></form>"
               "<iframe name=sink srcdoc=x></iframe>"
               "<button data-on-click='submit #form'>Post</button>"_s.arg(id);
    }
    QString OldPage(const QString& id) {
        return app->Expand(
            u"<a href='http://{ProfileHost}/index.cfm?fuseaction=user.viewprofile&friendID=1'>x"
            "</a><form method=post action='/confirm/%1'><textarea id=box name=commentText></textarea>"
            "<input type=submit value='Post a Comment'></form>"_s.arg(id));
    }

    // A program that has just been started.
    void Prepare() {
        State().blnNewLayout = m_newLayout;
        for (const QString& id : {u"1001"_s, u"1002"_s})
            app->Get<GatheredList>().Add(id, u"test"_s);
        app->controls.SetText("txtComment"_L1, u"Hello"_s);
        app->controls.SetText("txtAcceptComment"_L1, u"Welcome"_s);
        app->controls.SetTicked("chkComDontSendAgain"_L1, true);
    }
    void Start() { app->commands.Run(u"picCmdComSend_Click"_s); }
    void Run() {
        Start();
        RunOn();
    }
    void RunOn() {
        platform->Pump().RunUntil([this] { return State().CurrentAction != u"COM"_s; }, 600'000);
    }
    // What was posted to whom, since the last look.
    QStringList Posted() {
        QStringList posted;
        for (const auto& form : Browser().TakePosted())
            if (form.url.contains(u"/posted?"_s) || form.url.contains(u"/confirm/"_s))
                posted += form.url.right(4) + u' ' + form.fields.at(0).value;
        return posted;
    }
    QStringList Log() {
        const QString path = SentLog(*app, &Comments).Path();
        return app->files.FileExists(path) ? app->files.ReadLines(path) : QStringList();
    }
    QStringList Notes() { return OpenNotes(app->files, SentLog(*app, &Comments).Path()).All(); }

private:
    const bool m_newLayout;
};

} // namespace qlm
