// SPDX-License-Identifier: MIT
// What the stage's network answers when the scenario says nothing.
#include "Stage.h"
#include "tests/support/SimulatedSite.h"

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

void Stage::UsePracticeSite(quint64 seed) {
    site = std::make_unique<practice::PracticeSite>(seed, [this] { return world.clock.Now(); });
}

std::optional<QString> Stage::AnswerHttp(const QString& url) const {
    const Deployment deployment(world.deploymentText);
    for (const QString& role : {u"ProductServer"_s, u"ProductServerAlternate"_s})
        if (const QString base = deployment.Role(role); url.startsWith(base + u'/'))
            return ProductAnswer(url.mid(base.size()), world.clock.Now());
    if (!site)
        return {};
    SimRequest request;
    request.url = url;
    return AnswerOf(*site, request).html;
}

std::optional<SimAnswer> Stage::AnswerPage(const SimRequest& request) {
    if (request.url.endsWith(u"/timedelay.htm")) {
        SimAnswer cover;
        cover.html = u"<html><body>a short pause</body></html>"_s;
        return cover;
    }
    if (site)
        return AnswerOf(*site, request);
    const std::optional<QString> text = AnswerHttp(request.url);
    if (!text)
        return {};
    SimAnswer answer;
    answer.html = u"<html><body>"_s + *text + u"</body></html>"_s;
    return answer;
}

} // namespace qlm::scenario
