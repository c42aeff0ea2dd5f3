// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// A private-profile file: "[section]" lines with key=value lines below. Section and key names ignore letter
// case. The file is read and written anew at each call; nothing is kept.
class clsINI {
public:
    clsINI(App& app, const QString& path) : INIFile(path), m_app(app) {}

    // The value without blanks and without one pair of quotes around it; empty when file, section or key is
    // missing.
    QString ReadIni(const QString& section, const QString& key) const;
    // Replaces the key's line, or adds it, and the section, at the end. Throws FileError.
    void WriteIni(const QString& section, const QString& key, const QString& value) const;

    QString INIFile;

private:
    App& m_app;
};

} // namespace qlm
