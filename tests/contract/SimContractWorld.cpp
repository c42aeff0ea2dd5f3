// SPDX-License-Identifier: MIT
#include "ContractWorld.h"
#include "platform/sim/RecordingDialogs.h"
#include "platform/sim/SimPlatform.h"

namespace qlm {

namespace {

class SimContractWorld : public ContractWorld {
public:
    SimContractWorld() : m_platform(m_world, m_dialogs) {
        m_world.web.responder = [this](const SimRequest& request) { return Answer(request); };
    }

    void Serve(const QString& url, const QString& html, const ServeOptions& options) override {
        SimAnswer answer;
        answer.html = html;
        answer.status = options.status;
        answer.redirectTo = options.redirectTo;
        if (options.delayMs > 0)
            answer.latencyMs = options.delayMs;
        if (!options.setCookie.isEmpty())
            answer.setCookies += options.setCookie;
        if (options.fault == ServeFault::Hang)
            m_world.http.Hang(url);
        else if (options.fault == ServeFault::BreakOff)
            m_world.http.BreakOff(url, html);
        else if (options.fault == ServeFault::Reset || options.status != 200)
            m_world.http.Fail(url);
        else
            m_world.http.Set(url, html);
        if (options.fault != ServeFault::None)
            answer.fault = options.fault == ServeFault::Hang ? SimFault::Hang : SimFault::Reset;
        m_answers[url] = answer;
    }
    std::vector<Request> Requests() const override { return m_requests; }
    BrowserControl& Browser() override { return m_platform.Browser(BrowserName::WebBrowser1); }
    BrowserControl& OtherBrowser() override { return m_platform.Browser(BrowserName::webHide); }
    qlm::Pump& Pump() override { return m_platform.Pump(); }
    qlm::Http& Http() override { return m_platform.Http(); }
    bool RunsScripts() const override { return false; }

private:
    std::optional<SimAnswer> Answer(const SimRequest& request) {
        m_requests.push_back({request.method, request.url, request.body, request.cookies});
        const auto answer = m_answers.find(request.url);
        return answer == m_answers.end() ? std::nullopt : std::optional(answer->second);
    }

    SimWorld m_world;
    RecordingDialogs m_dialogs;
    std::map<QString, SimAnswer> m_answers;
    std::vector<Request> m_requests;
    SimPlatform m_platform;
};

} // namespace

std::unique_ptr<ContractWorld> MakeContractWorld() {
    return std::make_unique<SimContractWorld>();
}

} // namespace qlm
