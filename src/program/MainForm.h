// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

class App;

// The main window's own procedures: load, unload, and the buttons of its frame. The widgets are the window
// library's.
class MainForm {
public:
    explicit MainForm(App& app);

    // Called by the window when it has been built and bound, before it is first shown.
    void Form_Load();
    // Called by the window when it is about to close. False when the window is to stay, since the user wants
    // to see to a list that could not be saved; otherwise the program is ending.
    bool Form_Unload();
    // Closes the main window for who can't be asked: the desktop's session is ending, or the process is told
    // to.
    void UnloadUnasked();
    // Lists and settings as at the end. False when the gathered list could not be saved.
    bool SaveAll();
    // Whether the practice site, where there is one, answers.
    void ShowPracticeSite(bool runs);

    void picSkip_Click();
    void picStop_Click();
    void picGO_Click();
    void picBack_Click();
    void picForward_Click();
    void picHome_Click();
    void picRefresh_Click();
    void mnuExitWhenFinished_Click();
    // caption of the tab that the user has chosen
    void TabStrip1_Click(const QString& caption);

    // Set by the window while it is there.
    std::function<void(const QString&)> setTitle;

private:
    void RegisterCommands();
    // On the controls that need what the program cannot do yet.
    bool MayClose();
    void Browse(const std::function<void()>& move);

    App& m_app;
    bool m_unloading = false;
    bool m_asks = true;
    bool m_practiceSiteRuns = true;
};

} // namespace qlm
