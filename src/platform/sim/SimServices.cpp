// SPDX-License-Identifier: MIT
#include "platform/sim/SimServices.h"

#include <QDir>
#include <QFileInfo>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

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
