// SPDX-License-Identifier: MIT
// What long lists cost: a million gathered IDs and half a million blacklisted ones in the running program,
// with its window and the real message loop, beside plain containers that do the same in the same run. While
// the program works, a timer of its own tells how long the window left the user without an answer.
#include "Figures.h"
#include "RunningProgram.h"
#include "SiteProcess.h"
#include "core/SettingsFields.h"
#include "gather/BlackList.h"
#include "gather/GatheredList.h"
#include "platform/qt/EngineProfile.h"

#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <algorithm>
#include <cstdio>
#include <fstream>
#include <malloc.h>
#include <map>
#include <random>
#include <unistd.h>
#include <unordered_set>

namespace qlm {
namespace {

constexpr int Ids = 1'000'000;
constexpr int Blacklisted = 500'000;
constexpr int Removals = 10'000;
constexpr int Rounds = 3;

double HeapMb() {
    const struct mallinfo2 info = mallinfo2();
    return static_cast<double>(info.uordblks + info.hblkhd) / 1e6;
}

// The longest time between two beats of a timer that wants to beat every millisecond.
class Heartbeat {
public:
    Heartbeat() {
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { Beat(); });
    }
    void Begin() {
        m_longestNs = 0;
        m_lastNs = NowNs();
        m_timer.start(1);
    }
    double EndMs() {
        Beat();
        m_timer.stop();
        return static_cast<double>(m_longestNs) / 1e6;
    }

private:
    void Beat() {
        const long long now = NowNs();
        m_longestNs = std::max(m_longestNs, now - m_lastNs);
        m_lastNs = now;
    }
    QTimer m_timer;
    long long m_lastNs = 0;
    long long m_longestNs = 0;
};

double MsOf(const std::function<void()>& work) {
    const long long startNs = NowNs();
    work();
    return static_cast<double>(NowNs() - startNs) / 1e6;
}

// The reference: a list of strings, and a set of them for the membership test.
struct Plain {
    std::vector<std::string> list;
    std::unordered_set<std::string> set;

    void Import(const std::string& path, bool checkDuplicates) {
        list.clear();
        set.clear();
        std::ifstream file(path);
        for (std::string line; std::getline(file, line);) {
            const size_t begin = line.find_first_not_of(" \t\r");
            if (begin == std::string::npos)
                continue;
            line = line.substr(begin, line.find_last_not_of(" \t\r") - begin + 1);
            if (!checkDuplicates || set.insert(line).second)
                list.push_back(line);
        }
    }
    void Save(const std::string& path) const {
        std::ofstream file(path, std::ios::binary);
        for (const std::string& id : list)
            file << id << "\r\n";
    }
};

class GatherLists {
public:
    GatherLists() {
        WriteIds(m_listFile, Ids, 100'000'000, 733);
        WriteIds(m_blackFile, Blacklisted, 100'000'001, 1466);
        m_program.driver.Add({u"The login screen"_s, 60,
                              [this] { return m_program.driver.Form("frmInteken") != nullptr; },
                              [this] { m_program.driver.Press("frmInteken", "cmdContinue"); }});
        m_program.driver.Add({u"The login"_s, 60,
                              [this] { return m_program.app.Status() == u"Login successful!"_s; },
                              [this] {
                                  for (int round = 0; round < Rounds; ++round)
                                      Round();
                                  MeasureBlackList();
                                  m_program.driver.End({});
                              }});
    }
    bool Measure() { return m_program.Run(); }
    void Report() const;

private:
    struct Row {
        std::vector<double> program, plain, unanswered;
    };

    static void WriteIds(const QString& path, int count, qint64 first, int step) {
        QByteArray bytes;
        for (int i = 0; i < count; ++i)
            bytes += QByteArray::number(first + qint64(i) * step) + "\r\n";
        QFile file(path);
        if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
            throw std::runtime_error("cannot write " + path.toStdString());
    }
    void Time(const std::string& name, const std::function<void()>& program,
              const std::function<void()>& plain);
    void Note(const std::string& name, double programMs, double unansweredMs, double plainMs);
    void Round();
    void PressSave(const Plain& plain);
    void MeasureMemory();
    void MeasureBlackList();

    QTemporaryDir m_folder;
    QString m_listFile = m_folder.filePath(u"ids.txt"_s);
    QString m_blackFile = m_folder.filePath(u"black.txt"_s);
    SiteProcess m_site;
    UsedProgram m_folders{m_site.Port()};
    RunningProgram m_program{m_folders};
    Heartbeat m_heartbeat;
    std::vector<std::string> m_order;
    std::map<std::string, Row> m_rows;
    double m_listMb = 0, m_indexMb = 0, m_plainListMb = 0, m_plainSetMb = 0;
    double m_blackFillMs = 0, m_blackUnansweredMs = 0, m_blackTestUs = 0;
    qint64 m_found = 0;
};

void GatherLists::Time(const std::string& name, const std::function<void()>& program,
                       const std::function<void()>& plain) {
    m_heartbeat.Begin();
    const double programMs = MsOf(program);
    const double unansweredMs = m_heartbeat.EndMs();
    Note(name, programMs, unansweredMs, MsOf(plain));
}

void GatherLists::Note(const std::string& name, double programMs, double unansweredMs, double plainMs) {
    if (m_rows.find(name) == m_rows.end())
        m_order.push_back(name);
    Row& row = m_rows[name];
    row.program.push_back(programMs);
    row.unanswered.push_back(unansweredMs);
    row.plain.push_back(plainMs);
}

// From the moment at which the file has been chosen.
void GatherLists::PressSave(const Plain& plain) {
    const QString path = m_folder.filePath(u"chosen.txt"_s);
    QFile::remove(path);
    long long startNs = 0;
    QTimer chooser;
    QObject::connect(&chooser, &QTimer::timeout, &chooser, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        chooser.stop();
        QObject::connect(dialog, &QFileDialog::finished, &chooser, [&] {
            startNs = NowNs();
            m_heartbeat.Begin();
        });
        dialog->findChild<QLineEdit*>(u"fileNameEdit"_s)->setText(path);
        static_cast<QDialog*>(dialog)->accept();
    });
    chooser.start(10);
    m_program.app.commands.Run(u"picSaveToFile_Click"_s);
    const double programMs = static_cast<double>(NowNs() - startNs) / 1e6;
    const double unansweredMs = m_heartbeat.EndMs();
    if (QFileInfo(path).size() != QFileInfo(m_listFile).size())
        throw std::runtime_error("the Save button has not written the list");
    Note("Save button", programMs, unansweredMs,
         MsOf([&] { plain.Save(m_folder.filePath(u"plain.txt"_s).toStdString()); }));
}

void GatherLists::Round() {
    App& app = m_program.app;
    GatheredList& list = app.Get<GatheredList>();
    Plain plain;
    const std::string path = m_listFile.toStdString();
    app.controls.SetTicked("chkSaveScanned"_L1, true);
    Time(
        "import without the duplicate question", [&] { list.FillScannedList(m_listFile, true, false); },
        [&] { plain.Import(path, false); });
    Time(
        "import with it", [&] { list.FillScannedList(m_listFile, true, true); },
        [&] { plain.Import(path, true); });
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp)
    Time(
        "shuffle", [&] { list.Shuffle(); },
        [&] { std::shuffle(plain.list.begin(), plain.list.end(), random); });
    Time(
        "save at the end", [&] { app.Get<SettingsFields>().SaveListsAndSettings(); },
        [&] { plain.Save(m_folder.filePath(u"plain.txt"_s).toStdString()); });
    PressSave(plain);
    Time(
        "load", [&] { list.FillScannedList(list.ScopedPath(), true, false); },
        [&] { plain.Import(path, true); });
    if (app.state.arrFriendIDs.size() != Ids)
        throw std::runtime_error("the save at the end has not written the list");
    const QStringList asked = app.state.arrFriendIDs.ToStringList(100'000);
    std::vector<std::string> askedPlain;
    for (const QString& id : asked)
        askedPlain.push_back(id.toStdString());
    m_found += app.state.arrFriendIDs.contains(u"5"_s); // builds the index
    Time(
        "100,000 membership tests",
        [&] {
            for (const QString& id : asked)
                m_found += list.IsInList(id, false);
        },
        [&] {
            for (const std::string& id : askedPlain)
                m_found += static_cast<qint64>(plain.set.count(id));
        });
    Time(
        "REMOVE at 0, 10,000 times",
        [&] {
            for (int i = 0; i < Removals; ++i) {
                list.Remove(0, u"bench"_s);
                if (i % 10 == 0)
                    app.waiting.Pump();
            }
        },
        [&] {
            for (int i = 0; i < Removals; ++i)
                plain.list.erase(plain.list.begin());
        });
    list.Clear();
    MeasureMemory();
}

void GatherLists::MeasureMemory() {
    double before = HeapMb();
    auto list = std::make_unique<IdList>();
    m_program.app.files.ForEachLine(m_listFile, [&list](QByteArrayView line) {
        list->append(QString::fromLatin1(line));
        return true;
    });
    m_listMb = HeapMb() - before;
    m_found += list->contains(u"5"_s);
    m_indexMb = HeapMb() - before - m_listMb;
    list.reset();
    before = HeapMb();
    auto plain = std::make_unique<Plain>();
    plain->Import(m_listFile.toStdString(), false);
    m_plainListMb = HeapMb() - before;
    plain->set.insert(plain->list.begin(), plain->list.end());
    m_plainSetMb = HeapMb() - before - m_plainListMb;
}

void GatherLists::MeasureBlackList() {
    App& app = m_program.app;
    app.files.CopyFile(m_blackFile, app.Get<BlackList>().Path());
    m_heartbeat.Begin();
    m_blackFillMs = MsOf([&] {
        app.Get<BlackList>().FillBlacklist(app.Get<BlackList>().Path(), false, false);
        app.Get<BlackList>().FillArrayFromFile(u"arrBlacklistIDs"_s, app.Get<BlackList>().Path());
    });
    m_blackUnansweredMs = m_heartbeat.EndMs();
    m_found += IsInArray(u"5"_s, app.state.arrBlacklistIDs);
    constexpr int Tests = 100'000;
    m_blackTestUs = MsOf([&] {
                        for (int i = 0; i < Tests; ++i)
                            m_found += IsInArray(QString::number(100'000'001 + qint64(i) * 733),
                                                 app.state.arrBlacklistIDs);
                    }) *
                    1000 / Tests;
}

void GatherLists::Report() const {
    std::printf("\n%d IDs, milliseconds (medians of %d rounds)\n%-40s %10s %10s %12s\n", Ids, Rounds, "",
                "program", "plain", "unanswered");
    for (const std::string& name : m_order) {
        const Row& row = m_rows.at(name);
        std::printf("%-40s %10.1f %10.1f %12.1f\n", name.c_str(), Median(row.program), Median(row.plain),
                    *std::max_element(row.unanswered.begin(), row.unanswered.end()));
    }
    for (const std::string& name : m_order)
        PrintAgainstGoal(
            ("longest without an answer: " + name).c_str(),
            *std::max_element(m_rows.at(name).unanswered.begin(), m_rows.at(name).unanswered.end()), 50,
            "ms");
    const double rawMb = static_cast<double>(QFileInfo(m_listFile).size()) / 1e6;
    PrintAgainstGoal("import with the question", Median(m_rows.at("import with it").program), 2000, "ms");
    std::printf("memory: raw text %.1f MB; list %.1f + index %.1f MB; vector %.1f + set %.1f MB\n", rawMb,
                m_listMb, m_indexMb, m_plainListMb, m_plainSetMb);
    PrintAgainstGoal("memory / raw text", (m_listMb + m_indexMb) / rawMb, 2, "times");
    std::printf("black list of %d: read for window and scan %.1f ms\n", Blacklisted, m_blackFillMs);
    PrintAgainstGoal("longest without an answer meanwhile", m_blackUnansweredMs, 50, "ms");
    PrintAgainstGoal("a membership test in the black list", m_blackTestUs, 50, "us");
    std::printf("(%lld found)\n", static_cast<long long>(m_found));
}

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    if (::geteuid() == 0)
        qputenv("QTWEBENGINE_DISABLE_SANDBOX", "1");
    qlm::PrepareEngine();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qlm::GatherLists lists;
    if (!lists.Measure()) {
        std::printf("The run came to no end.\n");
        return 1;
    }
    lists.Report();
    return 0;
}
