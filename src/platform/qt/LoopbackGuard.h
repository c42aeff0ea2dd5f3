// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QWebEngineUrlRequestInterceptor>

namespace qlm {

// Keeps pages off what listens on the user's own machine and on the cable beside it: the engine reaches those
// addresses past any proxy. The site of the deployment is reached under its names, through the proxy.
class LoopbackGuard final : public QWebEngineUrlRequestInterceptor {
public:
    using QWebEngineUrlRequestInterceptor::QWebEngineUrlRequestInterceptor;
    void interceptRequest(QWebEngineUrlRequestInfo& info) override;

    // host as in an address, in any spelling.
    static bool IsNear(const QString& host);
};

} // namespace qlm
