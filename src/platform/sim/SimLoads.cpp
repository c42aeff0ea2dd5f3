// SPDX-License-Identifier: MIT
#include "platform/ErrorPage.h"
#include "platform/sim/SimAddress.h"
#include "platform/sim/SimBrowser.h"
#include "platform/sim/SimMarkup.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

SimRequest BlankRequest() {
    SimRequest request;
    request.url = u"about:blank"_s;
    return request;
}

} // namespace

// The load that is under way, if any, will not be heard of again.
void SimBrowser::AbandonLoad() {
    ++m_loadRound;
    m_isLoading = false;
    m_neverEnds = false;
    m_pump.Queue().Cancel(m_arrivalNumber);
}

void SimBrowser::Supersede() {
    AbandonLoad();
    ++m_questionRound;
    m_questions = 0;
}

std::shared_ptr<SimDocument> SimBrowser::NewDocument(const QString& html, const QString& url) {
    SimDocumentHost& host = *this;
    return std::make_shared<SimDocument>(host, html, url);
}

void SimBrowser::ShowBlank() {
    Load load;
    load.request = BlankRequest();
    if (m_historyIndex >= 0 && m_history[static_cast<size_t>(m_historyIndex)].url == load.request.url)
        load.historyIndex = m_historyIndex;
    Commit(NewDocument(QString(), load.request.url), load);
    m_swaps.clear();
    Post([this, round = m_loadRound] {
        if (round != m_loadRound)
            return;
        AnnounceArrival();
        if (round == m_loadRound && events.documentComplete)
            events.documentComplete(true, u"about:blank"_s);
    });
}

bool SimBrowser::IsMoveInPage(const QString& url) const {
    return m_document && url.contains(u'#') && WithoutFragment(url) == WithoutFragment(m_location);
}

// A navigation that no answer holds any more.
void SimBrowser::Tell(const NavigationRequest& navigation) {
    Post([this, navigation] {
        const auto tell = events.beforeNavigate2;
        if (tell)
            tell(navigation);
    });
}

void SimBrowser::Ask(const Load& load, const NavigationRequest& question) {
    ++m_questions;
    Post([this, load, question, round = m_questionRound] {
        if (round != m_questionRound)
            return;
        const auto ask = events.beforeNavigate2;
        const bool isCancelled = ask && ask(question);
        if (round != m_questionRound)
            return;
        --m_questions;
        if (!isCancelled)
            Start(load);
    });
}

void SimBrowser::Start(const Load& load) {
    Touched();
    if (load.historyIndex < 0 && load.request.method == u"GET" && IsMoveInPage(load.request.url)) {
        m_location = load.request.url;
        return;
    }
    AbandonLoad();
    if (load.request.url == u"about:blank") {
        if (load.historyIndex >= 0)
            m_historyIndex = load.historyIndex;
        return ShowBlank();
    }
    m_isLoading = true;
    m_hasCommitted = false;
    const SimWeb::Arrival arrival = m_web.Fetch(load.request);
    if (load.isCounted)
        m_visited += arrival.url;
    m_neverEnds = arrival.answer.fault == SimFault::Hang;
    if (m_neverEnds)
        return;
    m_arrivalNumber = PostLater(arrival.latencyMs, [this, load, arrival, round = m_loadRound] {
        if (round == m_loadRound)
            Arrive(load, arrival);
    });
}

void SimBrowser::Arrive(const Load& load, const SimWeb::Arrival& arrival) {
    const SimAnswer& answer = arrival.answer;
    const QString html = answer.HasFailed() ? ErrorPageHTML(arrival.url) : answer.html;
    const std::shared_ptr<SimDocument> document = NewDocument(html, arrival.url);
    if (answer.fault == SimFault::NoBody)
        document->Tree().DropBody();
    Load arrived = load;
    if (arrived.request.url != arrival.url)
        arrived.request = SimRequest();
    arrived.request.url = arrival.url;
    Commit(document, arrived);
    m_swaps = answer.swaps;
    m_hasCommitted = true;
    Post([this, round = m_loadRound] {
        if (round == m_loadRound)
            AnnounceArrival();
    });
    m_framesLeft = 0;
    BeginEmbedded();
    m_neverEnds = answer.fault == SimFault::Incomplete;
    if (!m_neverEnds)
        CompleteWhenFramesAre();
}

void SimBrowser::Commit(const std::shared_ptr<SimDocument>& document, const Load& load) {
    Touched();
    if (m_document)
        m_document->Retire();
    DropFrames();
    m_document = document;
    m_location = load.request.url;
    const bool isSamePage =
        m_historyIndex >= 0 && m_history[static_cast<size_t>(m_historyIndex)].url == m_location;
    if (load.historyIndex >= 0)
        m_historyIndex = load.historyIndex;
    if (load.historyIndex < 0 && !isSamePage)
        m_history.resize(static_cast<size_t>(++m_historyIndex) + 1);
    m_history[static_cast<size_t>(m_historyIndex)] = load.request;
}

void SimBrowser::AnnounceArrival() {
    if (events.navigateComplete2)
        events.navigateComplete2(m_location);
    if (events.titleChange && m_document)
        events.titleChange(m_document->Title());
}

void SimBrowser::CompleteWhenFramesAre() {
    if (m_framesLeft > 0)
        return;
    Post([this, round = m_loadRound] {
        if (round == m_loadRound)
            Complete();
    });
}

void SimBrowser::Complete() {
    Touched();
    m_isLoading = false;
    StartPageClock(std::exchange(m_swaps, {}));
    if (events.documentComplete)
        events.documentComplete(true, m_location);
}

void SimBrowser::StartPageClock(const std::vector<SimAnswer::Swap>& swaps) {
    for (const SimAnswer::Swap& swap : swaps)
        PostLater(swap.afterMs, [this, html = swap.html, document = m_document] {
            if (document != m_document || Tree().Body() == 0)
                return;
            const SimTree later(html);
            Tree().SetInnerHTML(Tree().Body(), InnerHTML(later, later.Body()));
            Touched();
        });
    for (const int meta : Tree().Elements(Tree().Root(), u"meta")) {
        if (Tree().Attribute(meta, u"http-equiv").compare(u"refresh", Qt::CaseInsensitive) != 0)
            continue;
        const QString content = Tree().Attribute(meta, u"content");
        const QString target =
            content.section(u"url="_s, 1, -1, QString::SectionCaseInsensitiveSeps).trimmed();
        const QString url = ResolveAddress(m_document->BaseURL(), target);
        PostLater(content.section(u';', 0, 0).toInt() * 1000, [this, url, document = m_document] {
            if (document == m_document)
                FollowAddress(*m_document, url, {});
        });
    }
    RunAllWith(*m_document, u"data-on-load"_s);
}

} // namespace qlm
