// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// The files that a user attaches to a report, and files written for the moment.
class SupportFiles {
public:
    explicit SupportFiles(App& app);

    // Saves a picture of the main window, then the source of its page, each where the user says.
    void mnuSaveScreenshot_Click();
    // Writes the markup of the page in WebBrowser1. Throws FileError.
    void SavePageSource(const QString& path);
    // Writes the text to the file, or to one of that name in the temp folder where the file can't be written.
    // Answers the path of the file that was written; throws FileError when neither could be.
    QString LoadDataIntoFile(const QString& data, const QString& path);
    // The folder for files of the moment.
    QString TempFolder() const;

private:
    void SaveScreenshot();
    void AskForPageSource();

    App& m_app;
};

} // namespace qlm
