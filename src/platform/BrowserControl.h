// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Document.h"

#include <functional>
#include <set>

namespace qlm {

// webPreview is sealed from the start.
enum class BrowserName { WebBrowser1, webHide, webTemp, webNews, webPreview };

// A navigation that is about to begin. headers is empty for a plain click on a link; a load that an embedded
// part of the page asked for carries some.
struct NavigationRequest {
    struct Input {
        QString id;
        QString name;
        QString value;
        QString type; // lower case
    };

    QString url;
    QString headers;
    QString targetFrameName;
    bool topLevel = true;
    bool isProgram = false; // by Navigate(), Refresh() or a move in the history, not by the page
    // A form is being sent: what its page's input elements held at that moment, in page order, and the page's
    // address and visible text. Such a navigation is on its way already and the answer of the handler doesn't
    // hold it; the page may be gone.
    bool isForm = false;
    std::vector<Input> inputs;
    QString pageAddress;
    QString pageText;
};

// What a browser tells its host. Every event is queued by the platform and arrives from PumpMessages(), never
// from a property read; the two questions (BeforeNavigate2, NewWindow2) have been held back until the answer
// is there.
struct BrowserEvents {
    // True cancels (about:blank is told, not held). The handler may read the page, click and pump.
    std::function<bool(const NavigationRequest&)> beforeNavigate2;
    // True cancels the new window; false lets it open as a window of its own.
    std::function<bool(const QString& url)> newWindow2;
    std::function<void(const QString& url)> navigateComplete2;
    // topLevel is false for a frame of the page.
    std::function<void(bool topLevel, const QString& url)> documentComplete;
    std::function<void(const QString& text)> statusTextChange;
    // The page was right-clicked: true lets its own menu come up.
    std::function<bool()> contextMenu;
    // The visible address changed without a load, or the title did; shows only.
    std::function<void(const QString& title)> titleChange;
};

// One embedded browser: exactly the operations that the program's logic needs. Two implementations stand
// behind it, a real engine and a simulated site; the contract tests hold both to what is said here.
//
// After Navigate("about:blank") the control reports about:blank, an empty document and readiness at once,
// whatever the engine still shows, and nothing of an older document passes for the new one. After Navigate()
// to any other address the present document stays until the new one has arrived.
//
// A page can always be left: no unload prompt of its scripts is ever shown or holds a navigation back, Silent
// or not. So no page's scripts need to be edited before it is left.
class BrowserControl {
public:
    virtual ~BrowserControl() = default;

    // Starts loading and returns at once. An address without a scheme gets "http://"; "javascript:" runs in
    // the page.
    void Navigate(const QString& url) {
        if (url != u"about:blank" && !url.startsWith(u"javascript:"))
            m_lastAsked = url;
        GoTo(url);
    }
    // What Navigate() was last asked for, other than about:blank and scripts.
    QString LastAsked() const { return m_lastAsked; }
    virtual void Stop() = 0;
    virtual void GoBack() = 0;
    virtual void GoForward() = 0;
    virtual void Refresh() = 0;

    // The present document; a null document before the first load has reached one.
    virtual qlm::Document Document() = 0;
    virtual QString LocationURL() = 0;
    // 4 means complete; lower: the page is still building or a load is under way, from Navigate() on.
    virtual int ReadyState() = 0;
    virtual bool Busy() = 0;

    // The engine's own process identity changes when it was lost and started again; 0 where there is none.
    virtual qint64 RendererProcessId() const { return 0; }
    // Calls into the engine so far, for the measures.
    virtual qint64 EngineCalls() const { return 0; }

    // While somebody refuses them, navigations that the page or the user begins are refused at once and not
    // reported. Each holder ends its own refusal; whose refusal was ended by EndRefusals() ends nothing more.
    quint64 BeginRefusal() {
        m_refusals.insert(++m_lastRefusal);
        return m_lastRefusal;
    }
    void EndRefusal(quint64 number) { m_refusals.erase(number); }
    void EndRefusals() { m_refusals.clear(); }
    bool RefusesNavigations() const { return m_isSealed || !m_refusals.empty(); }

    // Suppresses script and certificate boxes. A box that is suppressed is answered with its safe default.
    void SetSilent(bool silent) { m_silent = silent; }
    bool Silent() const { return m_silent; }

    // From now on the control shows what it is given and nothing more: no script of a page runs, nothing is
    // fetched but what Navigate() asks for, and nobody but Navigate() leads to another page.
    void Seal() {
        m_isSealed = true;
        OnSealed();
    }
    bool IsSealed() const { return m_isSealed; }

    void SetVisible(bool visible) { m_visible = visible; }
    bool Visible() const { return m_visible; }

    // 0 brings the control to the front of its container, 1 sends it to the back.
    void ZOrder(int position);
    int Position() const { return m_position; }
    // Keys go to the page from now on, to its element that has the focus.
    void TakeFocus() {
        if (onTakeFocus)
            onTakeFocus();
    }

    BrowserEvents events;
    // The container's share of ZOrder().
    std::function<void(int position)> onZOrder;
    // The container's share of TakeFocus().
    std::function<void()> onTakeFocus;

protected:
    virtual void GoTo(const QString& url) = 0;
    virtual void OnSealed() {}

private:
    bool m_silent = false;
    bool m_isSealed = false;
    bool m_visible = true;
    std::set<quint64> m_refusals;
    quint64 m_lastRefusal = 0;
    int m_position = 1;
    QString m_lastAsked;
};

inline void BrowserControl::ZOrder(int position) {
    m_position = position;
    if (onZOrder)
        onZOrder(position);
}

} // namespace qlm
