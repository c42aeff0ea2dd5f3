// SPDX-License-Identifier: MIT
#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

Timers::Timers(MessageQueue& queue)
    : Timer1(queue, 400, false),
      tmrCheckLinkLoaded(queue, 3000, false),
      tmrAutoResume(queue, 40000, false),
      tmrHelper(queue, 1000, false),
      tmrBulletinWait(queue, 60000, false),
      tmrStatusUpdatesWait(queue, 60000, false),
      tmrLoginProblem(queue, 36000, false),
      tmrAutoStart(queue, 60000, true),
      tmrNewVersionAvailable(queue, 3000, false),
      tmrQuit(queue, 6000, true) {}

QString App::Version() const {
    return QStringLiteral(QUILLMERE_VERSION);
}

QString App::NowText() {
    return Pump().Now().toString(u"yyyy-MM-dd hh:mm:ss"_s);
}

QString App::InstalledFile(const QString& name) const {
    const QString path = ProgramFile(name);
    return files.FileExists(path) ? path : FileSystem::Join(platform.InstallationFolder(), name);
}

void App::ShowTab(const QString& caption) {
    controls.SetSelected("TabStrip1"_L1, static_cast<int>(controls.Items("TabStrip1"_L1).indexOf(caption)));
}

void App::Close() {
    if (platform.Dialogs().IsFormOpen(u"frmMain"_s)) {
        platform.Dialogs().CloseForm(u"frmMain"_s);
        return;
    }
    CloseForms({});
    state.blnClosing = true;
    platform.Shell().Quit();
}

void App::CloseForms(const QString& except) {
    for (const QString& form : platform.Dialogs().OpenForms())
        if (form != except)
            platform.Dialogs().CloseForm(form);
}

QString App::Status() const {
    return controls.Text("myfraCurrentAction"_L1);
}

void App::SetStatus(const QString& text) {
    controls.SetText("myfraCurrentAction"_L1, text);
}

void App::ShowMessage(const QString& text, const QString& title) {
    platform.Dialogs().ShowMessage(text, title, Dialogs::Buttons::Ok);
}

bool App::AskYesNo(const QString& text, const QString& title) {
    return platform.Dialogs().ShowMessage(text, title, Dialogs::Buttons::YesNo) == Dialogs::Answer::Yes;
}

void App::ClearPage() {
    WebBrowser1().Navigate(u"about:blank"_s);
    waiting.Pump();
}

} // namespace qlm
