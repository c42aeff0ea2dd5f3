// SPDX-License-Identifier: MIT
#include "invites/FrameWalk.h"

#include "core/App.h"
#include "core/Text.h"
#include "invites/InvitePages.h"
#include "invites/InviteRun.h"

#include <QRegularExpression>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SettleSeconds = 10;
const QString FrameName = u"friendBox"_s;
const QString WordField = u"CAPTCHAResponse"_s;
const QString Used = u"xxx"_s;

// Of the list of that name or ID.
std::vector<Element> OptionsOf(const Document& page, const QString& list) {
    std::vector<Element> options;
    if (!page || !page.Body())
        return options;
    for (const Element& option : page.GetElementsByTagName(u"option"_s)) {
        const Element select = option.ParentElement();
        if (select.Id() == list || select.Name() == list)
            options.push_back(option);
    }
    return options;
}

} // namespace

const FramePage GroupFrame{
    .type = u"Groups",
    .list = u"friends",
    .select =
        u"javascript: function ClickFriend(){window.frames['friendBox'].document.getElementById('friends')"
        u".selectedIndex = {n};}; ClickFriend();",
    .move = u"javascript:parent.move(window.frames['friendBox'].document.getElementById('friends'),"
            u"this.document.inviteForm.invitedfriends);",
    .trace = u"",
    .isSentByProgram = false};

const FramePage EventFrame{
    .type = u"Events",
    .list = u"FriendList",
    .select = u"javascript: function ClickList(){if(window.frames['friendBox'].document.getElementById("
              u"'FriendList').length > 0){window.frames['friendBox'].document.getElementById('FriendList')"
              u".options[{n}].selected = true;};}; ClickList();",
    .move = u"javascript:parent.move(window.frames['friendBox'].document.getElementById('FriendList'),"
            u"this.document.getElementById('createEvent').invitedfriends);",
    .trace = u"On event invite page3.",
    .isSentByProgram = true};

Document FrameWalk::Frame() const {
    const Document page = m_app.WebBrowser1().Document();
    return page && page.Body() ? page.FrameDocument(FrameName) : Document();
}

bool FrameWalk::HasFriends(const Document& page) const {
    return !OptionsOf(page, u"startrow"_s).empty();
}

void FrameWalk::Run() {
    m_address = m_app.WebBrowser1().LocationURL();
    LoadBlocksInTemp();
    if (m_page.trace[0])
        m_app.diagnostics.Debug(u"debugevinv.txt"_s, QString::fromUtf16(m_page.trace));
    if (m_run.IsStopped() || !ChooseBlocks())
        return;
    for (int block = m_blocks.intStartLine; block <= m_blocks.intEndLine && !m_isLast; ++block) {
        if (block != m_block)
            GoToBlock(block);
        if (m_run.IsStopped())
            return m_blocks.SaveNext(block);
        WorkThrough(block);
    }
}

bool FrameWalk::ChooseBlocks() {
    if (m_isLimited)
        m_app.controls.ListBoxToArray("lstFriendIDs"_L1, m_wanted);
    QStringList starts;
    for (const Element& option : OptionsOf(m_app.webTemp().Document(), u"startrow"_s))
        starts.append(option.Value());
    return m_blocks.Ask(QString::fromUtf16(m_page.type), m_isLimited ? u"IDs"_s : u"Lists"_s, starts);
}

// The block that has been begun is still sent, and then the run is over.
void FrameWalk::WorkThrough(int block) {
    m_run.BeginBatch();
    AddPeople();
    if (m_run.IsStopped() || m_isLast) {
        m_isLast = true;
        m_blocks.SaveNext(block + 1);
    }
    if (m_run.Chosen() == 0)
        return;
    m_run.Resume();
    if (m_page.isSentByProgram)
        Send();
    else
        WaitForUser();
    if (m_run.IsStopped()) {
        m_isLast = true;
        m_blocks.SaveNext(block + 1);
    }
}

void FrameWalk::LoadBlocksInTemp() {
    const Document page = m_app.WebBrowser1().Document();
    const std::vector<Element> frames = page.GetElementsByName(FrameName);
    if (frames.empty())
        throw std::runtime_error("The page has no frame of friends");
    QString source = frames.front().GetAttribute(u"src"_s);
    while (source.startsWith(u'/'))
        source.remove(0, 1);
    m_app.webTemp().Navigate(u"about:blank"_s);
    m_app.webTemp().Navigate(m_app.Expand(u"{EventsHost}/"_s) + source);
    m_run.Wait(u"the list of friends"_s,
               [this] { return !m_app.webTemp().Busy() && HasFriends(m_app.webTemp().Document()); });
    m_run.Wait(u"the list of friends"_s, [this] { return HasFriends(Frame()); });
}

// In the order of the gathered list an entry counts once.
bool FrameWalk::TakeWanted(const QString& id) {
    if (!m_isLimited)
        return true;
    const qsizetype at = m_wanted.indexOf(id);
    if (at < 0)
        return false;
    m_wanted[at] = Used;
    ++m_used;
    return true;
}

void FrameWalk::AddPeople() {
    m_app.SetStatus(u"Adding people in current block to invite list..."_s);
    const std::vector<Element> options =
        OptionsOf(m_app.webTemp().Document(), QString::fromUtf16(m_page.list));
    for (size_t index = 0; index < options.size(); ++index) {
        if (m_isLimited && m_used == m_wanted.size()) {
            m_isLast = true;
            return;
        }
        const QString id = options[index].Value();
        if (m_run.IsNew(id) && TakeWanted(id))
            m_run.Choose(id, [&] { Move(static_cast<int>(index), options[index]); });
    }
    m_isLast = m_isLast || (m_isLimited && m_used == m_wanted.size());
}

void FrameWalk::RunScript(const QString& script) {
    m_app.WebBrowser1().Navigate(script);
    m_app.waiting.Pump();
}

// Whoever of the gathered list is invited to an event needs no place in the frame's list.
void FrameWalk::Move(int index, const Element& option) {
    if (m_page.isSentByProgram && m_isLimited)
        return Add(option);
    RunScript(QString::fromUtf16(m_page.select).replace(u"{n}"_s, QString::number(index)));
    RunScript(QString::fromUtf16(m_page.move));
}

void FrameWalk::Add(const Element& option) {
    static const QRegularExpression ends(u"['\"\\\\<>]"_s);
    RunScript(u"javascript:addOption('"_s + option.Value() + u"','"_s + option.InnerText().remove(ends) +
              u"');"_s);
}

// Of an event the program sends it.
void FrameWalk::Send() {
    for (const Element& input : m_app.WebBrowser1().Document().GetElementsByTagName(u"input"_s))
        if (input.Value().compare(u"invite & update"_s, Qt::CaseInsensitive) == 0) {
            input.Click();
            break;
        }
    m_app.SetStatus(u"Event invites submitted, waiting for MySpace to process..."_s);
    m_run.Wait(u"the site to process the invitations"_s,
               [this] { return m_run.Has(u"invite more people"_s) || m_run.Has(u"Friends List:"_s); });
    if (m_run.IsStopped())
        return;
    m_run.SaveDailyCount();
    m_run.ConfirmBatch();
}

void FrameWalk::WaitForUser() {
    m_app.SetStatus(u"Waiting for user to enter CAPTCHA and submit group invites..."_s);
    m_run.ShowWaiting(u"the CAPTCHA"_s);
    m_blocks.ShowCaptchaNotice(QString::fromUtf16(m_page.type));
    for (const Element& field : m_app.WebBrowser1().Document().GetElementsByName(WordField)) {
        m_app.WebBrowser1().TakeFocus();
        field.Focus();
    }
    m_address = m_app.WebBrowser1().LocationURL();
    bool isSent = false;
    m_run.Wait(u"you to send the invitations"_s, [&] {
        isSent = m_run.Has(u"members"_s) && m_run.Has(u"group leader"_s);
        return isSent || m_run.Has(u"return to group"_s) || m_run.Has(u"page cannot be displayed"_s);
    });
    if (!isSent)
        return;
    m_run.SaveDailyCount();
    m_run.ConfirmBatch();
}

void FrameWalk::GoToBlock(int block) {
    if (const Element link = LinkReading(m_app.WebBrowser1().Document(), u"invite more people"_s)) {
        link.Click();
    } else {
        m_app.ClearPage();
        m_app.WebBrowser1().Navigate(m_address);
    }
    m_app.SetStatus(u"Proceeding to invite next block of 40, waiting for invite page to load..."_s);
    if (!m_page.isSentByProgram)
        m_run.WaitForText(u"the invite page"_s, u"Find a MySpace User to Invite"_s);
    m_run.Wait(u"the list of friends"_s, [this] { return m_run.IsComplete() && !Frame().IsNull(); });
    if (m_run.IsStopped())
        return;
    LoadBlocksInTemp();
    m_run.WaitSeconds(SettleSeconds);
    if (m_run.IsStopped())
        return;
    m_app.SetStatus(u"Waiting for block of 40 profiles to load on page..."_s);
    SelectBlock(block);
    m_block = block;
}

// Both show the block when neither has the documents of before.
void FrameWalk::SelectBlock(int block) {
    const Document frame = Frame();
    const Document temp = m_app.webTemp().Document();
    const QString select =
        u".getElementById('startrow').selectedIndex = "_s + QString::number(block) + u";}; bla();"_s;
    m_app.WebBrowser1().Navigate(u"javascript: function bla(){window.frames['friendBox'].document"_s +
                                 select);
    m_app.WebBrowser1().Navigate(u"javascript: window.frames['friendBox'].document.friendForm.submit();"_s);
    m_app.webTemp().Navigate(u"javascript: function bla(){window.document"_s + select);
    m_app.webTemp().Navigate(u"javascript: window.document.friendForm.submit();"_s);
    m_run.Wait(u"the block of friends"_s, [&] {
        return !frame.IsPresent() && !temp.IsPresent() && !m_app.webTemp().Busy() && HasFriends(Frame()) &&
               HasFriends(m_app.webTemp().Document());
    });
}

} // namespace qlm
