// SPDX-License-Identifier: MIT
#include "tests/support/SimulatedSite.h"
#include "platform/sim/SimAddress.h"

#include <QUrl>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

SimFault FaultOf(practice::Response::Fault fault) {
    using enum practice::Response::Fault;
    switch (fault) {
    case Hang:
        return SimFault::Hang;
    case Reset:
        return SimFault::Reset;
    case NoBody:
        return SimFault::NoBody;
    case None:
    case Slow:
        break;
    }
    return SimFault::None;
}

practice::Request SiteRequest(const SimRequest& request) {
    const QUrl url(request.url);
    practice::Request asked;
    asked.method = request.method;
    asked.host = HostOf(request.url);
    asked.path =
        url.path(QUrl::FullyEncoded) + (url.hasQuery() ? u'?' + url.query(QUrl::FullyEncoded) : QString());
    asked.body = request.body;
    if (!request.cookies.isEmpty())
        asked.headers[u"cookie"_s] = request.cookies;
    if (!request.contentType.isEmpty())
        asked.headers[u"content-type"_s] = request.contentType;
    if (!request.referrer.isEmpty())
        asked.headers[u"referer"_s] = request.referrer;
    return asked;
}

SimAnswer SimAnswerOf(const practice::Response& response) {
    SimAnswer answer;
    answer.html = QString::fromUtf8(response.body);
    answer.status = response.status;
    answer.fault = FaultOf(response.fault);
    if (response.delayMs > 0)
        answer.latencyMs = response.delayMs;
    for (const auto& [name, value] : response.headers) {
        if (name.compare(u"Location", Qt::CaseInsensitive) == 0)
            answer.redirectTo = value;
        else if (name.compare(u"Set-Cookie", Qt::CaseInsensitive) == 0)
            answer.setCookies << value;
    }
    return answer;
}

} // namespace

QString ProductAnswer(const QString& path, const QDateTime& now) {
    if (path == u"/online.htm" || path == u"/login/showloginmessage.htm")
        return u"ok"_s;
    if (path == u"/version.htm")
        return u"0.0.0"_s;
    if (path.startsWith(u"/dateandtime."))
        return now.toString(u"yyyy-MM-dd"_s);
    return {};
}

SimAnswer AnswerOf(practice::PracticeSite& site, const SimRequest& request) {
    return SimAnswerOf(site.Answer(SiteRequest(request)));
}

} // namespace qlm
