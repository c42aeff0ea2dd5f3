// SPDX-License-Identifier: MIT
#include "platform/qt/LoopbackGuard.h"

#include <QHostAddress>
#include <QUrl>
#include <QWebEngineUrlRequestInfo>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

bool IsNearAddress(const QHostAddress& address) {
    bool isMapped = false;
    const quint32 number = address.toIPv4Address(&isMapped);
    const QHostAddress plain = isMapped ? QHostAddress(number) : address;
    if (plain.isLoopback() || plain.isLinkLocal())
        return true;
    // "This machine", under whatever number.
    return plain.isInSubnet(QHostAddress(u"0.0.0.0"_s), 8) || plain == QHostAddress(QHostAddress::AnyIPv6);
}

} // namespace

bool LoopbackGuard::IsNear(const QString& host) {
    QString name = host.toLower();
    while (name.endsWith(u'.'))
        name.chop(1);
    if (name == u"localhost"_s || name.endsWith(u".localhost"_s) || name == u"localhost.localdomain"_s)
        return true;
    // Written as one number, in octal, in hexadecimal or with parts left out, too.
    QHostAddress address;
    return address.setAddress(name) && IsNearAddress(address);
}

void LoopbackGuard::interceptRequest(QWebEngineUrlRequestInfo& info) {
    const QUrl url = info.requestUrl();
    if (!url.host().isEmpty() && IsNear(url.host()))
        info.block(true);
}

} // namespace qlm
