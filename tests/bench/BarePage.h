// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>
#include <QWebEngineView>

namespace qlm {

// What the engine alone costs: for each target a blank page, the request page, its text and its markup,
// through the engine's own calls and nothing else. Shares the sign-in of the profile.
class BarePage {
public:
    explicit BarePage(QWebEngineProfile* profile) : m_page(profile) {}

    // Shows the page in a window of that size; without this it is not shown at all.
    void ShowIn(QSize size);
    // Turns the event loop until all are done. Answers the milliseconds taken. Throws when a page is not a
    // confirmation.
    double Visit(const QStringList& addresses);
    // Each until it has been done.
    void Load(const QUrl& url);
    QString Read(const QString& script);
    // Until the page that the script leads to has come.
    void LoadBy(const QString& script);
    // Text and markup; answers the text.
    QString ReadAll();

private:
    QWebEnginePage m_page;
    std::unique_ptr<QWebEngineView> m_view;
};

} // namespace qlm
