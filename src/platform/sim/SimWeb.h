// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimCookies.h"

#include <QByteArray>
#include <QStringList>
#include <functional>
#include <map>
#include <optional>
#include <vector>

namespace qlm {

struct SimRequest {
    QString method = QStringLiteral("GET");
    QString url;
    QByteArray body;
    QString contentType;
    QString cookies;
    QString referrer;
    bool topLevel = true;
};

// What goes wrong with an answer.
enum class SimFault {
    None,
    Hang,       // never answers
    Reset,      // the connection fails
    NoBody,     // completes without a body
    Incomplete, // the body shows, the complete state never comes
};

struct SimAnswer {
    // Another body that shows so long after the page has completed.
    struct Swap {
        int afterMs = 0;
        QString html;
    };

    QString html;
    int status = 200;
    std::optional<int> latencyMs; // the network's own when unset
    QString redirectTo;
    SimFault fault = SimFault::None;
    QStringList setCookies;
    std::vector<Swap> swaps;

    // The browser shows a page of its own in place of it.
    bool HasFailed() const { return fault == SimFault::Reset || (status >= 400 && html.isEmpty()); }
};

// The simulated network that all simulated browsers of a test share. Addresses are compared whole, after a
// missing scheme has been added and the fragment dropped. Files of this machine that nothing was said about
// are what they are.
class SimWeb {
public:
    // Without a number of times the answer replaces whatever was said about the address before; with one it
    // lies on top of that and is used up. An answer that asks for a swap alone (AddSwap) changes the body of
    // what answers there.
    void SetAnswer(const QString& url, const SimAnswer& answer, int times = 0);
    void SetPage(const QString& url, const QString& html);
    void SetRedirect(const QString& url, const QString& to);
    void SetFault(const QString& url, SimFault fault, int times = 0);
    void AddSwap(const QString& url, int afterMs, const QString& html);
    void Forget(const QString& url);

    // Answers what no word above speaks of; an address that it doesn't know either cannot be reached.
    std::function<std::optional<SimAnswer>(const SimRequest&)> responder;

    // The end of a request, after all its redirects.
    struct Arrival {
        QString url;
        SimAnswer answer;
        int latencyMs = 0;
    };
    Arrival Fetch(SimRequest request);
    // One answer, redirects not followed and cookies left to the one who asks.
    SimAnswer Answer(const SimRequest& request);

    int defaultLatencyMs = 40;
    SimCookies cookies;
    // What a page or an address said that could not be understood; a test with an entry here is wrong.
    QStringList problems;

private:
    struct Layer {
        SimAnswer answer;
        int timesLeft = 0; // 0: for ever
    };

    std::optional<SimAnswer> AnswerFromTable(const QString& url);
    static std::optional<SimAnswer> AnswerFromDisk(const QString& url);

    std::map<QString, std::vector<Layer>> m_layers;
    std::map<QString, std::vector<SimAnswer::Swap>> m_swaps;
};

} // namespace qlm
