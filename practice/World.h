// SPDX-License-Identifier: MIT
#pragma once

#include "Accounts.h"
#include "Faults.h"
#include "FriendLists.h"
#include "FriendRequests.h"
#include "Incoming.h"
#include "Invitations.h"
#include "Journal.h"
#include "ListSizes.h"
#include "MobileDesign.h"
#include "People.h"
#include "Posts.h"
#include "SignInDesigns.h"
#include "Writing.h"

#include <QDateTime>
#include <functional>

namespace qlm::practice {

/// All that the site knows. Owned by PracticeSite; pages read it and change it while they answer.
struct World {
    World(quint64 startSeed, std::function<QDateTime()> clock);

    /// New people, friends lists and answers to whatever is sent; accounts, sessions and journal stay.
    void Sow(quint64 newSeed);
    void AddAccount(const QString& mail, const QString& password, qint64 id);

    void AddMember(qint64 id);

    const quint64 firstSeed; ///< what a reset goes back to
    quint64 seed;
    std::function<QDateTime()> now;
    People people;
    FriendLists friends;
    ListSizes lists;
    FriendRequests requests;
    Incoming incoming;
    Invitations invitations;
    Writing messages;
    Writing comments;
    Writing bulletins;
    Writing statuses;
    Posts posts;
    Accounts accounts;
    SignInDesign signInDesign = SignInDesign::Ids;
    MobileDesign mobileDesign = MobileDesign::Open;
    Faults faults;
    Journal journal;
};

} // namespace qlm::practice
