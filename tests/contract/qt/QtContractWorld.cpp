// SPDX-License-Identifier: MIT
#include "ContractWorld.h"
#include "LoopbackServer.h"
#include "platform/qt/EngineProfile.h"
#include "platform/qt/QtBrowser.h"
#include "platform/qt/QtHttp.h"

#include <QNetworkProxy>
#include <QWebEngineProfile>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// One server for the whole run, which plays every host as the application's proxy; so nothing leaves the
// machine.
LoopbackServer& Network() {
    static LoopbackServer server;
    return server;
}

constexpr int patienceMs = 20'000;

LoopbackAnswer::Fault FaultOf(ServeFault fault) {
    using Fault = LoopbackAnswer::Fault;
    switch (fault) {
    case ServeFault::Hang:
        return Fault::Hang;
    case ServeFault::Reset:
        return Fault::Reset;
    case ServeFault::BreakOff:
        return Fault::BreakOff;
    case ServeFault::None:
        break;
    }
    return Fault::None;
}

class QtContractWorld final : public ContractWorld {
public:
    QtContractWorld() : m_profile(CreateEngineProfile(&m_profileOwner)) {
        LoopbackAnswer unreachable;
        unreachable.fault = LoopbackAnswer::Fault::Reset;
        Network().Clear();
        Network().AnswerUnknown(unreachable);
        QNetworkProxy::setApplicationProxy(
            QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_s, Network().Port()));
        m_browser = std::make_unique<QtBrowser>(m_pump, *m_profile);
        m_otherBrowser = std::make_unique<QtBrowser>(m_pump, *m_profile);
        // The contract is about what is read. That a slow page is asked again is told elsewhere.
        m_browser->SetAnswerLimit(patienceMs);
    }

    void Serve(const QString& url, const QString& html, const ServeOptions& options) override {
        LoopbackAnswer answer;
        answer.body = html.toUtf8();
        answer.status = options.redirectTo.isEmpty() ? options.status : 302;
        answer.delayMs = options.delayMs;
        if (!options.redirectTo.isEmpty())
            answer.headers += "Location: " + options.redirectTo.toUtf8() + "\r\n";
        if (!options.setCookie.isEmpty())
            answer.headers += "Set-Cookie: " + options.setCookie.toUtf8() + "\r\n";
        answer.fault = FaultOf(options.fault);
        Network().AnswerOnly(url, answer);
    }

    std::vector<Request> Requests() const override {
        std::vector<Request> requests;
        for (const LoopbackRequest& request : Network().Requests())
            if (request.Header("Sec-Fetch-Dest") != u"image"_s ||
                !request.Header("Accept").startsWith(u"image/"_s))
                requests.push_back({request.method, request.url, request.body, request.Header("Cookie")});
        return requests;
    }

    BrowserControl& Browser() override { return *m_browser; }
    BrowserControl& OtherBrowser() override { return *m_otherBrowser; }
    qlm::Pump& Pump() override { return m_pump; }
    qlm::Http& Http() override { return m_http; }
    bool RunsScripts() const override { return true; }

private:
    static constexpr int silenceMs = 500;

    QtPump m_pump;
    QtHttp m_http{m_pump, silenceMs};
    QObject m_profileOwner;
    QWebEngineProfile* m_profile;
    std::unique_ptr<QtBrowser> m_browser;
    std::unique_ptr<QtBrowser> m_otherBrowser;
};

} // namespace

std::unique_ptr<ContractWorld> MakeContractWorld() {
    return std::make_unique<QtContractWorld>();
}

} // namespace qlm
