// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"
#include "platform/sim/SimDocument.h"
#include "platform/sim/SimForms.h"
#include "platform/sim/SimPump.h"
#include "platform/sim/SimStandIns.h"
#include "platform/sim/SimWeb.h"

#include <optional>

namespace qlm {

// A browser on the simulated network: pages are parsed for real, links and forms work, scripts do not run
// (SimStandIns.h tells what stands in for them). Everything that arrives, arrives from the pump, after the
// answer's latency on the virtual clock. about:blank is there at once and
// no answer holds it.
class SimBrowser : public BrowserControl, private SimDocumentHost {
public:
    SimBrowser(SimWeb& web, SimPump& pump);
    ~SimBrowser() override;

    void GoTo(const QString& url) override;
    void Stop() override;
    void GoBack() override;
    void GoForward() override;
    void Refresh() override;
    qlm::Document Document() override;
    QString LocationURL() override { return m_location; }
    int ReadyState() override;
    bool Busy() override { return m_questions > 0 || m_isLoading; }
    // Busy with a load that nothing keeps from ending some day.
    bool CanBecomeReady() const { return m_questions > 0 || (m_isLoading && !m_neverEnds); }

    // What the user does in the page. A selector is "#id"; a text is that of a link, whole, or a part of it
    // when no link has it whole. An element that is not there throws BrowserError.
    void Browse(const QString& url);
    void FollowLink(const QString& text);
    void PageClick(const QString& selector);
    void PageType(const QString& selector, const QString& text);
    void RightClick();
    // The engine reports a status text.
    void ShowStatus(const QString& text);
    // The engine loses the page: whoever asks it anything gets a BrowserError.
    void LosePage();

    struct Posted {
        QString url; // the form's action
        std::vector<SimField> fields;
    };
    // Since the last call: top-level loads that the program or the page asked for, without about:blank, of a
    // redirect the last address; and forms sent.
    QStringList TakeVisited() { return std::exchange(m_visited, {}); }
    std::vector<Posted> TakePosted() { return std::exchange(m_posted, {}); }
    const QStringList& Visited() const { return m_visited; }
    const std::vector<Posted>& PostedForms() const { return m_posted; }
    // Windows that opened of their own, and scripts that "javascript:" addresses ran.
    QStringList windows;
    QStringList scripts;
    // Whether the page's own menu came up at the last right-click; unset until the program was asked.
    std::optional<bool> contextMenuShown;

private:
    // A load on its way: the request, and what becomes of it in the records.
    struct Load {
        SimRequest request;
        bool isCounted = true;
        int historyIndex = -1; // where to move to; -1 adds an entry
    };

    void Post(std::function<void()> event) { PostLater(0, std::move(event)); }
    quint64 PostLater(int delayMs, std::function<void()> event);

    // SimLoads.cpp: a load from the question to its completion.
    void Supersede();
    void AbandonLoad();
    std::shared_ptr<SimDocument> NewDocument(const QString& html, const QString& url);
    void ShowBlank();
    void Tell(const NavigationRequest& navigation);
    void Ask(const Load& load, const NavigationRequest& question);
    void Start(const Load& load);
    void Arrive(const Load& load, const SimWeb::Arrival& arrival);
    void Commit(const std::shared_ptr<SimDocument>& document, const Load& load);
    void AnnounceArrival();
    void CompleteWhenFramesAre();
    void Complete();
    void StartPageClock(const std::vector<SimAnswer::Swap>& swaps);
    void Reload(int historyIndex);
    bool IsMoveInPage(const QString& url) const;

    // SimFrames.cpp: the frames of a page, by the numbers of their elements.
    std::shared_ptr<SimDocument> DocumentInFrame(SimDocument& page, int frame) override;
    void BeginEmbedded();
    void ShowEmbeddedText(int frame);
    void AskForEmbedded(const QString& url, int element, bool isFrame);
    void LoadFrame(const SimRequest& request, int frame, bool holdsPage);
    enum class Reach { Same, Foreign };
    std::shared_ptr<SimDocument> ShowInFrame(int frame, const QString& html, const QString& url,
                                             Reach reach = Reach::Same);
    void FrameCompletes(const QString& url, bool holdsPage);
    void FrameIsDone(bool isAwaited);
    void DropFrames();
    // 0: no frame of the page, or none of that name.
    int FrameOf(const SimDocument& document) const;
    int FrameNamed(const QString& name) const;

    // SimActs.cpp: what clicks, forms and stand-ins do, in the page or in a frame of it.
    void ElementClicked(SimDocument& page, int node) override;
    void FormSubmitted(SimDocument& page, int form) override;
    void ScrolledToEnd(SimDocument& page) override;
    void ValueWritten(SimDocument& page, int node) override;
    void ChangeFired(SimDocument& page, int node) override;
    void GotFocus(SimDocument& page, int node) override;
    void Touched() override { m_pump.Queue().EndTurn(); }
    void ClickControl(SimDocument& page, int node);
    void FollowAddress(SimDocument& page, const QString& url, const QString& target);
    void SendForm(SimDocument& page, int form, int pressed);
    void SendBeside(SimDocument& page, int form);
    bool LoadElsewhere(SimDocument& page, const SimRequest& request, const QString& target);
    void RunScript(SimDocument& page, const QString& script);
    void RunScriptIn(SimDocument& page, const QString& script);
    void RunStandIns(SimDocument& page, const QString& text);
    void CarryOut(SimDocument& page, const StandIn& act);
    void RunAllWith(SimDocument& page, const QString& attribute);
    int Need(const QString& selector);
    SimTree& Tree() { return m_document->Tree(); }

    SimWeb& m_web;
    SimPump& m_pump;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);

    std::shared_ptr<SimDocument> m_document;
    struct Frame {
        std::shared_ptr<SimDocument> document;
        Reach reach;
    };
    std::map<int, Frame> m_frames;
    QString m_location;
    bool m_isComplete = false;

    // A question or a load that carries an older number than these has been overtaken.
    quint64 m_questionRound = 0;
    quint64 m_loadRound = 0;
    int m_questions = 0;
    bool m_isLoading = false;
    bool m_hasCommitted = false;
    bool m_neverEnds = false;
    int m_framesLeft = 0;
    quint64 m_arrivalNumber = 0;
    std::vector<SimAnswer::Swap> m_swaps;

    std::vector<SimRequest> m_history;
    int m_historyIndex = -1;

    QStringList m_visited;
    std::vector<Posted> m_posted;
};

} // namespace qlm
