// SPDX-License-Identifier: MIT
// The frames of a page: each holds a document of its own.
#include "platform/ErrorPage.h"
#include "platform/sim/SimAddress.h"
#include "platform/sim/SimBrowser.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString EmbeddedText = u"about:srcdoc"_s;

bool IsFrame(const SimNode& node) {
    return node.Is(u"iframe") || node.Is(u"frame");
}

} // namespace

qlm::Document SimBrowser::FrameDocument(const QString& name) {
    const auto frame = m_frames.find(name);
    return frame == m_frames.end() ? qlm::Document() : qlm::Document(frame->second);
}

void SimBrowser::DropFrames() {
    for (const auto& [name, document] : m_frames)
        document->Retire();
    m_frames.clear();
}

void SimBrowser::ShowInFrame(const QString& name, const QString& html, const QString& url) {
    if (const auto before = m_frames.find(name); before != m_frames.end())
        before->second->Retire();
    m_frames[name] = std::make_shared<SimDocument>(m_frameHost, html, url);
}

bool SimBrowser::IsFrameName(const QString& name) const {
    const SimTree& tree = m_document->Tree();
    bool found = false;
    tree.Walk(tree.Root(), [&](int element) {
        found = IsFrame(tree.At(element)) && !name.isEmpty() && tree.Attribute(element, u"name") == name;
        return !found;
    });
    return found;
}

// Frames load on their own and hold the page's completion; other embedded parts only ask.
void SimBrowser::BeginEmbedded() {
    Tree().Walk(Tree().Root(), [this](int element) {
        const SimNode& node = Tree().At(element);
        const bool isFrame = IsFrame(node);
        if (!isFrame && !node.Is(u"embed") && !node.Is(u"object"))
            return true;
        const QString name = Tree().Attribute(element, u"name");
        if (isFrame && Tree().HasAttribute(element, u"srcdoc")) {
            ++m_framesLeft;
            ShowEmbeddedText(name, Tree().Attribute(element, u"srcdoc"));
            return true;
        }
        const QString source = Tree().Attribute(element, node.Is(u"object") ? u"data" : u"src");
        const QString url = ResolveAddress(m_document->BaseURL(), source);
        if (!source.isEmpty() && SchemeOf(url).startsWith(u"http")) {
            m_framesLeft += isFrame;
            AskForEmbedded(url, name, isFrame);
        }
        return true;
    });
}

// A frame whose page stands in the page itself is there at once; its addresses are relative to the page.
void SimBrowser::ShowEmbeddedText(const QString& name, const QString& html) {
    ShowInFrame(name, u"<base href=\""_s + m_document->BaseURL().toHtmlEscaped() + u"\">"_s + html,
                EmbeddedText);
    Post([this, round = m_loadRound] {
        if (round == m_loadRound)
            FrameCompletes(EmbeddedText, true);
    });
}

void SimBrowser::AskForEmbedded(const QString& url, const QString& frame, bool isFrame) {
    NavigationRequest question;
    question.url = url;
    question.headers = u"Referer: "_s + (isFrame ? m_location : url) + u"\r\n"_s;
    question.targetFrameName = frame;
    question.topLevel = false;
    Post([this, question, isFrame, round = m_loadRound] {
        if (round != m_loadRound)
            return;
        const auto ask = events.beforeNavigate2;
        const bool isCancelled = ask && ask(question);
        if (round != m_loadRound || !isFrame)
            return;
        if (isCancelled) {
            --m_framesLeft;
            return CompleteWhenFramesAre();
        }
        SimRequest request;
        request.url = question.url;
        LoadFrame(request, question.targetFrameName, true);
    });
}

void SimBrowser::LoadFrame(const SimRequest& request, const QString& name, bool holdsPage) {
    SimRequest asked = request;
    asked.topLevel = false;
    asked.referrer = m_location;
    const SimWeb::Arrival arrival = m_web.Fetch(asked);
    if (arrival.answer.fault == SimFault::Hang) {
        m_neverEnds = m_neverEnds || holdsPage;
        return;
    }
    PostLater(
        arrival.latencyMs, [this, arrival, name, holdsPage, document = m_document, round = m_loadRound] {
            if (document != m_document)
                return;
            const SimAnswer& answer = arrival.answer;
            ShowInFrame(name, answer.HasFailed() ? ErrorPageHTML(arrival.url) : answer.html, arrival.url);
            FrameCompletes(arrival.url, holdsPage && round == m_loadRound);
        });
}

void SimBrowser::FrameCompletes(const QString& url, bool holdsPage) {
    const quint64 round = m_loadRound;
    if (events.documentComplete)
        events.documentComplete(false, url);
    if (!holdsPage || round != m_loadRound)
        return;
    --m_framesLeft;
    CompleteWhenFramesAre();
}

} // namespace qlm
