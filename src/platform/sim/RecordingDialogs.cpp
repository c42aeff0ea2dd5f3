// SPDX-License-Identifier: MIT
#include "platform/sim/RecordingDialogs.h"

namespace qlm {

Dialogs::Answer RecordingDialogs::ShowMessage(const QString& text, const QString& title, Buttons buttons) {
    messages.push_back({text, title, buttons});
    if (onMessage)
        onMessage();
    if (buttons == Buttons::Ok || (buttons == Buttons::OkOrStay && answers.empty()))
        return Answer::Ok;
    if (answers.empty()) {
        unanswered += text;
        return buttons == Buttons::YesNo ? Answer::No : Answer::Cancel;
    }
    const Answer answer = answers.front();
    answers.pop_front();
    return answer;
}

QString RecordingDialogs::NextFile() {
    if (files.empty())
        return {};
    const QString file = files.front();
    files.pop_front();
    return file;
}

QString RecordingDialogs::ChooseFileToOpen(const QString& title, const QString& filter) {
    return ChooseFileToSave(title, {}, filter);
}

QString RecordingDialogs::ChooseFileToSave(const QString& title, const QString& suggestedName,
                                           const QString& filter) {
    fileDialogs += title + u'\n' + suggestedName + u'\n' + filter;
    return NextFile();
}

void RecordingDialogs::ShowModal(const QString& form) {
    ShowForm(form);
    if (const auto act = onModal.find(form); act != onModal.end())
        act->second();
    CloseForm(form);
}

void RecordingDialogs::ShowForm(const QString& form) {
    shownForms += form;
    if (!m_open.contains(form))
        m_open += form;
}

void RecordingDialogs::SetFormVisible(const QString& form, bool visible) {
    hiddenForms.removeAll(form);
    if (!visible)
        hiddenForms += form;
}

bool RecordingDialogs::CloseWindowTitled(const QString& title) {
    return windowTitles.removeOne(title);
}

QStringList RecordingDialogs::Texts() const {
    QStringList texts;
    for (const Message& message : messages)
        texts += message.text;
    return texts;
}

} // namespace qlm
