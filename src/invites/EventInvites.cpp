// SPDX-License-Identifier: MIT
#include "invites/EventInvites.h"

#include "campaigns/SendRuns.h"
#include "campaigns/SentLog.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/GatherDriver.h"
#include "gather/GatheredList.h"
#include "invites/EventBoxes.h"
#include "invites/EventPager.h"
#include "invites/EventTabs.h"
#include "invites/FrameWalk.h"
#include "invites/GroupInvites.h"
#include "invites/InvitePages.h"
#include "invites/InviteRun.h"
#include "steps/StopResume.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int OpeningSeconds = 3;
const QString ViewPath = u"/Event/View/"_s;
const QString ReportPath = u"/Event/Report/"_s;
const QString InviteFriends = u"invite my friends"_s;

QString Between(const QString& address, const QString& path) {
    const qsizetype at = address.indexOf(path, 0, Qt::CaseInsensitive);
    const QString id =
        at < 0 ? QString() : address.mid(at + path.size()).section(u'/', 0, 0).section(u'?', 0, 0);
    return IsDigits(id) ? id : QString();
}

Element ElementReading(const Document& page, const QString& text) {
    Element found;
    for (const Element& element : page.Body().Tags(u"*"_s))
        if (element.InnerText().trimmed().compare(text, Qt::CaseInsensitive) == 0)
            found = element;
    return found;
}

} // namespace

EventInvites::EventInvites(App& app) : m_app(app) {
    app.commands.Add(u"cmdEventInvite_Click"_s, [this] { cmdEventInvite_Click(); });
    app.commands.Add(u"piccmdInvClearLog_Click"_s, "piccmdInvClearLog_Click",
                     [this] { piccmdInvClearLog_Click(); });
}

void EventInvites::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debugevinv.txt"_s, text);
}

// The log of whatever is shown: a group's page, or an event's.
void EventInvites::piccmdInvClearLog_Click() {
    BrowserControl& browser = m_app.WebBrowser1();
    const bool isGroup = PageHas(browser, u"members"_s) && PageHas(browser, u"group leader"_s);
    const bool isEvent = PageHas(browser, u"invite more people"_s) && PageHas(browser, u"MySpace Events"_s);
    const QString title = isGroup || isEvent ? TitleOf(browser.Document()) : QString();
    const QString name = isGroup ? GroupNameIn(title) : EventNameIn(title);
    if (name.isEmpty()) {
        m_app.ShowMessage(u"You must be on the event's main page."_s);
        return;
    }
    const InviteLog log(m_app, isGroup ? GroupInviteKind : EventInviteKind, name);
    m_app.Get<SendRuns>().LogWindow().Show({m_app, log.Path()}, u"sent invites to"_s);
}

void EventInvites::cmdEventInvite_Click() {
    const Waiting::Unowned outlives(m_app.waiting);
    const QString error = m_app.diagnostics.Trap("cmdEventInvite_Click", [this] {
        Trace(u"START - "_s + m_app.NowText());
        if (!m_app.Get<GatherDriver>().RefuseDuringLogin() && Run() &&
            !m_app.Get<StopResume>().DoFinishedExit())
            m_app.ShowMessage(u"Finished!"_s);
    });
    if (!error.isEmpty())
        GiveUp(u"Inviting has ended with an error: "_s + error);
    m_app.Get<GroupInvites>().HideBusy();
}

// Tells why in the status line.
void EventInvites::GiveUp(const QString& message) {
    m_app.Get<GroupInvites>().HideBusy();
    m_app.Get<StopResume>().StopAll(StopReason::EventInvitesFailed);
    m_app.SetStatus(message);
}

// False when there was nothing to come to an end.
bool EventInvites::Run() {
    m_app.waiting.WaitFor(u"the page to be complete"_s, [this] { return m_app.WebBrowser1().Busy(); });
    m_app.Get<GroupInvites>().ShowBusy();
    InviteRun run(m_app, EventInviteKind);
    run.Begin();
    m_app.SetStatus(u"Waiting for the event's main page to finish loading..."_s);
    run.WaitUntilComplete();
    const QString id = EventId();
    if (id.isEmpty()) {
        Trace(u"NEWLAYOUT2.4 - TRYAGAIN"_s);
        GiveUp();
        m_app.ShowMessage(u"Please go to the event's admin page and try again."_s);
        return false;
    }
    const bool isPublic = HasPublicWords(run) || run.Has(u"(public)"_s);
    if (isPublic && !OpenPublicList(run, id)) {
        Trace(u"EV - FINISHEDEARLY"_s);
        GiveUp(u"The invite list did not open"_s);
        return false;
    }
    if (!OpenLog(run) || (!isPublic && !GotoInviteMorePeople(run)))
        return false;
    return Walk(run, id, isPublic);
}

QString EventInvites::EventId() {
    const QString address = m_app.WebBrowser1().LocationURL();
    Trace(u"NEWLAYOUT2 - "_s + address);
    QString id = Between(address, ViewPath);
    Trace(u"NEWLAYOUT2.1 - "_s + id);
    if (id.isEmpty()) {
        id = Between(address, ReportPath);
        Trace(u"NEWLAYOUT2.1.1 - "_s + id);
    }
    if (id.isEmpty()) {
        id = GetNumberFromEnd(address);
        Trace(u"NEWLAYOUT2.2 - "_s + id);
    }
    Trace(u"NEWLAYOUT2.3 - "_s + id);
    return id;
}

bool EventInvites::HasPublicWords(const InviteRun& run) const {
    return run.Has(u"public event"_s) || run.Has(u"share event"_s) || run.Has(InviteFriends);
}

bool EventInvites::OpenPublicList(InviteRun& run, const QString& id) {
    const bool isMarked = run.Has(u"(public)"_s);
    Trace(isMarked ? u"EV - PUBLIC2"_s : u"EV - PUBLIC1"_s);
    if (isMarked) {
        m_app.ClearPage();
        m_app.WebBrowser1().Navigate(m_app.Expand(u"{EventsHost}"_s) + ReportPath + id);
        run.WaitUntilComplete();
    }
    m_app.ClearPage();
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{EventsHost}"_s) + ViewPath + id);
    m_app.SetStatus(u"Waiting for the invite list to load..."_s);
    run.WaitForText(u"the invite list"_s, InviteFriends);
    run.WaitUntilComplete();
    if (run.IsStopped())
        return false;
    if (const Element button = ElementReading(m_app.WebBrowser1().Document(), InviteFriends))
        button.Click();
    run.WaitSeconds(OpeningSeconds);
    Trace(u"EV - PUBLIC - INVITEPRESSED"_s);
    return !run.IsStopped() && IsListOpen(run);
}

bool EventInvites::IsListOpen(InviteRun& run) {
    const Document page = m_app.WebBrowser1().Document();
    const Element list = page.GetElementById(u"post_rsvp_div"_s);
    const Element tab = page.GetElementById(u"metros_tab"_s);
    if (!list || !tab || IsHidden(list))
        return false;
    if (!Has(tab.Read(ElementText::ClassName), u"myspace_tabset_highlighted"_s)) {
        tab.Click();
        run.WaitSeconds(OpeningSeconds);
    }
    return run.Has(u"Other Regions"_s);
}

bool EventInvites::OpenLog(InviteRun& run) {
    const QString name = EventNameIn(TitleOf(m_app.WebBrowser1().Document()));
    QString problem;
    Diagnostics::Guard([&] { run.OpenLog(name); },
                       [&](const std::exception& error) { problem = QString::fromUtf8(error.what()); });
    if (problem.isEmpty())
        return true;
    Trace(u"EV - ERROR"_s);
    GiveUp();
    m_app.ShowMessage(u"An error has occurred while trying to write to the Event Invite log file.\n\n"_s +
                      problem);
    return false;
}

// The wait stands where the link is missing: the user may click it.
bool EventInvites::GotoInviteMorePeople(InviteRun& run) {
    Trace(u"Goto1: "_s);
    if (const Element link = LinkReading(m_app.WebBrowser1().Document(), u"invite more people"_s)) {
        Trace(u"Goto2 - link found: "_s);
        link.Click();
    }
    m_app.SetStatus(u"Waiting for guest list page to load..."_s);
    Trace(u"NOT NL2 - AFTER GOTO"_s);
    run.Wait(u"the guest list"_s,
             [&] { return run.Has(u"friends list"_s) || run.Has(u"select your friends"_s); });
    Trace(u"NOT NL2 - AFTER LOAD"_s);
    run.WaitUntilComplete();
    if (run.IsStopped())
        GiveUp();
    return !run.IsStopped();
}

// False where the page has no frame of friends either.
bool EventInvites::WalkBlocks(InviteRun& run, const QString& id) {
    m_app.WebBrowser1().Navigate(m_app.Expand(u"{EventsHost}"_s) + ReportPath + id + u'/');
    Trace(u"On event invite page1."_s);
    run.WaitUntilComplete();
    GroupInvites& group = m_app.Get<GroupInvites>();
    FrameWalk walk(m_app, run, group.Blocks(), EventFrame, group.Options().SendsToGatheredIDs());
    if (!walk.Fits())
        return false;
    Trace(u"On event invite page2."_s);
    walk.Run();
    return true;
}

bool EventInvites::Walk(InviteRun& run, const QString& id, bool isPublic) {
    InviteOptions& options = m_app.Get<GroupInvites>().Options();
    if (!options.Ask(false)) {
        GiveUp();
        return false;
    }
    if (options.SendsToGatheredIDs() && m_app.Get<GatheredList>().IsEmpty()) {
        GiveUp();
        m_app.ShowMessage(u"No Friend ID's have been scanned"_s);
        return false;
    }
    run.LimitToGathered(options.SendsToGatheredIDs());
    EventBoxes boxes(m_app, run);
    EventPager pager(m_app, run, options.StartPage());
    EventTabs tabs(m_app, run, isPublic);
    StopReason end = StopReason::EventInvitesDone;
    if (boxes.Fits()) {
        boxes.Run();
    } else if (pager.Fits()) {
        pager.Run();
        end = StopReason::EventPagerDone;
    } else if (tabs.Fits()) {
        m_app.SetStatus(u"Selecting friends to invite..."_s);
        tabs.Run();
        Trace(u"NL2 - FINISHED"_s);
        end = StopReason::EventTabsDone;
    } else if (!WalkBlocks(run, id)) {
        GiveUp();
        m_app.ShowMessage(u"Please go to the event's admin page and try again."_s);
        return false;
    }
    m_app.Get<GroupInvites>().HideBusy();
    m_app.Get<StopResume>().StopAll(end);
    m_app.SetStatus({});
    return true;
}

} // namespace qlm
