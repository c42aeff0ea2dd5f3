// SPDX-License-Identifier: MIT
#include "platform/sim/SimWeb.h"

#include "platform/sim/SimAddress.h"

#include <QFile>
#include <QUrl>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int maxRedirects = 20;

QString KeyOf(const QString& url) {
    return WithoutFragment(CanonicalAddress(url));
}

} // namespace

void SimWeb::SetAnswer(const QString& url, const SimAnswer& answer, int times) {
    const QString key = KeyOf(url);
    if (times == 0)
        Forget(url);
    m_layers[key].push_back({answer, times});
}

void SimWeb::SetPage(const QString& url, const QString& html) {
    SimAnswer answer;
    answer.html = html;
    SetAnswer(url, answer);
}

void SimWeb::SetRedirect(const QString& url, const QString& to) {
    SimAnswer answer;
    answer.status = 302;
    answer.redirectTo = to;
    SetAnswer(url, answer);
}

void SimWeb::SetFault(const QString& url, SimFault fault, int times) {
    // The body of a page that never completes is the one that was there.
    SimAnswer answer;
    const auto layers = m_layers.find(KeyOf(url));
    if (fault == SimFault::Incomplete && layers != m_layers.end() && !layers->second.empty())
        answer = layers->second.back().answer;
    answer.fault = fault;
    SetAnswer(url, answer, times);
}

void SimWeb::AddSwap(const QString& url, int afterMs, const QString& html) {
    m_swaps[KeyOf(url)].push_back({afterMs, html});
}

void SimWeb::Forget(const QString& url) {
    m_layers.erase(KeyOf(url));
    m_swaps.erase(KeyOf(url));
}

std::optional<SimAnswer> SimWeb::AnswerFromTable(const QString& url) {
    const auto found = m_layers.find(url);
    if (found == m_layers.end() || found->second.empty())
        return std::nullopt;
    Layer& top = found->second.back();
    const SimAnswer answer = top.answer;
    if (top.timesLeft > 0 && --top.timesLeft == 0)
        found->second.pop_back();
    return answer;
}

// A file of this machine, as the product's browser shows it.
std::optional<SimAnswer> SimWeb::AnswerFromDisk(const QString& url) {
    QFile file(QUrl(url).toLocalFile());
    if (!url.startsWith(u"file:"_s) || !file.open(QIODevice::ReadOnly))
        return std::nullopt;
    SimAnswer answer;
    answer.html = QString::fromUtf8(file.readAll());
    return answer;
}

SimAnswer SimWeb::Answer(const SimRequest& request) {
    const QString key = KeyOf(request.url);
    std::optional<SimAnswer> answer = AnswerFromTable(key);
    if (!answer)
        answer = AnswerFromDisk(key);
    // A page that never completes, told without a body, shows what lies underneath.
    const bool needsBody = answer && answer->fault == SimFault::Incomplete && answer->html.isEmpty();
    if ((!answer || needsBody) && responder) {
        const SimFault fault = answer ? answer->fault : SimFault::None;
        answer = responder(request);
        if (answer && needsBody)
            answer->fault = fault;
    }
    if (!answer) {
        answer.emplace();
        answer->fault = SimFault::Reset;
    }
    if (const auto swaps = m_swaps.find(key); swaps != m_swaps.end())
        answer->swaps.insert(answer->swaps.end(), swaps->second.begin(), swaps->second.end());
    return *answer;
}

SimWeb::Arrival SimWeb::Fetch(SimRequest request) {
    Arrival arrival;
    for (int hop = 0; hop <= maxRedirects; ++hop) {
        const QString host = HostOf(request.url);
        request.cookies = cookies.For(host);
        arrival.url = request.url;
        arrival.answer = Answer(request);
        arrival.latencyMs += arrival.answer.latencyMs.value_or(defaultLatencyMs);
        for (const QString& cookie : arrival.answer.setCookies)
            cookies.Take(host, cookie);
        if (arrival.answer.redirectTo.isEmpty())
            return arrival;
        request.url = ResolveAddress(request.url, arrival.answer.redirectTo);
        if (arrival.answer.status != 307 && arrival.answer.status != 308) {
            request.method = u"GET"_s;
            request.body.clear();
            request.contentType.clear();
        }
    }
    // A ring of redirects ends as an address that cannot be reached.
    arrival.answer = SimAnswer();
    arrival.answer.fault = SimFault::Reset;
    return arrival;
}

} // namespace qlm
