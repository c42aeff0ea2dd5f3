// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

class App;
class Element;

// Brings the browser from any page to a session logged in as AccountEmail. Runs while CurrentAction is
// "LOGIN": each step sets what it awaits and returns; the action tick calls the machine again when the page
// is there.
class LoginFlow {
public:
    explicit LoginFlow(App& app);

    // One step of the machine: 10, 1, 2, 3, 4.
    void IterateLoginAccount();
    // Fills and submits the login form of the page now shown. Also the silent login of a run that was logged
    // out: then CurrentAction is that run's.
    void DoLogin();
    // The user's ID out of the page's HTML; shows the language message on a page that isn't in English.
    QString GetUsersID2();
    // The value of key in the page's scripts; an empty key means "DisplayFriendId". browserName is
    // "WebBrowser1" or "webHide".
    QString GetPageScriptValue(const QString& browserName, const QString& key);
    // Switch Login: logs in another account, saving the fields of the present one first.
    void LogInSpecifiedAccount(const QString& email, const QString& password);

    // What follows a login in a chain of accounts: the campaign goes on with this one.
    std::function<void()> goOnInChain;

private:
    bool RunStep();
    void BeginStep();
    void LoginFormWins();
    void RestoreAccount();

    void OpenSite();         // 10
    bool SignOut();          // 1; true when there is nobody to sign out
    bool ClickSignOutLink(); // false when the login was stopped meanwhile
    void OpenLoginPage();    // 2
    void FinishLogin();      // 4

    void FillAndSubmit();
    void WaitForCompletePage();
    void Press(const Element& button, bool stopFirst);
    bool WaitUntilIdle();
    void ReadProfileID();
    void ShowLoggedInAs();
    void StopProblemTimer();
    void tmrLoginProblem_Timer();

    void Await(const QString& type, const QString& value, const QString& excludedText = {});
    bool IsLoggingIn(int step) const;
    void Log(const QString& text);

    App& m_app;
    bool m_languageTold = false;
};

} // namespace qlm
