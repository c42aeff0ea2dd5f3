// SPDX-License-Identifier: MIT
#include "InboundControls.h"

#include "FormChoice.h"
#include "RequestListDesigns.h"
#include "World.h"

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

void SetIncoming(World& world, Arguments& args) {
    const qint64 account = args.Number();
    const int count = args.Count();
    args.End();
    if (count > Incoming::most)
        throw BadControl(u"at most %1"_s.arg(Incoming::most));
    world.incoming.SetCount(account, count);
}

void SetSentRequests(World& world, Arguments& args) {
    const qint64 account = args.Number();
    const int count = args.Count();
    args.End();
    if (count > Incoming::most)
        throw BadControl(u"at most %1"_s.arg(Incoming::most));
    world.requests.SetPending(account, world.incoming.SomeOthers(account, count));
}

void SetAcceptOutcome(World& world, Arguments& args) {
    const qint64 requester = args.Number();
    const QString word = args.Word();
    args.End();
    RefuseIfWrong(world.incoming.answers.Fix(requester, word));
}

void SetAcceptShare(World& world, Arguments& args) {
    const QString word = args.Word();
    const int percent = args.Count();
    args.End();
    RefuseIfWrong(world.incoming.answers.SetShare(word, percent));
}

void SetRequestList(World& world, Arguments& args) {
    const bool isForAll = args.NextIs("all"_L1);
    const qint64 account = isForAll ? 0 : args.Number();
    const QString name = args.NextIs("off"_L1) ? QString() : args.Word();
    args.End();
    if (!name.isEmpty() && !FormNamed(RequestListDesigns(), name))
        throw BadControl(u"unknown list of requests: "_s + name);
    if (isForAll)
        world.incoming.SetFormOfAll(name);
    else
        world.incoming.SetForm(account, name);
}

// Whoever can sign in stays.
void Vanish(World& world, Arguments& args) {
    const qint64 id = args.Number();
    args.End();
    if (world.accounts.IsMember(id) || !world.people.Find(id))
        throw BadControl(u"nobody who could vanish has the number %1"_s.arg(id));
    world.people.Vanish(id);
}

void SetMobile(World& world, Arguments& args) {
    const QString word = args.Word();
    args.End();
    const auto design = MobileDesignNamed(word);
    if (!design)
        throw BadControl(u"unknown design of the mobile pages: "_s + word);
    world.mobileDesign = *design;
}

} // namespace qlm::practice
