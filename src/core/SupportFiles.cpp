// SPDX-License-Identifier: MIT
#include "core/SupportFiles.h"

#include "core/AnsiText.h"
#include "core/App.h"

#include <QFileInfo>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
const QString Advice = u" Please attach it to your report when you write to us."_s;
}

SupportFiles::SupportFiles(App& app) : m_app(app) {
    app.commands.Add(u"mnuSaveScreenshot_Click"_s, [this] { mnuSaveScreenshot_Click(); });
}

void SupportFiles::mnuSaveScreenshot_Click() {
    m_app.diagnostics.Trap("mnuSaveScreenshot_Click", [this] { SaveScreenshot(); });
    m_app.diagnostics.Trap("SavePageSource", [this] { AskForPageSource(); });
}

// Taken before the dialog comes up, which would be in the picture.
void SupportFiles::SaveScreenshot() {
    const QByteArray picture = m_app.platform.Desktop().CaptureWindow();
    if (picture.isEmpty()) {
        m_app.ShowMessage(
            u"An error has occurred while trying to take the screenshot. This could possibly have occurred "
            "if you have a third-party application installed for taking screenshots."_s);
        return;
    }
    const QString path = m_app.platform.Dialogs().ChooseFileToSave(
        u"Save Screenshot"_s, u"Screenshot.bmp"_s, u"Bitmap (bmp)|*.bmp;|All files (*.*)|*.*"_s);
    if (path.isEmpty())
        return;
    m_app.files.WriteBytes(path, picture);
    m_app.ShowMessage(u"A screenshot of the current window has been saved."_s + Advice);
}

void SupportFiles::AskForPageSource() {
    const QString path = m_app.platform.Dialogs().ChooseFileToSave(
        u"Save Page Source"_s, u"Pagesource.txt"_s, u"Text Documents (txt)|*.bmp;|All files (*.*)|*.*"_s);
    if (path.isEmpty())
        return;
    SavePageSource(path);
    m_app.ShowMessage(u"The source code of the current web page has been saved."_s + Advice);
}

void SupportFiles::SavePageSource(const QString& path) {
    m_app.files.WriteBytes(path, ToAnsi(m_app.diagnostics.Masked(m_app.WebBrowser1().Document().BodyHTML())));
}

QString SupportFiles::TempFolder() const {
    return m_app.DataFile(u"temp"_s);
}

QString SupportFiles::LoadDataIntoFile(const QString& data, const QString& path) {
    const QByteArray bytes = ToAnsi(data);
    bool written = false;
    Diagnostics::IgnoreErrors([&] {
        m_app.files.WriteBytes(path, bytes);
        written = true;
    });
    if (written)
        return path;
    m_app.files.CreateFolder(TempFolder());
    const QString instead = FileSystem::Join(TempFolder(), QFileInfo(path).fileName());
    m_app.files.WriteBytes(instead, bytes);
    return instead;
}

} // namespace qlm
