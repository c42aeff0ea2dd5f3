// SPDX-License-Identifier: MIT
#pragma once

#include "LoopbackServer.h"
#include "PrintText.h"
#include "platform/qt/EngineProfile.h"
#include "platform/qt/QtBrowser.h"

#include <QWebEngineProfile>
#include <gtest/gtest.h>

namespace qlm {

// One browser on the real engine, a loopback server, and every event written down in the order of arrival.
class EngineTest : public ::testing::Test {
protected:
    EngineTest();
    ~EngineTest() override;

    void Serve(const QString& path, const QByteArray& body);
    void Serve(const QString& path, const LoopbackAnswer& answer) { server.Answer(path, answer); }
    void Go(const QString& path) { browser->Navigate(server.Address(path)); }
    // Pumps as the program's waits do until the condition holds; false when the time is over.
    bool WaitUntil(const std::function<bool()>& condition, int limitMs = 30'000);
    bool WaitForText(const QString& text, int limitMs = 30'000);
    // Loads and waits until the document is complete.
    bool Open(const QString& path);
    void PumpFor(int milliseconds);
    QString Text();
    int CountEvents(const QString& start) const;

    LoopbackServer server;
    QtPump pump;
    QObject owner;
    QWebEngineProfile* profile;
    std::unique_ptr<QtBrowser> browser;
    QStringList events;
};

} // namespace qlm
