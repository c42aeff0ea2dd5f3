// SPDX-License-Identifier: MIT
#include "ContractWorld.h"
#include "LoopbackServer.h"
#include "platform/qt/EngineProfile.h"
#include "platform/qt/QtBrowser.h"

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
    }

    void Serve(const QString& url, const QString& html, const ServeOptions& options) override {
        using Fault = LoopbackAnswer::Fault;
        LoopbackAnswer answer;
        answer.body = html.toUtf8();
        answer.status = options.redirectTo.isEmpty() ? options.status : 302;
        answer.delayMs = options.delayMs;
        if (!options.redirectTo.isEmpty())
            answer.headers += "Location: " + options.redirectTo.toUtf8() + "\r\n";
        if (!options.setCookie.isEmpty())
            answer.headers += "Set-Cookie: " + options.setCookie.toUtf8() + "\r\n";
        if (options.fault != ServeFault::None)
            answer.fault = options.fault == ServeFault::Hang ? Fault::Hang : Fault::Reset;
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
    bool RunsScripts() const override { return true; }

private:
    QtPump m_pump;
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
