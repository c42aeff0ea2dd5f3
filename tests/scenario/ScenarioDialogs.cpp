// SPDX-License-Identifier: MIT
#include "ScenarioDialogs.h"
#include "Arguments.h"
#include "Play.h"

#include <QDialog>
#include <QPointer>

namespace qlm::scenario {

using namespace Qt::Literals::StringLiterals;

namespace {

QString AsWritten(QString text) {
    return text.replace(u"\r\n"_s, u"\n"_s);
}

// In a box with OK and Cancel, Yes presses OK.
Dialogs::Answer PressedOf(Dialogs::Answer answer) {
    if (answer == Dialogs::Answer::No)
        Fail(u"a box with OK and Cancel is answered Yes or Cancel"_s);
    return answer == Dialogs::Answer::Yes ? Dialogs::Answer::Ok : answer;
}

} // namespace

ScenarioDialogs::ScenarioDialogs(std::function<Play&()> play) : m_play(std::move(play)) {}

Dialogs::Answer ScenarioDialogs::RunMessage(const QString& text, const QString& title, Buttons buttons) {
    const Box box{AsWritten(text), title};
    const bool isMessage = buttons == Buttons::Ok || buttons == Buttons::OkOrStay;
    (isMessage ? messages : questions).push_back(box);
    if (buttons == Buttons::Ok)
        return Answer::Ok;
    for (auto answer = answers.begin(); answer != answers.end(); ++answer) {
        if (!box.text.contains(answer->words))
            continue;
        const Answer chosen = answer->answer;
        answers.erase(answer);
        return buttons == Buttons::OkCancel ? PressedOf(chosen) : chosen;
    }
    if (isMessage)
        return Answer::Ok;
    Fail(u"a question has no answer: \"%1\""_s.arg(box.text));
}

QString ScenarioDialogs::ChooseFile(const QString& title) {
    if (filesToChoose.isEmpty())
        Fail(u"a file dialog has no answer: \"%1\""_s.arg(title));
    return filesToChoose.takeFirst();
}

QString ScenarioDialogs::ChooseFileToOpen(const QString& title, const QString&) {
    return ChooseFile(title);
}

QString ScenarioDialogs::ChooseFileToSave(const QString& title, const QString&, const QString&) {
    return ChooseFile(title);
}

void ScenarioDialogs::ShowForm(const QString& form) {
    const bool wasOpen = IsFormOpen(form);
    WindowDialogs::ShowForm(form);
    if (!quiet && !wasOpen && IsFormOpen(form))
        m_play().OnForm(form, false);
}

void ScenarioDialogs::RunModal(const QString& form, QDialog& dialog) {
    const QPointer<QDialog> shown(&dialog);
    auto closed = [&shown] { return !shown || !shown->isVisible(); };
    dialog.show();
    m_play().OnForm(form, true);
    if (!closed())
        m_play().OnModalLoop(closed);
}

} // namespace qlm::scenario
