// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <functional>
#include <memory>
#include <optional>
#include <stdexcept>

namespace qlm {

// Message boxes, file dialogs and the program's own forms. Modal calls return when the user has answered; the
// message loop turns meanwhile.
class Dialogs {
public:
    // OkOrStay is a message before an end that can still be called off: Cancel stays. OkCancel asks before
    // something that cannot be taken back.
    enum class Buttons { Ok, YesNo, YesNoCancel, OkOrStay, OkCancel };
    enum class Answer { Ok, Yes, No, Cancel };

    virtual ~Dialogs() = default;
    // An empty title shows the program's name.
    virtual Answer ShowMessage(const QString& text, const QString& title, Buttons buttons) = 0;
    // filter in the form "Text files (txt)|*.txt;|All files (*.*)|*.*". Empty when the user cancelled.
    virtual QString ChooseFileToOpen(const QString& title, const QString& filter) = 0;
    virtual QString ChooseFileToSave(const QString& title, const QString& suggestedName,
                                     const QString& filter) = 0;

    // The program's own forms by name ("frmTimeDelay"). ShowModal returns when the form has been closed.
    virtual void ShowModal(const QString& form) = 0;
    virtual void ShowForm(const QString& form) = 0;
    virtual void CloseForm(const QString& form) = 0;
    // Takes an open form off the screen, or brings it back, without closing it: who waits for it waits on.
    virtual void SetFormVisible(const QString& form, bool visible) = 0;
    virtual bool IsFormOpen(const QString& form) const = 0;
    virtual QStringList OpenForms() const = 0;
    // Closes the open window with that title, of the program or of the page; false when there is none.
    virtual bool CloseWindowTitled(const QString& title) = 0;
};

// An address could not be fetched, or not to its end.
class HttpError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

// The bytes at an address, piece by piece. The fetching ends with the object, wherever it stands.
class Download {
public:
    virtual ~Download() = default;
    // Adds the next bytes to the empty array, and pumps messages while it waits for them; false when those
    // were the last. Throws HttpError when the server cannot be reached, answers with an error status, says
    // nothing for long or ends before its announced end, and after Cancel().
    virtual bool NextPart(QByteArray& part) = 0;
    // How many bytes the server has announced; -1 while it has not.
    virtual qint64 Announced() const = 0;
    // From a handler, while NextPart() pumps.
    virtual void Cancel() = 0;
};

// Plain GET outside the browser, past any cache.
class Http {
public:
    virtual ~Http() = default;
    // Begins at once. It is not to outlive the platform.
    virtual std::unique_ptr<qlm::Download> Download(const QString& url) = 0;
    // The body of the answer; nothing when the address could not be opened. Pumps messages while it waits.
    virtual std::optional<QString> Get(const QString& url) = 0;
};

// The durable settings: text values under section and key. Sections nest by backslash
// ("Counters\a@example.com").
class SettingsStore {
public:
    virtual ~SettingsStore() = default;
    virtual QString GetSetting(const QString& section, const QString& key, const QString& fallback) const = 0;
    virtual void SaveSetting(const QString& section, const QString& key, const QString& value) = 0;
    virtual bool HasSection(const QString& section) const = 0;
    // Every section that holds a value of its own.
    virtual QStringList Sections() const = 0;
    // The keys of a section, not of those below it.
    virtual QStringList Keys(const QString& section) const = 0;
    // Deletes the section and all below it.
    virtual void DeleteSetting(const QString& section) = 0;
    // Makes what was saved so far durable.
    virtual void Sync() = 0;
    // A message for the user when the stored settings could not be read as they stood; empty otherwise.
    virtual QString TakeProblem() { return {}; }
};

// The desktop outside the program's windows.
class Shell {
public:
    virtual ~Shell() = default;
    virtual void OpenFolder(const QString& path) = 0;
    virtual void OpenAddress(const QString& url) = 0;
    virtual void OpenFile(const QString& path) = 0;
    // Ends the process: the message loop is left as soon as the present handler has returned.
    virtual void Quit() = 0;
    // Ends the process outright, for a shutdown that hangs.
    virtual void EndProcess() = 0;
};

// How the user is called when they are looking elsewhere.
class Attention {
public:
    virtual ~Attention() = default;
    virtual void PlayWAV(const QString& path) = 0;
    virtual void FlashWindow() = 0;
    // Restores the main window if it is minimised.
    virtual void RestoreWindow() = 0;
    // A note beside the icon in the tray, which goes by itself. False where there is none: without an icon,
    // or on a desktop that shows no notes.
    virtual bool Notify(const QString& title, const QString& text) = 0;
};

// The program's icon among those that a desktop keeps for programs without a window. Its events arrive from
// PumpMessages().
class Tray {
public:
    virtual ~Tray() = default;
    // False, and nothing shows, on a desktop that keeps no such icons.
    virtual bool Show(const QString& toolTip, const QStringList& menu) = 0;
    virtual void Hide() = 0;
    virtual bool IsShown() const = 0;

    // A double-click; a single one too, since many a desktop tells no other.
    std::function<void()> onActivate;
    // The number of the menu's item, from 0.
    std::function<void(int item)> onMenuItem;
};

// The windows on the screen, as far as the program may touch them.
class Desktop {
public:
    virtual ~Desktop() = default;
    // The name of the program's window that has the input focus ("frmMain"); empty when another program has
    // it.
    virtual QString ForegroundWindow() = 0;
    // Gives the input focus to the program's window of that name. A name that no window has changes nothing.
    virtual void SetForegroundWindow(const QString& window) = 0;
    // A picture of the main window as the bytes of a bitmap file; empty when none could be taken.
    virtual QByteArray CaptureWindow() = 0;
};

class Random {
public:
    virtual ~Random() = default;
    // In [0, 1).
    virtual double Next() = 0;
};

} // namespace qlm
