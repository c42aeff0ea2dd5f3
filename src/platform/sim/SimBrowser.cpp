// SPDX-License-Identifier: MIT
#include "platform/sim/SimBrowser.h"

#include "platform/sim/SimAddress.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

SimBrowser::SimBrowser(SimWeb& web, SimPump& pump) : m_web(web), m_pump(pump) {}

SimBrowser::~SimBrowser() {
    if (m_document)
        m_document->Retire();
    DropFrames();
}

quint64 SimBrowser::PostLater(int delayMs, std::function<void()> event) {
    MessageQueue& queue = m_pump.Queue();
    return queue.PostAt(queue.NowMs() + delayMs, [alive = std::weak_ptr(m_alive), event = std::move(event)] {
        if (!alive.expired())
            event();
    });
}

qlm::Document SimBrowser::Document() {
    return qlm::Document(m_document);
}

int SimBrowser::ReadyState() {
    constexpr int nothingYet = 0, loading = 1, interactive = 3, complete = 4;
    if (Busy())
        return m_isLoading && m_hasCommitted && m_questions == 0 ? interactive : loading;
    return m_document ? complete : nothingYet;
}

void SimBrowser::GoTo(const QString& url) {
    Touched();
    if (SchemeOf(url.trimmed()) == u"javascript") {
        Post([this, script = url.trimmed()] {
            if (m_document)
                RunScript(*m_document, script);
            else
                scripts += script;
        });
        return;
    }
    const QString address = CanonicalAddress(url);
    Supersede();
    Load load;
    load.request.url = address;
    NavigationRequest question;
    question.url = address;
    question.isProgram = true;
    if (address != u"about:blank")
        return Ask(load, question);
    Tell(question);
    ShowBlank();
}

void SimBrowser::Stop() {
    Supersede();
    Touched();
}

void SimBrowser::GoBack() {
    if (m_historyIndex > 0)
        Reload(m_historyIndex - 1);
}

void SimBrowser::GoForward() {
    if (m_historyIndex + 1 < static_cast<int>(m_history.size()))
        Reload(m_historyIndex + 1);
}

void SimBrowser::Refresh() {
    if (m_historyIndex >= 0)
        Reload(m_historyIndex);
}

void SimBrowser::Reload(int historyIndex) {
    Touched();
    Supersede();
    Load load;
    // A form is never sent again: the page is asked for by its address.
    SimRequest& entry = m_history[static_cast<size_t>(historyIndex)];
    entry.method = u"GET"_s;
    entry.body.clear();
    entry.contentType.clear();
    load.request = entry;
    load.historyIndex = historyIndex;
    NavigationRequest question;
    question.url = load.request.url;
    question.isProgram = true;
    Ask(load, question);
}

// What the user asks for by the address is no work of the program and does not count as a visit.
void SimBrowser::Browse(const QString& url) {
    Touched();
    const QString address = CanonicalAddress(url);
    if (RefusesNavigations())
        return;
    Load load;
    load.request.url = address;
    load.isCounted = false;
    NavigationRequest question;
    question.url = address;
    Ask(load, question);
}

int SimBrowser::Need(const QString& selector) {
    if (!m_document || !selector.startsWith(u'#'))
        throw BrowserError("no such element: " + selector.toStdString());
    const int node = m_document->ById(selector.mid(1));
    if (node == 0)
        throw BrowserError("no such element: " + selector.toStdString());
    return node;
}

void SimBrowser::LosePage() {
    if (m_document)
        m_document->Retire();
}

void SimBrowser::FollowLink(const QString& text) {
    int whole = 0;
    int part = 0;
    if (m_document)
        for (const int link : m_document->Collect(ElementSet::Links, {})) {
            const QString shown = m_document->Read(link, ElementText::InnerText).trimmed();
            if (whole == 0 && shown == text)
                whole = link;
            if (part == 0 && shown.contains(text))
                part = link;
        }
    const int link = whole ? whole : part;
    if (link == 0)
        throw BrowserError("no such link: " + text.toStdString());
    m_document->Focus(link);
    m_document->Click(link);
}

void SimBrowser::PageClick(const QString& selector) {
    const int node = Need(selector);
    const int focusable = Tree().Closest(node, [](const SimNode& n) {
        return n.Is(u"a") || n.Is(u"input") || n.Is(u"button") || n.Is(u"textarea") || n.Is(u"select");
    });
    if (focusable)
        m_document->Focus(focusable);
    m_document->Click(node);
}

void SimBrowser::PageType(const QString& selector, const QString& text) {
    const int node = Need(selector);
    m_document->Focus(node);
    m_document->SetValue(node, text);
}

void SimBrowser::RightClick() {
    contextMenuShown.reset();
    Post([this] { contextMenuShown = !events.contextMenu || events.contextMenu(); });
}

void SimBrowser::ShowStatus(const QString& text) {
    Post([this, text] {
        if (events.statusTextChange)
            events.statusTextChange(text);
    });
}

} // namespace qlm
