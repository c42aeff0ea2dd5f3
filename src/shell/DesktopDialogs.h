// SPDX-License-Identifier: MIT
#pragma once

#include "shell/WindowDialogs.h"

namespace qlm {

// The dialogs of the product: each comes up over the active window and waits for the user.
class DesktopDialogs : public WindowDialogs {
public:
    QString ChooseFileToOpen(const QString& title, const QString& filter) override;
    QString ChooseFileToSave(const QString& title, const QString& suggestedName,
                             const QString& filter) override;

    // "Text files (txt)|*.txt;|All files (*.*)|*.*" as Qt wants it: "Text files (txt) (*.txt);;All files
    // (*)".
    static QString QtFilter(const QString& filter);
    // "txt": the suggested name's, else that of the filter's first pattern; none for "*.*".
    static QString UsualSuffix(const QString& suggestedName, const QString& filter);

    // Answers every box and file dialog that is open as Escape does: they would hold up the program's end.
    void DismissBoxes();

protected:
    void RunModal(const QString& form, QDialog& dialog) override;
    Answer RunMessage(const QString& text, const QString& title, Buttons buttons) override;

private:
    QString Remember(const QString& path);

    QString m_folder; // of the last file that was chosen
};

} // namespace qlm
