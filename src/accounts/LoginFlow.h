// SPDX-License-Identifier: MIT
#pragma once

#include "steps/StepMachine.h"

#include <QString>
#include <functional>

namespace qlm {

class Element;

// Brings the browser from any page to a session logged in as AccountEmail. Each step sets what it awaits and
// returns; the action tick calls the machine again when the page is there.
class LoginFlow {
public:
    explicit LoginFlow(App& app);

    // The step routine.
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
    // The next account of a chain; the one before it has been saved.
    void LogInChainedAccount(const QString& email, const QString& password);

    // What follows a login in a chain of accounts: the campaign goes on with this one.
    std::function<void()> goOnInChain;

private:
    static const StepMachine<LoginFlow>& Machine();
    void BeginStep();
    void LoginFormWins();
    void RestoreAccount();

    void BeginWith(const QString& email, const QString& password, qint16 step);

    Next OpenSite();
    Next SignOut();
    void ClickSignOutLink();
    Next OpenLoginPage();
    Next SendForm();
    Next FinishLogin();

    void FillAndSubmit();
    void WaitForCompletePage();
    void Press(const Element& button, bool stopFirst);
    void WaitUntilIdle();
    void ReadProfileID();
    void ShowLoggedInAs();
    void StopProblemTimer();
    void tmrLoginProblem_Timer();

    void Await(const QString& type, const QString& value, const QString& excludedText = {});
    void Log(const QString& text);

    App& m_app;
    bool m_languageTold = false;
};

} // namespace qlm
