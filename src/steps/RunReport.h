// SPDX-License-Identifier: MIT
#pragma once

#include "steps/ReportStream.h"

#include <functional>
#include <memory>
#include <vector>

namespace qlm {

class App;

// What became of each target of a run, so that the run can be explained afterwards; one file a campaign. The
// log alone decides who is asked; nothing reads these files but the report's window.
//
// Several runs may be under way: one that has lent the browser, those that wait for their next post, and the
// one that is at work. What is told here is of that one; where there is none, nothing is written.
class RunReport {
public:
    explicit RunReport(App& app) : m_app(app) {}

    // Ends whatever is under way and doesn't rest: a start over a running run gets no stop in between. Of a
    // run without report nothing is written.
    // about: what the run is for, where runs differ in that.
    void BeginRun(const ReportKind& kind, const QString& about = {});
    // The last one of that kind, which a stop has ended, goes on after all.
    void Reopen(const ReportKind& kind);
    // The runs are over, for the reason that StopAll was given; at its own end the one at work alone.
    void EndRun(StopReason reason);
    // The one at work alone has come to its end.
    void FinishRun(Ending ending = Ending::AllDone) { End(ending); }

    // The one at work makes room for another one. Answers it; nullptr when there was none.
    ReportStream* SetAside();
    // The same, and nothing that begins meanwhile ends it.
    void Rest();
    // It is at work again; nothing is, where it has been ended meanwhile.
    void TakeUp(ReportStream* run);
    void TakeUp(const ReportKind& kind) { TakeUp(&StreamOf(kind)); }

    // A target that needs no page.
    void PassOver(const QString& id, const QString& why);
    // The page of this target is being opened: it is the open one until it gets a result.
    void Open(const QString& id);
    // Says beforehand why the open target will end as it will.
    void Remark(const QString& why, int pageClass = 0);
    void RemarkPage(int pageClass);
    // A page of the site's has refused the open target.
    bool HasRefusal() const { return m_atWork && m_atWork->HasRefusal(); }
    // The site has confirmed the request to the open target: however it ends now, it was sent.
    void Confirm();
    // The open target has been sent to, and is in the log or could not be written there: an unfinished end
    // counts as that.
    void MarkSent(bool isLogged);
    // The open target's result; words given here stand in for a missing remark. Nothing when none is open.
    void Close(ReportResult result, const QString& why = {});
    // As ReportStream's: targets whose results come for all of them together.
    void CloseForNow(const QString& id, const QString& why);
    void Settle(ReportResult result, const QString& why = {});
    // Lines that are still in memory go to the file.
    void Flush();

    QString PathOf(const ReportKind& kind) { return StreamOf(kind).Path(); }
    // The runs in the file, oldest first, with what is not yet written there.
    QList<ReportedRun> Runs(const ReportKind& kind) { return StreamOf(kind).Runs(); }
    bool IsRunning(const ReportKind& kind) { return StreamOf(kind).IsRunning(); }
    // Why the file could not be written; empty when it can.
    QString Problem(const ReportKind& kind) { return StreamOf(kind).Problem(); }

    // Told of every change.
    std::function<void()> onChange;

private:
    ReportStream& StreamOf(const ReportKind& kind);
    void End(Ending ending);

    App& m_app;
    std::vector<std::unique_ptr<ReportStream>> m_streams;
    ReportStream* m_atWork = nullptr;
};

} // namespace qlm
