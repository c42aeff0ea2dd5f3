// SPDX-License-Identifier: MIT
#include "platform/sim/SimPlatform.h"

namespace qlm {

SimPlatform::SimPlatform(SimWorld& world, qlm::Dialogs& dialogs)
    : m_world(world), m_dialogs(dialogs), m_pump(world.clock), m_http(world.http, m_pump), m_tray(m_pump) {}

SimBrowser& SimPlatform::Browser(BrowserName name) {
    std::unique_ptr<SimBrowser>& browser = m_browsers[name];
    if (!browser) {
        browser = std::make_unique<SimBrowser>(m_world.web, m_pump);
        if (name == BrowserName::webPreview)
            browser->Seal();
    }
    return *browser;
}

QString SimPlatform::SpecialFolderPath(int id) const {
    constexpr int localApplicationData = 28;
    if (id != localApplicationData)
        return {};
    return m_world.dataFolder.endsWith(u'/') ? m_world.dataFolder : m_world.dataFolder + u'/';
}

} // namespace qlm
