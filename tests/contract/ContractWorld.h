// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"

#include <QStringList>
#include <memory>

namespace qlm {

// BreakOff announces more than it sends; to downloads alone.
enum class ServeFault { None, Hang, Reset, BreakOff };

struct ServeOptions {
    int delayMs = 0;
    int status = 200;
    QString redirectTo = {};
    QString setCookie = {}; // a Set-Cookie header
    ServeFault fault = ServeFault::None;
};

// One browser platform as the contract sees it: a network that answers what a test serves, browsers on it,
// and the pump that delivers their events. Made anew for each test. Two of them exist; each test program
// brings its own.
class ContractWorld {
public:
    struct Request {
        QString method;
        QString url; // whole, with query
        QByteArray body;
        QString cookies; // the Cookie header
    };

    virtual ~ContractWorld() = default;
    // Answers at that whole address from now on. Addresses that were not served cannot be reached.
    virtual void Serve(const QString& url, const QString& html, const ServeOptions& options = {}) = 0;
    // What the network was asked for since the test began, pages and frames only.
    virtual std::vector<Request> Requests() const = 0;
    virtual BrowserControl& Browser() = 0;
    virtual BrowserControl& OtherBrowser() = 0;
    virtual qlm::Pump& Pump() = 0;
    virtual qlm::Http& Http() = 0;
    // Scripts of the pages run. Where they do not, attributes beside them stand in.
    virtual bool RunsScripts() const = 0;
};

std::unique_ptr<ContractWorld> MakeContractWorld();

} // namespace qlm
