// SPDX-License-Identifier: MIT
#pragma once

#include "BrowserTest.h"
#include "gather/GatheredList.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

inline const QString NewPage = u"http://www.site.example.com/my/mail/new?t="_s;
inline const QString OldPage = u"http://mail.site.example.com/index.cfm?fuseaction=mail.message&friendID="_s;
inline const QString SentPage = u"http://www.site.example.com/sent"_s;

// An account with a text for its messages, and the pages that take them.
class MessengerTest : public BrowserTest {
protected:
    MessengerTest() {
        State().blnNewLayout = true;
        State().AccountEmail = u"a@example.com"_s;
        app->controls.SetText("txtMsgSubject"_L1, u"Hi &NAME&"_s);
        app->controls.SetText("txtMsgMessage"_L1, u"Dear &name&,\r\nhello"_s);
        app->controls.SetTicked("optSendSingle(0)"_L1, true);
        app->controls.SetTicked("chkMsgDontSendAgain"_L1, true);
        world.web.SetPage(SentPage, u"<html><body>Your message has been sent!</body></html>"_s);
    }

    static QString Form(const QString& id, const QString& button = u"Send"_s) {
        return u"<html><body><div id=toBox><img alt='ANNA LEE'></div>"
               "<form id=f method=post action='%1'><input type=hidden name=to value='%2'>"
               "<input id='cpMain_cpMain_ctl03_sendMessageCommonControl_txtSubject' name=s>"
               "<textarea name=Mailbody></textarea><input type=submit name=draft value='Save Draft'>"
               "<input type=submit name=send value='%3'></form></body></html>"_s.arg(SentPage, id, button);
    }
    void People(const QStringList& ids) {
        for (const QString& id : ids) {
            app->Get<GatheredList>().Add(id, u"test"_s);
            world.web.SetPage(NewPage + id, Form(id));
        }
    }
    void SetDelay(int seconds) { State().lngTimeDelayFrom = State().lngTimeDelayTo = seconds; }
    void Start() { app->commands.Run(u"picCmdMsgSend_Click"_s); }
    // Until the program is idle, or the time is over.
    void Finish(int seconds = 600) {
        for (int i = 0; i < seconds && !State().CurrentAction.isEmpty(); ++i)
            platform->Pump().RunFor(1000);
    }
    QStringList Log() { return Lines(u"MessagesLog.txt"_s); }
    QStringList Lines(const QString& file) {
        const QString path = app->ProgramFile(file);
        return app->files.FileExists(path) ? app->files.ReadLines(path) : QStringList();
    }
    // "1001: subject | text" for each form that was sent.
    QStringList Posted() {
        QStringList posted;
        for (const SimBrowser::Posted& form : Browser().TakePosted()) {
            QString to, subject, text;
            for (const SimField& field : form.fields) {
                if (field.name == u"to")
                    to = field.value;
                if (field.name == u"s" || field.name.contains(u"ubject"))
                    subject = field.value;
                if (field.name.contains(u"ody"))
                    text = field.value;
            }
            posted += to + u": "_s + subject + u" | "_s + text;
        }
        return posted;
    }
};

} // namespace qlm
