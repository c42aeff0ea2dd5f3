// SPDX-License-Identifier: MIT
#include "platform/sim/SimServices.h"

#include <QDir>
#include <QFileInfo>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// Answers come in parts of some size, each as late as a whole answer to Get().
class SimDownload : public Download {
public:
    SimDownload(SimHttpAnswers::Row answer, SimPump& pump, int latencyMs)
        : m_answer(std::move(answer)),
          m_bytes(m_answer.text.value_or(QString()).toUtf8()),
          m_pump(pump),
          m_latencyMs(m_answer.hangs ? SimHttpAnswers::hangMs : latencyMs) {}

    bool NextPart(QByteArray& part) override {
        for (const qint64 endMs = m_pump.NowMs() + m_latencyMs; m_pump.NowMs() < endMs && !m_isCancelled;) {
            m_pump.PumpMessages();
            m_pump.Sleep(10);
        }
        if (m_isCancelled)
            throw HttpError("The download was cancelled");
        if (!m_answer.text)
            throw HttpError("The server did not answer");
        part += m_bytes.mid(m_given, SimHttpAnswers::partSize);
        m_given += part.size();
        if (part.isEmpty() && m_answer.breaksOff)
            throw HttpError("The connection was broken");
        m_isBegun = true;
        return m_given < m_bytes.size() || m_answer.breaksOff;
    }
    qint64 Announced() const override {
        return m_isBegun ? m_bytes.size() + (m_answer.breaksOff ? SimHttpAnswers::partSize : 0) : -1;
    }
    void Cancel() override { m_isCancelled = true; }

private:
    SimHttpAnswers::Row m_answer;
    QByteArray m_bytes;
    SimPump& m_pump;
    int m_latencyMs;
    qint64 m_given = 0;
    bool m_isBegun = false;
    bool m_isCancelled = false;
};

} // namespace

std::optional<QString> SimHttp::Get(const QString& url) {
    m_answers.asked += url;
    const auto row = m_answers.table.find(url);
    const bool isListed = row != m_answers.table.end();
    const qint64 endMs =
        m_pump.NowMs() + (isListed && row->second.hangs ? SimHttpAnswers::hangMs : m_answers.latencyMs);
    while (m_pump.NowMs() < endMs) {
        m_pump.PumpMessages();
        m_pump.Sleep(10);
    }
    if (isListed)
        return row->second.text;
    return m_answers.responder ? m_answers.responder(url) : std::nullopt;
}

std::unique_ptr<Download> SimHttp::Download(const QString& url) {
    m_answers.asked += url;
    const auto row = m_answers.table.find(url);
    const bool isListed = row != m_answers.table.end();
    return std::make_unique<SimDownload>(
        isListed ? row->second
                 : SimHttpAnswers::Row{m_answers.responder ? m_answers.responder(url) : std::nullopt},
        m_pump, m_answers.latencyMs);
}

QString SimSettings::GetSetting(const QString& section, const QString& key, const QString& fallback) const {
    const auto keys = m_sections.find(section);
    if (keys == m_sections.end())
        return fallback;
    const auto value = keys->second.find(key);
    return value == keys->second.end() ? fallback : value->second;
}

bool SimSettings::HasSetting(const QString& section, const QString& key) const {
    const auto keys = m_sections.find(section);
    return keys != m_sections.end() && keys->second.contains(key);
}

void SimSettings::SaveSetting(const QString& section, const QString& key, const QString& value) {
    m_sections[section][key] = value;
}

bool SimSettings::HasSection(const QString& section) const {
    const QString below = section + u'\\';
    for (const auto& [name, keys] : m_sections)
        if (name == section || name.startsWith(below))
            return true;
    return false;
}

QStringList SimSettings::Sections() const {
    QStringList sections;
    for (const auto& [name, keys] : m_sections)
        sections += name;
    return sections;
}

QStringList SimSettings::Keys(const QString& section) const {
    QStringList names;
    if (const auto keys = m_sections.find(section); keys != m_sections.end())
        for (const auto& [name, value] : keys->second)
            names += name;
    return names;
}

void SimSettings::DeleteSetting(const QString& section) {
    const QString below = section + u'\\';
    std::erase_if(m_sections,
                  [&](const auto& entry) { return entry.first == section || entry.first.startsWith(below); });
}

void SimDesktop::SetForegroundWindow(const QString& window) {
    broughtForward += window;
    foreground = window;
}

void SimShell::Quit() {
    hasQuit = true;
    if (onQuit)
        onQuit();
}

void SimShell::EndProcess() {
    hasEnded = true;
    if (onEndProcess)
        onEndProcess();
}

void SimAttention::RestoreWindow() {
    calls += u"restore"_s;
    if (onRestore)
        onRestore();
}

bool SimAttention::Notify(const QString& title, const QString& text) {
    if (showsNotes)
        calls += u"note "_s + title + u": "_s + text;
    return showsNotes;
}

bool SimTray::Show(const QString& newToolTip, const QStringList& newMenu) {
    m_isShown = isThere;
    toolTip = newToolTip;
    menu = newMenu;
    return m_isShown;
}

// The queue may outlive the icon.
void SimTray::Post(std::function<void()> event) {
    m_pump.Queue().Post([this, alive = std::weak_ptr(m_alive), event = std::move(event)] {
        if (!alive.expired() && m_isShown)
            event();
    });
}

bool SimTray::Activate() {
    if (!m_isShown)
        return false;
    Post([this] {
        if (onActivate)
            onActivate();
    });
    return true;
}

bool SimTray::Choose(const QString& item) {
    const qsizetype place = menu.indexOf(item);
    if (place < 0 || !m_isShown)
        return false;
    Post([this, place] {
        if (onMenuItem)
            onMenuItem(static_cast<int>(place));
    });
    return true;
}

double SimRandom::Next() {
    if (m_numbers.empty())
        return static_cast<double>(m_engine() >> 11) * 0x1.0p-53;
    const double number = m_numbers[m_next];
    m_next = (m_next + 1) % m_numbers.size();
    return number;
}

void SimRandom::SetNumbers(std::vector<double> numbers) {
    m_numbers = std::move(numbers);
    m_next = 0;
}

void SimRandom::SetSeed(quint64 seed) {
    m_numbers.clear();
    m_engine.seed(seed);
}

qint64 SimWriteGate::Allow(qint64 bytes) {
    ++writes;
    log += u"write"_s;
    if (m_writesLeft < 0)
        return bytes;
    if (m_writesLeft > 1) {
        --m_writesLeft;
        return bytes;
    }
    // Also a write of nothing is cut: one byte fewer than asked tells the writer so.
    const qint64 torn = m_writesLeft == 1 ? bytes / 2 : 0;
    m_writesLeft = 0;
    return std::min(torn, bytes - 1);
}

void SimWriteGate::Cut() {
    throw SimPowerCut();
}

bool SimWriteGate::AllowSync(const QString& path) {
    log += u"sync "_s + QFileInfo(path).fileName();
    return !refusesSyncs;
}

bool SimWriteGate::AllowReplace(const QString& path) {
    log += u"replace "_s + QFileInfo(path).fileName();
    return true;
}

bool SimWriteGate::IsReadOnly(const QString& path) const {
    const QString clean = QDir::cleanPath(path);
    for (const QString& folder : readOnlyFolders) {
        const QString top = QDir::cleanPath(folder);
        if (clean == top || clean.startsWith(top + u'/'))
            return true;
    }
    return false;
}

} // namespace qlm
