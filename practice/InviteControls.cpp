// SPDX-License-Identifier: MIT
#include "InviteControls.h"

#include "World.h"

namespace qlm::practice {

using namespace Qt::Literals::StringLiterals;

void SetInviteForm(World& world, Arguments& args) {
    const bool isGroup = args.NextIs("group"_L1);
    if (!isGroup)
        args.Expect("event"_L1);
    const qint64 number = args.Number();
    const QString name = args.Word();
    args.End();
    RefuseIfWrong(world.invitations.SetDesign(isGroup ? Gathering::Group : Gathering::Event, number, name));
}

void SetInviteCaptcha(World& world, Arguments& args) {
    const bool asks = args.OnOff();
    args.End();
    world.invitations.SetAsksForWord(asks);
}

void SetPublicEvent(World& world, Arguments& args) {
    const qint64 event = args.Number();
    const bool isPublic = args.OnOff();
    args.End();
    world.invitations.SetPublic(event, isPublic);
}

} // namespace qlm::practice
