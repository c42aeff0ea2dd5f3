// SPDX-License-Identifier: MIT
#include "EngineMachine.h"
#include "EnginePages.h"
#include "platform/qt/EngineProfile.h"
#include "platform/qt/QtBrowser.h"

#include <QDir>
#include <QFile>
#include <QNetworkProxy>
#include <QWebEngineProfile>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

// The product's browsers and message loop; the rest is simulated.
class EnginePlatform final : public Platform {
public:
    EnginePlatform(SimWorld& world, qlm::Dialogs& dialogs, int speed)
        : m_services(world, dialogs), m_pump(speed), m_profile(CreateEngineProfile(&m_profileOwner)) {}
    ~EnginePlatform() override { m_browsers.clear(); }

    SimPlatform& Services() { return m_services; }
    QtPump& Pump() override { return m_pump; }
    qlm::Dialogs& Dialogs() override { return m_services.Dialogs(); }
    qlm::Http& Http() override { return m_services.Http(); }
    SettingsStore& Settings() override { return m_services.Settings(); }
    qlm::Shell& Shell() override { return m_services.Shell(); }
    qlm::Attention& Attention() override { return m_services.Attention(); }
    qlm::Tray& Tray() override { return m_services.Tray(); }
    qlm::Archive& Archive() override { return m_services.Archive(); }
    qlm::Random& Random() override { return m_services.Random(); }
    qlm::Desktop& Desktop() override { return m_services.Desktop(); }
    qlm::WriteGate* WriteGate() override { return m_services.WriteGate(); }
    QString InstallationFolder() const override { return m_services.InstallationFolder(); }
    QString SpecialFolderPath(int id) const override { return m_services.SpecialFolderPath(id); }
    QString TemporaryFolder() const override { return m_services.TemporaryFolder(); }
    QString DeploymentText() const override { return m_services.DeploymentText(); }

    QtBrowser& Browser(BrowserName name) override {
        std::unique_ptr<QtBrowser>& browser = m_browsers[name];
        if (!browser) {
            browser = std::make_unique<QtBrowser>(m_pump, *m_profile);
            browser->events.navigateComplete2 = [this, name](const QString& url) { onArrival(name, url); };
        }
        return *browser;
    }

    std::function<void(BrowserName, const QString& url)> onArrival;

private:
    SimPlatform m_services;
    QtPump m_pump;
    // Pages must go before their profile.
    QObject m_profileOwner;
    QWebEngineProfile* m_profile;
    std::map<BrowserName, std::unique_ptr<QtBrowser>> m_browsers;
};

class EngineMachine final : public Machine {
public:
    EngineMachine(SimWorld& world, Dialogs& dialogs, int speed);

    Platform& ThePlatform() override { return m_platform; }
    SimPlatform& Services() override { return m_platform.Services(); }
    bool AwaitsLoad() override { return Shown().Busy() && !m_pages.WithholdsPage(); }
    QWidget* ViewOf(BrowserName name) override { return m_platform.Browser(name).View(); }
    void SetOnPump(std::function<void()> onPump) override;
    qint64 LongestSleepMs() const override { return WallSleepMs * m_speed; }

    void Browse(const QString& url) override;
    void FollowLink(const QString& text) override { Press(LinkOf(text)); }
    void PageClick(const QString& selector) override { Press(Need(selector)); }
    void PageType(const QString& selector, const QString& text) override {
        Need(selector).SetInnerText(text);
    }
    void RightClick() override { throw BrowserError("offscreen there is no mouse"); }
    void ShowStatus(const QString&) override { throw BrowserError("the engine tells its own status"); }
    bool IsContextMenuShown() override { return false; }

    QStringList ScriptsRun(BrowserName) override { return {}; }
    QStringList TakeVisited(BrowserName name) override { return std::exchange(m_visited[name], {}); }
    std::vector<SimBrowser::Posted> TakePosted(BrowserName name) override;

private:
    static constexpr qint64 WallSleepMs = 4;

    QtBrowser& Shown() { return m_platform.Browser(BrowserName::WebBrowser1); }
    Element Need(const QString& selector);
    Element LinkOf(const QString& text);
    static void Press(const Element& element);
    void KeepClock();
    void Note(BrowserName name, const QString& url);
    void SwapLater(const QString& url, const SimAnswer::Swap& swap);

    SimWorld& m_world;
    const int m_speed;
    const qint64 m_startMs;
    EnginePages m_pages;
    EnginePlatform m_platform;
    // The program's handlers run in its own turns alone: what a scenario throws through them must not meet
    // the engine's frames.
    QtPump::Hold m_hold;
    std::map<BrowserName, QStringList> m_visited;
    QString m_browsedTo;
};

EngineMachine::EngineMachine(SimWorld& world, Dialogs& dialogs, int speed)
    : m_world(world),
      m_speed(speed),
      m_startMs(world.clock.NowMs()),
      m_pages(world.web, speed),
      m_platform(world, dialogs, speed),
      m_hold(m_platform.Pump()) {
    QNetworkProxy::setApplicationProxy(
        QNetworkProxy(QNetworkProxy::HttpProxy, u"127.0.0.1"_s, m_pages.Port()));
    m_pages.onRequest = [this] { KeepClock(); };
    m_pages.onSwap = [this](const QString& url, const SimAnswer::Swap& swap) { SwapLater(url, swap); };
    m_platform.onArrival = [this](BrowserName name, const QString& url) { Note(name, url); };
    m_platform.Pump().SetWallClock([this] {
        KeepClock();
        return m_world.clock.Now();
    });
    QFile cover(QDir(world.installationFolder).filePath(u"timedelay.htm"_s));
    if (cover.open(QIODevice::WriteOnly))
        cover.write("<html><body>a short pause</body></html>");
}

void EngineMachine::SetOnPump(std::function<void()> onPump) {
    m_platform.Pump().onPump = [this, onPump = std::move(onPump)] {
        KeepClock();
        onPump();
    };
}

// The stage, the site and the scenario all read the world's clock.
void EngineMachine::KeepClock() {
    m_world.clock.Advance(std::max<qint64>(0, m_startMs + m_platform.Pump().NowMs() - m_world.clock.NowMs()));
}

void EngineMachine::Note(BrowserName name, const QString& url) {
    const bool isUsers = name == BrowserName::WebBrowser1 && !m_browsedTo.isEmpty();
    if (url == u"about:blank"_s || url.startsWith(u"file:"_s))
        return;
    if (isUsers)
        m_browsedTo.clear();
    else
        m_visited[name] << url;
}

void EngineMachine::SwapLater(const QString& url, const SimAnswer::Swap& swap) {
    MessageQueue& queue = m_platform.Pump().Queue();
    queue.PostAt(queue.NowMs() + swap.afterMs, [this, url, html = swap.html] {
        for (const BrowserName name :
             {BrowserName::WebBrowser1, BrowserName::webHide, BrowserName::webTemp}) {
            QtBrowser& browser = m_platform.Browser(name);
            if (browser.LocationURL() == url && browser.Document())
                browser.Document().Body().SetInnerHTML(html);
        }
    });
}

void EngineMachine::Browse(const QString& url) {
    m_browsedTo = url == u"about:blank"_s ? QString() : url;
    Shown().Navigate(url);
}

Element EngineMachine::Need(const QString& selector) {
    const Element element =
        Shown().Document().GetElementById(selector.startsWith(u'#') ? selector.mid(1) : selector);
    if (!element)
        throw BrowserError();
    return element;
}

Element EngineMachine::LinkOf(const QString& text) {
    const std::vector<Element> links = Shown().Document().Links();
    for (const Element& link : links)
        if (link.InnerText().trimmed() == text)
            return link;
    for (const Element& link : links)
        if (link.InnerText().contains(text))
            return link;
    throw BrowserError();
}

void EngineMachine::Press(const Element& element) {
    element.Focus();
    element.Click();
}

// Whose form it was the network doesn't know; only the visible browser sends any.
std::vector<SimBrowser::Posted> EngineMachine::TakePosted(BrowserName name) {
    return name == BrowserName::WebBrowser1 ? m_pages.TakePosted() : std::vector<SimBrowser::Posted>();
}

} // namespace

std::unique_ptr<Machine> MakeEngineMachine(SimWorld& world, Dialogs& dialogs, int speed) {
    return std::make_unique<EngineMachine>(world, dialogs, speed);
}

} // namespace qlm::scenario
