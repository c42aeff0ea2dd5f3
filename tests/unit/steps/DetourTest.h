// SPDX-License-Identifier: MIT
#pragma once

#include "RequestRun.h"
#include "steps/StepDispatcher.h"

#include <QFile>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

inline const QString Home = u"{HomeHost}/index.cfm?fuseaction=home"_s;
inline const QString HomeAddress = u"http://home.site.example.com/index.cfm?fuseaction=home"_s;
inline const QString Root = u"{SiteRootHost}/"_s;

// The pages that a step may land on instead of the one it expects, in the order in which they are tried.
class DetourTest : public RequestRunTest {
protected:
    DetourTest() {
        world.http.responder = [](const QString&) { return std::optional(u"2009-06-02"_s); };
    }
    Verdict Take(bool captcha = false) {
        Browser().TakeVisited();
        // As the tick does it.
        Verdict verdict = false;
        Waiting::LeaveHere([&] {
            const Waiting::Owned owned(app->waiting);
            verdict = TakeDetour(*app, captcha);
        });
        return verdict;
    }
    bool TakesNone(bool captcha = false) { return !Take(captcha).has_value(); }
    bool TakesUnfound(bool captcha = false) { return Take(captcha) == Verdict(false); }
    // The addresses that the detour has led to.
    QStringList Visited() {
        app->Pump().PumpMessages();
        return Browser().TakeVisited();
    }
    void LogIn(qint16 step) {
        State().CurrentAction = u"LOGIN"_s;
        State().intLoginStep = step;
        State().AccountsLoadedOnce = true;
    }
    QString FileText(const QString& name) {
        QFile file(app->DataFile(name));
        return file.open(QIODevice::ReadOnly) ? QString::fromLatin1(file.readAll()) : QString();
    }
};

} // namespace qlm
