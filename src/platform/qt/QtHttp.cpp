// SPDX-License-Identifier: MIT
#include "platform/qt/QtHttp.h"

#include <QNetworkReply>
#include <QStringDecoder>
#include <memory>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 pieceSize = 2048;
constexpr qint64 downloadPiece = 64 * 1024;
constexpr qint64 downloadBuffer = 1024 * 1024;

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

QUrl AddressOf(const QString& url) {
    return QUrl(url.contains(u"://"_s) ? url : u"http://"_s + url, QUrl::TolerantMode);
}

class QtDownload : public Download {
public:
    QtDownload(QNetworkReply* reply, Pump& pump) : m_reply(reply), m_pump(pump) {
        m_reply->setReadBufferSize(downloadBuffer);
    }
    ~QtDownload() override { m_reply->abort(); }

    bool NextPart(QByteArray& part) override {
        while (!m_isCancelled && m_reply->bytesAvailable() == 0 && !m_reply->isFinished()) {
            m_pump.PumpMessages();
            if (m_reply->bytesAvailable() == 0 && !m_reply->isFinished())
                m_pump.Sleep(10);
        }
        RefuseWhatIsNone();
        part += m_reply->read(downloadPiece);
        m_given += part.size();
        const bool isOver = m_reply->isFinished() && m_reply->bytesAvailable() == 0;
        if (isOver)
            RefuseWhatIsShort();
        return !isOver;
    }
    qint64 Announced() const override {
        const QVariant length = m_reply->header(QNetworkRequest::ContentLengthHeader);
        return length.isValid() ? length.toLongLong() : -1;
    }
    void Cancel() override { m_isCancelled = true; }

private:
    void RefuseWhatIsNone() const {
        if (m_isCancelled)
            throw HttpError("The download was cancelled");
        const QVariant status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute);
        if (!status.isValid())
            throw HttpError(m_reply->errorString().toStdString());
        if (constexpr int ok = 200; status.toInt() != ok)
            throw HttpError("The server answered with status " + std::to_string(status.toInt()));
    }
    void RefuseWhatIsShort() const {
        if (m_reply->error() != QNetworkReply::NoError)
            throw HttpError(m_reply->errorString().toStdString());
        if (Announced() >= 0 && m_given != Announced())
            throw HttpError("The connection ended before the file did");
    }

    const std::unique_ptr<QNetworkReply, DeleteLater> m_reply;
    Pump& m_pump;
    qint64 m_given = 0;
    bool m_isCancelled = false;
};

} // namespace

QtHttp::QtHttp(qlm::Pump& pump, int limitMs) : m_pump(pump), m_limitMs(limitMs) {}

std::unique_ptr<Download> QtHttp::Download(const QString& url) {
    QNetworkRequest request = RequestFor(AddressOf(url), m_limitMs);
    // What is announced is what comes.
    request.setRawHeader("Accept-Encoding", "identity");
    return std::make_unique<QtDownload>(m_network.get(request), m_pump);
}

std::optional<QString> QtHttp::Get(const QString& url) {
    const std::unique_ptr<QNetworkReply, DeleteLater> reply(
        m_network.get(RequestFor(AddressOf(url), m_limitMs)));
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
