// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Pump.h"
#include "platform/Services.h"

#include <QNetworkAccessManager>

namespace qlm {

// Plain GET on Qt's network stack, which follows the application's proxy. Answers of every status count as
// answers to Get(); an address that cannot be reached, or whose server says nothing for timeLimitMs, gives
// nothing.
class QtHttp final : public Http {
public:
    static constexpr int timeLimitMs = 30 * 1000;

    explicit QtHttp(qlm::Pump& pump, int limitMs = timeLimitMs);

    std::optional<QString> Get(const QString& url) override;
    std::unique_ptr<qlm::Download> Download(const QString& url) override;

private:
    qlm::Pump& m_pump;
    int m_limitMs;
    QNetworkAccessManager m_network;
};

} // namespace qlm
