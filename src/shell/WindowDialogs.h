// SPDX-License-Identifier: MIT
#pragma once

#include "platform/BrowserControl.h"
#include "platform/Services.h"

#include <QPointer>
#include <functional>
#include <vector>

class QDialog;
class QWidget;

namespace qlm {

class App;

// Where the main window gets the widgets of the browsers from. They stay the giver's: the window puts them
// into its layout and lets go of them when it is destroyed. A browser without a widget gives nullptr.
class BrowserViews {
public:
    virtual ~BrowserViews() = default;
    virtual QWidget* ViewOf(BrowserName name) = 0;
};

// The program's own forms and message boxes as widgets. How a modal form is waited for and how the user is
// asked is the derived class's: the desktop's dialogs, or a script.
//
// Order of life: made before the platform (which takes it), attached once the App is there, detached before
// the App goes. Detach() destroys all forms.
class WindowDialogs : public Dialogs {
public:
    ~WindowDialogs() override;

    void Attach(App& app, BrowserViews& views);
    void Detach();

    Answer ShowMessage(const QString& text, const QString& title, Buttons buttons) final;
    // A form that is open already comes to the front instead.
    void ShowModal(const QString& form) final;
    // Showing "frmMain" also runs its Form_Load.
    void ShowForm(const QString& form) override;
    void CloseForm(const QString& form) final;
    void SetFormVisible(const QString& form, bool visible) final;
    bool IsFormOpen(const QString& form) const final;
    // In the order in which they came up; the last is the top-most.
    QStringList OpenForms() const final;
    bool CloseWindowTitled(const QString& title) final;

    // The widget of a browser, for a form that shows one.
    QWidget* ViewOf(BrowserName name) const { return m_views->ViewOf(name); }
    // The widget of an open form, nullptr when it isn't open.
    QWidget* FormWidget(const QString& form) const;
    // Message boxes so far.
    int MessageCount() const { return m_messageCount; }
    // The main window tells that it has been closed.
    void MainClosed();

    // Told of the main window when it has been made.
    std::function<void(QWidget&)> onMainWindow;

protected:
    // Shows the form and returns when it has been closed.
    virtual void RunModal(const QString& form, QDialog& dialog) = 0;
    // title is never empty.
    virtual Answer RunMessage(const QString& text, const QString& title, Buttons buttons) = 0;
    // Parent for what comes up now: the active window, else the main window, else none.
    QWidget* ParentWindow() const;

private:
    struct OpenForm {
        QString name;
        QPointer<QWidget> widget;
    };

    QDialog* Create(const QString& form, QWidget* parent);
    QWidget* ParentForm() const;
    // Puts a form that nobody waits for over what may be used now, and so again when that closes.
    void PlaceBeside(QDialog& form);
    void ShowMain();
    void Forget(const QString& form);

    App* m_app = nullptr;
    BrowserViews* m_views = nullptr;
    std::vector<OpenForm> m_forms;
    QPointer<QWidget> m_main; // kept after its closing, until Detach(): steps may still be on their way out
    int m_messageCount = 0;
};

} // namespace qlm
