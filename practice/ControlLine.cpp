// SPDX-License-Identifier: MIT
#include "ControlLine.h"

#include "Designs.h"
#include "InboundControls.h"
#include "InviteControls.h"
#include "Refusals.h"
#include "World.h"
#include "WritingControls.h"

#include <array>

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

namespace {

Outcome RequestOutcome(Arguments& args) {
    const QString word = args.Word();
    const auto outcome = OutcomeNamed(word);
    if (!outcome)
        throw BadControl(u"unknown outcome: "_s + word);
    return *outcome;
}

void SetSeed(World& world, Arguments& args) {
    const qint64 seed = args.Number();
    args.End();
    world.Sow(static_cast<quint64>(seed));
}

void SetAccount(World& world, Arguments& args) {
    const QString mail = args.Word();
    const QString password = args.Word();
    const qint64 id = args.Number();
    args.End();
    world.AddAccount(mail, password, id);
}

void SetSignIn(World& world, Arguments& args) {
    const QString name = args.Word();
    args.End();
    if (!SignInDesignNamed(name, world.signInDesign))
        throw BadControl(u"unknown design: "_s + name);
}

const Account& AccountNamed(const World& world, Arguments& args) {
    const QString mail = args.Word().toLower();
    for (const Account& account : world.accounts.All())
        if (account.mail == mail)
            return account;
    throw BadControl(u"nobody signs in as "_s + mail);
}

void SetLimit(World& world, Arguments& args) {
    args.Expect("friend-requests"_L1);
    std::optional<int> limit;
    if (!args.NextIs("off"_L1))
        limit = args.Count();
    if (!args.NextIs("for"_L1)) {
        args.End();
        world.requests.SetDailyLimit(limit);
        return;
    }
    const qint64 asker = AccountNamed(world, args).id;
    args.End();
    world.requests.SetDailyLimitOf(asker, limit);
}

void SetShare(World& world, Arguments& args) {
    const Outcome outcome = RequestOutcome(args);
    const int percent = args.Count();
    args.End();
    RefuseIfWrong(world.requests.SetShare(outcome, percent));
}

void SetOutcome(World& world, Arguments& args) {
    const qint64 target = args.Number();
    const Outcome outcome = RequestOutcome(args);
    args.End();
    world.requests.Fix(target, outcome);
}

void SetRefusal(World& world, Arguments& args) {
    const qint64 target = args.Number();
    const int number = args.NextIs("off"_L1) ? 0 : args.Count();
    args.End();
    if (number != 0 && RefusalText(number, {}).isEmpty())
        throw BadControl(u"no refusal has the number %1"_s.arg(number));
    world.requests.SetRefusal(target, number);
}

void SetCaptchaKind(World& world, Arguments& args) {
    std::optional<CaptchaKind> kind;
    if (!args.NextIs("mixed"_L1)) {
        const QString word = args.Word();
        kind = CaptchaKindNamed(word);
        if (!kind)
            throw BadControl(u"unknown kind of CAPTCHA: "_s + word);
    }
    args.End();
    world.requests.SetCaptchaKind(kind);
}

void SetCaptchaWord(World& world, Arguments& args) {
    const QString word = args.NextIs("off"_L1) ? QString() : args.Word();
    args.End();
    world.requests.SetCaptchaWord(word);
}

void SetName(World& world, Arguments& args) {
    const qint64 id = args.Number();
    QString name = args.Word();
    while (!args.AtEnd())
        name += u' ' + args.Word();
    if (!world.people.Find(id))
        throw BadControl(u"nobody has the number %1"_s.arg(id));
    world.people.Rename(id, name);
}

void SetFriends(World& world, Arguments& args) {
    const qint64 owner = args.Number();
    const int count = args.Count();
    args.End();
    if (count > FriendLists::mostFriends)
        throw BadControl(u"at most %1 friends"_s.arg(FriendLists::mostFriends));
    world.friends.SetCount(owner, count);
}

void SetList(World& world, Arguments& args) {
    const QString name = args.Word();
    const int entries = args.Count();
    const int perPage = args.AtEnd() ? 0 : args.Count();
    args.End();
    if (!DesignNamed(name))
        throw BadControl(u"unknown list: "_s + name);
    world.lists.Set(name, entries, perPage);
}

void SetFault(World& world, Arguments& args) {
    Fault fault;
    fault.prefix = args.Word();
    if (args.NextIs("off"_L1)) {
        args.End();
        world.faults.Remove(fault.prefix);
        return;
    }
    const QString name = args.Word();
    const auto kind = FaultNamed(name);
    if (!kind)
        throw BadControl(u"unknown fault: "_s + name);
    fault.kind = *kind;
    if (fault.kind == FaultKind::Slow)
        fault.delayMs = args.Count();
    if (args.NextIs("times"_L1))
        fault.left = args.Count();
    if (args.NextIs("for"_L1))
        fault.mail = AccountNamed(world, args).mail;
    args.End();
    world.faults.Set(fault);
}

void SetJournal(World& world, Arguments& args) {
    const bool isOfTimes = args.NextIs("times"_L1);
    const bool isOfShown = !isOfTimes && args.NextIs("shown"_L1);
    if (!isOfTimes && !isOfShown)
        args.Expect("visits"_L1);
    const bool keep = args.OnOff();
    args.End();
    if (isOfShown)
        world.journal.KeepShown(keep);
    else if (!isOfTimes)
        world.journal.KeepVisits(keep);
    else if (keep)
        world.journal.PutBehind([&world] { return world.now().toString(u" yyyy-MM-ddThh:mm:ss"_s); });
    else
        world.journal.PutBehind({});
}

// Sessions opened later must not be taken for those of before, so their numbering goes on.
void Reset(World& world, Arguments& args) {
    args.End();
    world.accounts.Restore();
    world.signInDesign = SignInDesign::Ids;
    world.mobileDesign = MobileDesign::Open;
    world.faults.Clear();
    world.lists.Clear();
    world.journal = Journal();
    world.Sow(world.firstSeed);
}

void LogOutAll(World& world, Arguments& args) {
    args.End();
    world.accounts.DropAllSessions();
}

void ClearFaults(World& world, Arguments& args) {
    args.End();
    world.faults.Clear();
}

struct ControlRow {
    QLatin1StringView command;
    void (*run)(World&, Arguments&);
};

constexpr std::array controlRows{
    ControlRow{"seed"_L1, SetSeed},
    ControlRow{"account"_L1, SetAccount},
    ControlRow{"name"_L1, SetName},
    ControlRow{"sign-in"_L1, SetSignIn},
    ControlRow{"limit"_L1, SetLimit},
    ControlRow{"share"_L1, SetShare},
    ControlRow{"outcome"_L1, SetOutcome},
    ControlRow{"refuse"_L1, SetRefusal},
    ControlRow{"compose"_L1, SetMessageForm},
    ControlRow{"comment-form"_L1, SetCommentForm},
    ControlRow{"message-outcome"_L1, SetMessageOutcome},
    ControlRow{"comment-outcome"_L1, SetCommentOutcome},
    ControlRow{"message-share"_L1, SetMessageShare},
    ControlRow{"comment-share"_L1, SetCommentShare},
    ControlRow{"message-refuse"_L1, RefuseMessage},
    ControlRow{"comment-refuse"_L1, RefuseComment},
    ControlRow{"message-limit"_L1, LimitMessages},
    ControlRow{"comment-limit"_L1, LimitComments},
    ControlRow{"bulletin-form"_L1, SetBulletinForm},
    ControlRow{"status-form"_L1, SetStatusForm},
    ControlRow{"bulletin-outcome"_L1, SetBulletinOutcome},
    ControlRow{"status-outcome"_L1, SetStatusOutcome},
    ControlRow{"bulletin-refuse"_L1, RefuseBulletin},
    ControlRow{"status-refuse"_L1, RefuseStatus},
    ControlRow{"bulletin-limit"_L1, LimitBulletins},
    ControlRow{"status-limit"_L1, LimitStatuses},
    ControlRow{"bulletins"_L1, SetBulletins},
    ControlRow{"statuses"_L1, SetStatuses},
    ControlRow{"incoming"_L1, SetIncoming},
    ControlRow{"sent-requests"_L1, SetSentRequests},
    ControlRow{"accept-outcome"_L1, SetAcceptOutcome},
    ControlRow{"accept-share"_L1, SetAcceptShare},
    ControlRow{"request-list"_L1, SetRequestList},
    ControlRow{"invite-form"_L1, SetInviteForm},
    ControlRow{"invite-captcha"_L1, SetInviteCaptcha},
    ControlRow{"public-event"_L1, SetPublicEvent},
    ControlRow{"vanish"_L1, Vanish},
    ControlRow{"mobile"_L1, SetMobile},
    ControlRow{"mail"_L1, SetMail},
    ControlRow{"captcha-word"_L1, SetCaptchaWord},
    ControlRow{"captcha-kind"_L1, SetCaptchaKind},
    ControlRow{"friends"_L1, SetFriends},
    ControlRow{"list"_L1, SetList},
    ControlRow{"fault"_L1, SetFault},
    ControlRow{"journal"_L1, SetJournal},
    ControlRow{"logout-all"_L1, LogOutAll},
    ControlRow{"clear-faults"_L1, ClearFaults},
    ControlRow{"reset"_L1, Reset},
};

} // namespace

QString RunControl(World& world, const QString& line) {
    QStringList words = line.simplified().split(u' ', Qt::SkipEmptyParts);
    if (words.isEmpty())
        return {};
    const QString command = words.takeFirst();
    for (const ControlRow& row : controlRows) {
        if (command != row.command)
            continue;
        try {
            Arguments args(words);
            row.run(world, args);
            return {};
        } catch (const BadControl& bad) {
            return u"%1: %2"_s.arg(command, QString::fromUtf8(bad.what()));
        }
    }
    return u"unknown control: "_s + command;
}

} // namespace qlm::practice
