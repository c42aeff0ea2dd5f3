// SPDX-License-Identifier: MIT
// The frames of a page: each holds a document of its own.
#include "platform/sim/SimAddress.h"
#include "platform/sim/SimBrowser.h"

#include <algorithm>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString BlankAddress = u"about:blank"_s;
const QString EmbeddedText = u"about:srcdoc"_s;

bool IsSameOrigin(const QString& one, const QString& other) {
    return ResolveAddress(one, u"/"_s) == ResolveAddress(other, u"/"_s);
}

bool IsFrame(const SimNode& node) {
    return node.Is(u"iframe") || node.Is(u"frame");
}

} // namespace

// A frame that nothing was loaded into has a document all the same, as one that was put into the page later.
// Frames of frames have none.
std::shared_ptr<SimDocument> SimBrowser::DocumentInFrame(SimDocument& page, int frame) {
    if (&page != m_document.get() || !Tree().IsInPage(frame) || !IsFrame(Tree().At(frame)))
        return nullptr;
    const auto known = m_frames.find(frame);
    if (known == m_frames.end())
        return ShowInFrame(frame, {}, BlankAddress);
    return known->second.reach == Reach::Same ? known->second.document : nullptr;
}

void SimBrowser::DropFrames() {
    for (const auto& [element, frame] : m_frames)
        frame.document->Retire();
    m_frames.clear();
}

std::shared_ptr<SimDocument> SimBrowser::ShowInFrame(int frame, const QString& html, const QString& url,
                                                     Reach reach) {
    if (const auto before = m_frames.find(frame); before != m_frames.end())
        before->second.document->Retire();
    std::shared_ptr<SimDocument> document = NewDocument(html, url);
    m_frames[frame] = {document, reach};
    return document;
}

int SimBrowser::FrameOf(const SimDocument& document) const {
    const auto frame = std::ranges::find_if(
        m_frames, [&](const auto& entry) { return entry.second.document.get() == &document; });
    return frame == m_frames.end() ? 0 : frame->first;
}

int SimBrowser::FrameNamed(const QString& name) const {
    const SimTree& tree = m_document->Tree();
    int found = 0;
    tree.Walk(tree.Root(), [&](int element) {
        if (IsFrame(tree.At(element)) && tree.Attribute(element, u"name") == name)
            found = element;
        return found == 0;
    });
    return found;
}

// Frames load on their own and hold the page's completion; other embedded parts only ask.
void SimBrowser::BeginEmbedded() {
    if (IsSealed())
        return;
    Tree().Walk(Tree().Root(), [this](int element) {
        const SimNode& node = Tree().At(element);
        const bool isFrame = IsFrame(node);
        if (!isFrame && !node.Is(u"embed") && !node.Is(u"object"))
            return true;
        if (isFrame && Tree().HasAttribute(element, u"srcdoc")) {
            ++m_framesLeft;
            ShowEmbeddedText(element);
            return true;
        }
        const QString source = Tree().Attribute(element, node.Is(u"object") ? u"data" : u"src");
        const QString url = ResolveAddress(m_document->BaseURL(), source);
        if (!source.isEmpty() && SchemeOf(url).startsWith(u"http")) {
            m_framesLeft += isFrame;
            AskForEmbedded(url, element, isFrame);
        }
        return true;
    });
}

// A frame whose page stands in the page itself is there at once; its addresses are relative to the page.
void SimBrowser::ShowEmbeddedText(int frame) {
    const QString base = u"<base href=\""_s + m_document->BaseURL().toHtmlEscaped() + u"\">"_s;
    ShowInFrame(frame, base + Tree().Attribute(frame, u"srcdoc"), EmbeddedText);
    Post([this, round = m_loadRound] {
        if (round == m_loadRound)
            FrameCompletes(EmbeddedText, true);
    });
}

void SimBrowser::AskForEmbedded(const QString& url, int element, bool isFrame) {
    NavigationRequest question;
    question.url = url;
    question.headers = u"Referer: "_s + (isFrame ? m_location : url) + u"\r\n"_s;
    question.targetFrameName = Tree().Attribute(element, u"name");
    question.topLevel = false;
    Post([this, question, element, isFrame, round = m_loadRound] {
        if (round != m_loadRound)
            return;
        const auto ask = events.beforeNavigate2;
        const bool isCancelled = ask && ask(question);
        if (round != m_loadRound || !isFrame)
            return;
        if (isCancelled)
            return FrameIsDone(true);
        SimRequest request;
        request.url = question.url;
        LoadFrame(request, element, true);
    });
}

void SimBrowser::LoadFrame(const SimRequest& request, int frame, bool holdsPage) {
    SimRequest asked = request;
    asked.topLevel = false;
    asked.referrer = m_location;
    const SimWeb::Arrival arrival = m_web.Fetch(asked);
    if (arrival.answer.fault == SimFault::Hang) {
        m_neverEnds = m_neverEnds || holdsPage;
        return;
    }
    PostLater(arrival.latencyMs,
              [this, arrival, frame, holdsPage, document = m_document, round = m_loadRound] {
                  if (document != m_document)
                      return;
                  Touched();
                  const bool isAwaited = holdsPage && round == m_loadRound;
                  // Without a page a frame keeps what it had, and nobody is told.
                  if (arrival.answer.HasFailed())
                      return FrameIsDone(isAwaited);
                  ShowInFrame(frame, arrival.answer.html, arrival.url,
                              IsSameOrigin(arrival.url, m_location) ? Reach::Same : Reach::Foreign);
                  FrameCompletes(arrival.url, isAwaited);
              });
}

void SimBrowser::FrameCompletes(const QString& url, bool holdsPage) {
    const quint64 round = m_loadRound;
    if (events.documentComplete)
        events.documentComplete(false, url);
    FrameIsDone(holdsPage && round == m_loadRound);
}

void SimBrowser::FrameIsDone(bool isAwaited) {
    if (!isAwaited)
        return;
    --m_framesLeft;
    CompleteWhenFramesAre();
}

} // namespace qlm
