// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

class App;

// frmPreview: a text as the site would show it, in the page of a template. The browser is sealed: nothing of
// the text runs, loads or leads anywhere.
class Preview {
public:
    explicit Preview(App& app);

    enum class As { Markup, Text };
    // Shows the window; returns when it has been closed. kind is "MESSAGE", "BULLETIN" or empty. As markup,
    // line ends become line breaks of the page.
    void Show(const QString& kind, const QString& text, As as);

private:
    QString TemplateFile() const;
    void Form_Load();
    void Open(const QString& address);
    void LoadTemplate();
    void ShowBareText();

    App& m_app;
    bool m_isOpen = false;
    QString strPreviewKind;
    QString strPreviewText;
    bool blnPreviewAsText = false;
};

} // namespace qlm
