// SPDX-License-Identifier: MIT
#include "Machine.h"

namespace qlm::scenario {

namespace {

class SimMachine final : public Machine {
public:
    SimMachine(SimWorld& world, Dialogs& dialogs) : m_platform(world, dialogs) {}

    Platform& ThePlatform() override { return m_platform; }
    SimPlatform& Services() override { return m_platform; }
    bool AwaitsLoad() override { return Shown().CanBecomeReady(); }
    QWidget* ViewOf(BrowserName) override { return nullptr; }
    void SetOnPump(std::function<void()> onPump) override { m_platform.Pump().onPump = std::move(onPump); }
    qint64 LongestSleepMs() const override { return 1'000'000'000; }

    void Browse(const QString& url) override { Shown().Browse(url); }
    void FollowLink(const QString& text) override { Shown().FollowLink(text); }
    void PageClick(const QString& selector) override { Shown().PageClick(selector); }
    void PageType(const QString& selector, const QString& text) override { Shown().PageType(selector, text); }
    void RightClick() override { Shown().RightClick(); }
    void ShowStatus(const QString& text) override { Shown().ShowStatus(text); }
    bool IsContextMenuShown() override { return Shown().contextMenuShown.value_or(false); }

    QStringList ScriptsRun(BrowserName name) override { return m_platform.Browser(name).scripts; }
    QStringList TakeVisited(BrowserName name) override { return m_platform.Browser(name).TakeVisited(); }
    std::vector<SimBrowser::Posted> TakePosted(BrowserName name) override {
        return m_platform.Browser(name).TakePosted();
    }

private:
    SimBrowser& Shown() { return m_platform.Browser(BrowserName::WebBrowser1); }

    SimPlatform m_platform;
};

} // namespace

std::unique_ptr<Machine> MakeSimMachine(SimWorld& world, Dialogs& dialogs) {
    return std::make_unique<SimMachine>(world, dialogs);
}

} // namespace qlm::scenario
