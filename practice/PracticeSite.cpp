// SPDX-License-Identifier: MIT
#include "PracticeSite.h"

#include "ControlLine.h"
#include "FaultPlay.h"
#include "Frame.h"
#include "Routes.h"
#include "pages/SignInPages.h"

namespace qlm::practice {

namespace {

bool IsKnownMethod(const QString& method) {
    return method == u"GET" || method == u"HEAD" || method == u"POST";
}

// No page can send a header of this kind, so that none that a browser shows can steer the site.
bool MaySteer(const Request& request) {
    return request.headers.contains(u"sec-practice-control"_s);
}

Visit Arrive(World& world, const Request& request, Role role) {
    Visit visit{.world = world,
                .request = request,
                .role = role,
                .address = ParseAddress(request.path),
                .form = {},
                .session = CookieValue(request.headers.value(u"cookie"_s), SessionCookie(role)),
                .captures = {},
                .shown = {},
                .shownByName = {}};
    if (visit.IsPost())
        visit.form = ParseFields(QString::fromUtf8(request.body));
    visit.account = world.accounts.Session(visit.session);
    return visit;
}

} // namespace

PracticeSite::PracticeSite(quint64 seed, std::function<QDateTime()> now)
    : m_world(std::make_unique<World>(seed, std::move(now))) {}

PracticeSite::~PracticeSite() = default;

Response PracticeSite::Answer(const Request& request) {
    const auto role = RoleOf(request.host);
    if (!role)
        return PlainText(u"The practice site has no host of the name \"%1\".\n"_s.arg(request.host), 403);
    if (!IsKnownMethod(request.method))
        return PlainText(u"The practice site knows only GET, HEAD and POST.\n"_s, 405);
    Visit visit = Arrive(*m_world, request, *role);
    const RouteMatch match = FindRoute(visit);
    visit.captures = match.captures;
    // Whoever steers the site must always get through, and leave no mark.
    if (*role == Role::Control && !MaySteer(request))
        return PlainText(u"The controls are for programs, not for pages.\n"_s, 403);
    if (*role == Role::Control)
        return match.handler(visit);
    if (!match.picture)
        m_world->journal.Visit(visit.FullAddress());
    const auto fault =
        m_world->faults.Meet(visit.FullAddress(), visit.account ? visit.account->mail : QString());
    const Response response = fault ? AnswerThrough(*fault, visit, match.handler) : match.handler(visit);
    m_world->journal.Shown(u"shown"_s, visit.FullAddress(), visit.shown);
    m_world->journal.Shown(u"shown-by-name"_s, visit.FullAddress(), visit.shownByName);
    return response;
}

QString PracticeSite::Control(const QString& line) {
    return RunControl(*m_world, line);
}

QStringList PracticeSite::Journal() const {
    return m_world->journal.Lines();
}

QStringList PracticeSite::TakeJournal() {
    return m_world->journal.Take();
}

QString PracticeSite::CaptchaWord(qint64 asker, qint64 target) const {
    return m_world->requests.CaptchaWord(asker, target);
}

} // namespace qlm::practice
