// SPDX-License-Identifier: MIT
#include "guided/PracticeControls.h"

#include <QEventLoop>
#include <QNetworkProxy>
#include <QNetworkReply>
#include <memory>
#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

void PracticeControls::Tell(const QString& line) {
    const QByteArray body = line.toUtf8();
    Fetch(u"/control"_s, &body);
}

QStringList PracticeControls::Journal() {
    return QString::fromUtf8(Fetch(u"/journal"_s, nullptr)).split(u'\n', Qt::SkipEmptyParts);
}

QStringList PracticeControls::TakeJournal() {
    const QByteArray nothing;
    return QString::fromUtf8(Fetch(u"/journal/take"_s, &nothing)).split(u'\n', Qt::SkipEmptyParts);
}

QByteArray PracticeControls::Fetch(const QString& path, const QByteArray* body) {
    m_network.setProxy(QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_s, m_port));
    QNetworkRequest request(QUrl(u"http://control.myspace.example.com"_s + path));
    request.setHeader(QNetworkRequest::ContentTypeHeader, u"text/plain"_s);
    // What tells a program from a page.
    request.setRawHeader("Sec-Practice-Control", "1");
    const std::unique_ptr<QNetworkReply> reply(body ? m_network.post(request, *body)
                                                    : m_network.get(request));
    QEventLoop loop;
    QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
    loop.exec();
    // The loop also ends when the program does.
    if (!reply->isFinished())
        throw std::runtime_error("The practice site was asked while the program was ending");
    if (reply->error() != QNetworkReply::NoError)
        throw std::runtime_error("The practice site did not answer: " + reply->errorString().toStdString());
    return reply->readAll();
}

} // namespace qlm
