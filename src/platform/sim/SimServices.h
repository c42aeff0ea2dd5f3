// SPDX-License-Identifier: MIT
#pragma once

#include "platform/Platform.h"
#include "platform/sim/SimPump.h"

#include <QDateTime>
#include <map>
#include <random>

namespace qlm {

// What the plain GET outside the browser is answered.
struct SimHttpAnswers {
    void Set(const QString& url, const QString& text) { table[url] = {text, false}; }
    void Fail(const QString& url) { table[url] = {std::nullopt, false}; }
    // Accepts and never answers: fails when the product's time limit is over.
    void Hang(const QString& url) { table[url] = {std::nullopt, true}; }
    // The connection ends with the text, before what was announced.
    void BreakOff(const QString& url, const QString& text) { table[url] = {text, false, true}; }

    struct Row {
        std::optional<QString> text;
        bool hangs = false;
        bool breaksOff = false;
    };
    // How much of a download comes at once.
    static constexpr qint64 partSize = 1000;
    static constexpr int hangMs = 30 * 1000;
    std::map<QString, Row> table;
    // Answers addresses that the table doesn't name; without one they cannot be opened.
    std::function<std::optional<QString>(const QString& url)> responder;
    int latencyMs = 20;
    QStringList asked;
};

class SimHttp : public Http {
public:
    SimHttp(SimHttpAnswers& answers, SimPump& pump) : m_answers(answers), m_pump(pump) {}
    std::optional<QString> Get(const QString& url) override;
    std::unique_ptr<qlm::Download> Download(const QString& url) override;

private:
    SimHttpAnswers& m_answers;
    SimPump& m_pump;
};

// Settings in memory; they outlive a restart of the program when the test keeps the object.
class SimSettings : public SettingsStore {
public:
    QString GetSetting(const QString& section, const QString& key, const QString& fallback) const override;
    void SaveSetting(const QString& section, const QString& key, const QString& value) override;
    bool HasSection(const QString& section) const override;
    QStringList Sections() const override;
    QStringList Keys(const QString& section) const override;
    void DeleteSetting(const QString& section) override;
    void Sync() override { ++syncs; }
    QString TakeProblem() override { return std::exchange(problem, {}); }

    bool HasSetting(const QString& section, const QString& key) const;
    using Content = std::map<QString, std::map<QString, QString>>;
    const Content& All() const { return m_sections; }

    int syncs = 0;
    QString problem;

private:
    Content m_sections;
};

class SimShell : public Shell {
public:
    void OpenFolder(const QString& path) override { opened += QStringLiteral("folder ") + path; }
    void OpenAddress(const QString& url) override { opened += QStringLiteral("address ") + url; }
    void OpenFile(const QString& path) override { opened += QStringLiteral("file ") + path; }
    void Quit() override;
    void EndProcess() override;

    QStringList opened; // "folder PATH", "address URL", "file PATH"
    bool hasQuit = false;
    bool hasEnded = false;
    std::function<void()> onQuit;
    std::function<void()> onEndProcess;
};

class SimAttention : public Attention {
public:
    void PlayWAV(const QString& path) override { calls += QStringLiteral("sound ") + path; }
    void FlashWindow() override { calls += QStringLiteral("flash"); }
    void RestoreWindow() override;
    bool Notify(const QString& title, const QString& text) override;

    QStringList calls; // "sound PATH", "flash", "restore", "note TITLE: TEXT"
    std::function<void()> onRestore;
    bool showsNotes = true;
};

class SimTray : public Tray {
public:
    explicit SimTray(SimPump& pump) : m_pump(pump) {}

    bool Show(const QString& newToolTip, const QStringList& newMenu) override;
    void Hide() override { m_isShown = false; }
    bool IsShown() const override { return m_isShown; }

    // The user at the icon. False where none is shown, or its menu has no such item.
    bool Activate();
    bool Choose(const QString& item);

    // The desktop keeps such icons.
    bool isThere = true;
    QString toolTip;
    QStringList menu;

private:
    void Post(std::function<void()> event);

    SimPump& m_pump;
    std::shared_ptr<bool> m_alive = std::make_shared<bool>(true);
    bool m_isShown = false;
};

class SimDesktop : public Desktop {
public:
    QString ForegroundWindow() override { return foreground; }
    void SetForegroundWindow(const QString& window) override;
    QByteArray CaptureWindow() override { return picture; }

    QString foreground = QStringLiteral("frmMain");
    QStringList broughtForward; // names, in order
    QByteArray picture = QByteArrayLiteral("BM picture");
};

// The numbers of a list, over and over; without a list those of a fixed seed.
class SimRandom : public Random {
public:
    double Next() override;
    void SetNumbers(std::vector<double> numbers);
    void SetSeed(quint64 seed);

private:
    static constexpr quint64 fixedSeed = 2009;
    std::vector<double> m_numbers;
    size_t m_next = 0;
    std::mt19937_64 m_engine{fixedSeed};
};

// Thrown where a write was cut off: nothing of the program may run after it but destructors. Of no family of
// exceptions, so that no error trap of the program takes it for an error.
struct SimPowerCut {};

class SimWriteGate : public WriteGate {
public:
    qint64 Allow(qint64 bytes) override;
    [[noreturn]] void Cut() override;
    bool AllowSync(const QString& path) override;
    bool AllowReplace(const QString& path) override;
    bool IsReadOnly(const QString& path) const override;

    // The Nth write from here, counted from 1, reaches the disk by half, and none after it.
    void CrashAtWrite(int number) { m_writesLeft = number; }
    void Mend() { m_writesLeft = -1; }
    QStringList readOnlyFolders;
    int writes = 0;
    // In their order: "write", "sync NAME", "replace NAME"; NAME of a file or a folder without its path.
    QStringList log;
    // Syncs fail from here on, as those of a broken disk.
    bool refusesSyncs = false;

private:
    int m_writesLeft = -1; // -1: no end is set
};

} // namespace qlm
