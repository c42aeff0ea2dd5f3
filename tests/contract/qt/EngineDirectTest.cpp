// SPDX-License-Identifier: MIT
// What a page may reach on the user's own machine when the deployment names no proxy: nothing by any of the
// machine's loopback addresses and names. The stranger's site stands at another address of the machine's.
#include "LoopbackWorld.h"

#include <QNetworkInterface>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Null on a machine that has no network.
QHostAddress OutsideAddress() {
    for (const QHostAddress& address : QNetworkInterface::allAddresses())
        if (address.protocol() == QAbstractSocket::IPv4Protocol && address.isGlobal())
            return address;
    return {};
}

LoopbackServer& Site() {
    static LoopbackServer site(OutsideAddress());
    return site;
}

class EngineDirect : public LoopbackWorld {
protected:
    EngineDirect()
        : LoopbackWorld(Site(), u"%1:%2"_s.arg(OutsideAddress().toString()).arg(Site().Port()), "") {}
    void SetUp() override {
        if (OutsideAddress().isNull())
            GTEST_SKIP() << "this machine has no address that a stranger's site could stand at";
    }
};

} // namespace

TEST_F(EngineDirect, APageReachesNoPortOfTheMachine) {
    AskForTheMachine();
}

TEST_F(EngineDirect, NoRedirectLeadsThere) {
    FollowRedirects();
}

TEST_F(EngineDirect, ThePageItselfIsNotLedThere) {
    MoveThePage();
}

} // namespace qlm
