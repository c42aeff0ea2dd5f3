// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Services.h"

#include <deque>
#include <functional>
#include <map>
#include <vector>

namespace qlm {

// Dialogs for tests without a window: every box is recorded and closes at once, with the next scripted answer
// where one is asked for. A question without an answer is answered Cancel, or No where there is no Cancel,
// and recorded in `unanswered`.
class RecordingDialogs : public Dialogs {
public:
    struct Message {
        QString text;
        QString title;
        Buttons buttons;
    };

    Answer ShowMessage(const QString& text, const QString& title, Buttons buttons) override;
    QString ChooseFileToOpen(const QString& title, const QString& filter) override;
    QString ChooseFileToSave(const QString& title, const QString& suggestedName,
                             const QString& filter) override;
    void ShowModal(const QString& form) override;
    void ShowForm(const QString& form) override;
    void CloseForm(const QString& form) override { m_open.removeAll(form); }
    void SetFormVisible(const QString& form, bool visible) override;
    bool IsFormOpen(const QString& form) const override { return m_open.contains(form); }
    QStringList OpenForms() const override { return m_open; }
    bool CloseWindowTitled(const QString& title) override;

    std::vector<Message> messages;
    QStringList Texts() const;
    QStringList unanswered;
    std::deque<Answer> answers;
    std::deque<QString> files; // the next file dialogs' choices; empty text cancels
    // What the file dialogs were opened with: title, suggested name and filter, on a line each.
    QStringList fileDialogs;
    QStringList shownForms;          // in order, modal or not
    QStringList hiddenForms;         // open, and off the screen for a while
    QStringList windowTitles;        // open windows that CloseWindowTitled() can close
    std::function<void()> onMessage; // what happens while a box is up
    // What happens in a modal form until it closes.
    std::map<QString, std::function<void()>> onModal;

private:
    QString NextFile();
    QStringList m_open;
};

} // namespace qlm
