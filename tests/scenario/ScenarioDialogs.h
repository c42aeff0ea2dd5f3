// SPDX-License-Identifier: MIT
#pragma once

#include "shell/WindowDialogs.h"

#include <QStringList>
#include <functional>
#include <vector>

namespace qlm::scenario {

class Play;

// The program's forms as real widgets, and the person before them as the script tells him: boxes with one
// button close by themselves and are kept, questions and file dialogs take the next prepared answer, forms
// play their blocks.
class ScenarioDialogs : public WindowDialogs {
public:
    struct Box {
        QString text;
        QString title;
    };
    struct PreparedAnswer {
        QString words;
        Answer answer;
    };

    explicit ScenarioDialogs(std::function<Play&()> play);

    QString ChooseFileToOpen(const QString& title, const QString& filter) override;
    QString ChooseFileToSave(const QString& title, const QString& suggestedName,
                             const QString& filter) override;

    void ShowForm(const QString& form) override;

    // Boxes not yet expected, oldest first.
    std::vector<Box> messages;
    std::vector<Box> questions;
    std::vector<PreparedAnswer> answers;
    QStringList filesToChoose; // "" is Cancel
    // Forms come up without a word to the script: while the stage itself brings the program into a state.
    bool quiet = false;

protected:
    void RunModal(const QString& form, QDialog& dialog) override;
    Answer RunMessage(const QString& text, const QString& title, Buttons buttons) override;

private:
    QString ChooseFile(const QString& title);

    std::function<Play&()> m_play;
};

} // namespace qlm::scenario
