// SPDX-License-Identifier: MIT
#include "content/MessageFile.h"

#include "content/ContentList.h"
#include "core/App.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
const QString Separator = u"xmsgx"_s;
const QString LineBreak = u"\r\n"_s;
const QString LineBreakWord = u"%nl%"_s;
const QString TextFiles = u"Text files (txt)|*.txt;|All files (*.*)|*.*"_s;
} // namespace

MessageFile::MessageFile(App& app) : m_app(app) {
    app.commands.Add(u"piccmdMsgSave_Click"_s, [this] { piccmdMsgSave_Click(); });
    app.commands.Add(u"piccmdMsgLoad_Click"_s, [this] { piccmdMsgLoad_Click(); });
}

void MessageFile::piccmdMsgSave_Click() {
    const Controls& controls = m_app.controls;
    if (!MayLoseLetters(m_app, controls.Text("txtMsgSubject"_L1) + controls.Text("txtMsgMessage"_L1)))
        return;
    const QString chosen = m_app.platform.Dialogs().ChooseFileToSave(u"Save Message"_s, {}, TextFiles);
    if (chosen.isEmpty())
        return;
    QString body = m_app.controls.Text("txtMsgMessage"_L1);
    body.replace(LineBreak, LineBreakWord);
    m_app.files.AppendLine(chosen, m_app.controls.Text("txtMsgSubject"_L1) + Separator + body);
}

void MessageFile::piccmdMsgLoad_Click() {
    const QString chosen = m_app.platform.Dialogs().ChooseFileToOpen(u"Load Message"_s, TextFiles);
    if (chosen.isEmpty())
        return;
    const QString line = m_app.files.ReadLines(chosen).value(0);
    const qsizetype place = line.indexOf(Separator);
    if (place < 0) {
        m_app.ShowMessage(
            u"You can only load a subject/message that has been saved using Quillmere. The file "
            "you have selected seems to be in a different format."_s,
            u"Load Message"_s);
        return;
    }
    m_app.controls.SetText("txtMsgSubject"_L1, line.left(place));
    m_app.controls.SetText("txtMsgMessage"_L1,
                           line.mid(place + Separator.size()).replace(LineBreakWord, LineBreak));
}

} // namespace qlm
