// SPDX-License-Identifier: MIT
#include "campaigns/GroupWay.h"

#include "core/ActivityWords.h"
#include "core/App.h"
#include "steps/Steps.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

struct GroupWay::Press {
    const char* procedure;
    QLatin1StringView button; // its caption in small letters
    qint16 messageStep;
    qint16 friendStep;
    QLatin1StringView answer; // what the page says afterwards
};

bool GroupWay::JoinGroup() {
    return Submit({"JoinGroup", "join"_L1, MessageStep::OpenGroupInvite, FriendStep::OpenGroupInvite,
                   "you are now a member"_L1});
}

bool GroupWay::SubmitGroupInvite() {
    m_app.diagnostics.Trap("SubmitGroupInvite", [this] { ChooseGroup(); });
    return Submit({"SubmitGroupInvite", "add to group"_L1, MessageStep::OpenGroupResign,
                   FriendStep::OpenGroupResign, "return to view profile"_L1});
}

bool GroupWay::SubmitGroupResign() {
    return Submit({"SubmitGroupResign", "resign"_L1, MessageStep::AfterSend, FriendStep::NextTarget,
                   "back to group profile"_L1});
}

QString GroupWay::InviteAddress() const {
    return m_app.Expand(u"{GroupsHost}/index.cfm?fuseaction=groups.addtogroup&friendID="_s) +
           m_app.deployment.Value(u"FriendID"_s);
}

QString GroupWay::ResignAddress() const {
    return m_app.Expand(u"{GroupsHost}/index.cfm?fuseaction=groups.resign&groupID="_s) +
           m_app.deployment.Value(u"GroupID"_s);
}

void GroupWay::ChooseGroup() {
    const QString group = m_app.deployment.Value(u"GroupID"_s);
    for (const Element& option : m_app.WebBrowser1().Document().GetElementsByTagName(u"option"_s))
        if (option.Value() == group) {
            option.SetSelected(true);
            return;
        }
}

bool GroupWay::Submit(const Press& press) {
    bool isPressed = false;
    m_app.diagnostics.Trap(press.procedure, [&] {
        for (const Element& input : m_app.WebBrowser1().Document().GetElementsByTagName(u"input"_s)) {
            if (input.Value().toLower() != press.button)
                continue;
            RunState& state = m_app.state;
            const bool isMessage = state.CurrentAction == ActivityWord::Messages;
            (isMessage ? state.intMsgStep : state.intFRStep) =
                isMessage ? press.messageStep : press.friendStep;
            state.strLinkType = u"Text"_s;
            state.strLinkValue = press.answer;
            state.blnLinkFound = false;
            m_app.timers->tmrCheckLinkLoaded.Restart();
            isPressed = true;
            input.Click();
            return;
        }
    });
    return isPressed;
}

} // namespace qlm
