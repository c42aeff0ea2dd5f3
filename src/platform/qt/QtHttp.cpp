// SPDX-License-Identifier: MIT
#include "platform/qt/QtHttp.h"

#include <QNetworkReply>
#include <QStringDecoder>
#include <memory>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 pieceSize = 2048;

QNetworkRequest RequestFor(const QUrl& url, int limitMs) {
    QNetworkRequest request(url);
    request.setHeader(QNetworkRequest::UserAgentHeader, u"VB"_s);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setTransferTimeout(limitMs);
    return request;
}

QString Decode(const QByteArray& bytes, const QString& contentType) {
    const qsizetype at = contentType.indexOf(u"charset="_s, 0, Qt::CaseInsensitive);
    if (at >= 0) {
        QStringDecoder decoder(
            contentType.sliced(at + 8).section(u';', 0, 0).trimmed().toLatin1().constData());
        if (decoder.isValid())
            return decoder(bytes);
    }
    QStringDecoder decoder(QStringDecoder::Utf8);
    const QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

// A reply may be given up from inside one of its own signals.
struct DeleteLater {
    void operator()(QObject* object) const { object->deleteLater(); }
};

} // namespace

QtHttp::QtHttp(qlm::Pump& pump, int limitMs) : m_pump(pump), m_limitMs(limitMs) {}

std::optional<QString> QtHttp::Get(const QString& url) {
    const QString address = url.contains(u"://"_s) ? url : u"http://"_s + url;
    const std::unique_ptr<QNetworkReply, DeleteLater> reply(
        m_network.get(RequestFor(QUrl(address, QUrl::TolerantMode), m_limitMs)));
    QByteArray body;
    while (!reply->isFinished() || reply->bytesAvailable() > 0) {
        body += reply->read(pieceSize);
        m_pump.PumpMessages();
        if (reply->bytesAvailable() == 0 && !reply->isFinished())
            m_pump.Sleep(10);
    }
    const bool isAnswered = reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
    const bool isBrokenOff = reply->error() == QNetworkReply::OperationCanceledError ||
                             reply->error() == QNetworkReply::TimeoutError;
    if (!isAnswered || isBrokenOff)
        return std::nullopt;
    return Decode(body, reply->header(QNetworkRequest::ContentTypeHeader).toString());
}

} // namespace qlm
