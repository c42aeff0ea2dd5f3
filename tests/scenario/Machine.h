// SPDX-License-Identifier: MIT
#pragma once

#include "platform/sim/SimPlatform.h"

class QWidget;

namespace qlm::scenario {

// What a scenario plays one run of the program on, and the user in front of its page. The simulated one is
// made of the simulated browser and the virtual clock; the other one shows the same pages in the real engine.
class Machine {
public:
    virtual ~Machine() = default;

    virtual Platform& ThePlatform() = 0;
    // Whatever is simulated on both: everything but pages and time.
    virtual SimPlatform& Services() = 0;
    // WebBrowser1 has a load under way that can still end.
    virtual bool AwaitsLoad() = 0;
    // Null when the browser shows nowhere.
    virtual QWidget* ViewOf(BrowserName name) = 0;
    // Called at each turn of the program's message loop.
    virtual void SetOnPump(std::function<void()> onPump) = 0;
    // How long the stage may let it sleep before it looks again for what the browser has to tell.
    virtual qint64 LongestSleepMs() const = 0;

    // The user, in WebBrowser1. An element that is not there throws BrowserError.
    virtual void Browse(const QString& url) = 0;
    virtual void FollowLink(const QString& text) = 0;
    virtual void PageClick(const QString& selector) = 0;
    virtual void PageType(const QString& selector, const QString& text) = 0;
    virtual void RightClick() = 0;
    virtual void ShowStatus(const QString& text) = 0;
    virtual bool IsContextMenuShown() = 0;

    // As SimBrowser tells them.
    virtual QStringList ScriptsRun(BrowserName name) = 0;
    virtual QStringList TakeVisited(BrowserName name) = 0;
    virtual std::vector<SimBrowser::Posted> TakePosted(BrowserName name) = 0;
};

using MachineMaker = std::function<std::unique_ptr<Machine>(SimWorld&, Dialogs&)>;

std::unique_ptr<Machine> MakeSimMachine(SimWorld& world, Dialogs& dialogs);

} // namespace qlm::scenario
