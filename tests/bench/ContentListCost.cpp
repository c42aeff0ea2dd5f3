// SPDX-License-Identifier: MIT
// What a long list of prepared texts costs on its screen: the real form, offscreen, on real files. Each
// figure is the time in which the window answers nothing else, with all that is painted after it.
#include "Figures.h"
#include "content/ContentLists.h"
#include "content/ListScreens.h"
#include "core/App.h"
#include "platform/sim/SimPlatform.h"
#include "shell/WindowDialogs.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QListView>
#include <QListWidget>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <map>
#include <string>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Entries = 10'000;
constexpr int UsualRounds = 21;
constexpr double GoalMs = 50;

class BenchDialogs final : public WindowDialogs {
public:
    QString ChooseFileToOpen(const QString&, const QString&) override { return {}; }
    QString ChooseFileToSave(const QString&, const QString&, const QString&) override { return {}; }
    std::function<void(QDialog&)> whileModal;

protected:
    void RunModal(const QString&, QDialog& dialog) override {
        dialog.show();
        whileModal(dialog);
        dialog.done(0);
    }
    Answer RunMessage(const QString&, const QString&, Buttons) override { return Answer::Yes; }
};

class NoViews final : public BrowserViews {
public:
    QWidget* ViewOf(BrowserName) override { return nullptr; }
};

class ContentListCost {
public:
    ContentListCost() {
        m_world.installationFolder = m_folder.filePath(u"program"_s);
        m_world.dataFolder = m_folder.filePath(u"data"_s);
        for (const QString& folder : {m_world.installationFolder, m_world.dataFolder})
            QDir().mkpath(folder);
        m_platform.emplace(m_world, m_dialogs);
        m_app.emplace(*m_platform);
        m_app->state.ProgramFolder = m_world.installationFolder;
        m_app->state.DataFolder = m_world.dataFolder;
        m_app->state.ErrorLogPath = m_app->DataFile(u"Error.log"_s);
        m_dialogs.Attach(*m_app, m_views);
        ShowFirstWindow();
    }
    ~ContentListCost() { m_dialogs.Detach(); }

    void Run(int rounds) {
        QStringList lines;
        for (int i = 0; i < Entries; ++i)
            lines.append(u"Subject %1&Message=%2&Selected=1"_s.arg(i).arg(
                u"Hello &NAME&,%nl%this is a text of the usual length. "_s.repeated(4)));
        m_app->files.WriteLines(m_app->Get<ContentLists>().PathOf(ContentKind::Message), lines);
        for (int round = 0; round < rounds; ++round)
            PlayRound(round);
        for (const auto& [name, figures] : m_figures) {
            const double worst = *std::max_element(figures.begin(), figures.end());
            std::printf("%-32s median %6.1f ms, longest %6.1f ms\n", name.c_str(), Median(figures), worst);
            PrintAgainstGoal(name.c_str(), Median(figures), GoalMs, "ms");
        }
    }

private:
    // The list is never the first window: what the first one pays for fonts and styles is not the list's.
    static void ShowFirstWindow() {
        QWidget window;
        QListWidget list(&window);
        list.addItem(u"text"_s);
        window.show();
        QApplication::processEvents();
    }

    void Time(const std::string& name, const std::function<void()>& act) {
        QElapsedTimer timer;
        timer.start();
        act();
        QApplication::processEvents();
        m_figures[name].push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }

    void PlayRound(int round) {
        QElapsedTimer timer;
        m_dialogs.whileModal = [&](QDialog& dialog) {
            QApplication::processEvents();
            m_figures["open"].push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
            auto* list = dialog.findChild<QListView*>(u"lstMessages"_s);
            const int row = Entries / 2 + round;
            Time("choose an entry", [&] { list->setCurrentIndex(list->model()->index(row, 0)); });
            Time("choose the last entry",
                 [&] { list->setCurrentIndex(list->model()->index(Entries - 1, 0)); });
            list->setCurrentIndex(list->model()->index(row, 0));
            Time("tick", [&] {
                QKeyEvent press(QEvent::KeyPress, Qt::Key_Space, Qt::NoModifier);
                QApplication::sendEvent(list, &press);
            });
            Time("move", [&] { m_app->commands.Run(u"frmMessagesList.cmdMoveDown_Click"_s); });
            Time("drag", [&] { m_app->commands.Run(u"frmMessagesList.lstMessages_DragDrop"_s, 1); });
            Time("delete", [&] { m_app->commands.Run(u"frmMessagesList.cmdDeleteMessage_Click"_s); });
            Time("undo", [&] { m_app->commands.Run(u"frmMessagesList.cmdUndoDelete_Click"_s); });
        };
        timer.start();
        m_app->Get<ListScreens>().Open(ContentKind::Message);
    }

    QTemporaryDir m_folder;
    SimWorld m_world;
    BenchDialogs m_dialogs;
    NoViews m_views;
    std::optional<SimPlatform> m_platform;
    std::optional<App> m_app;
    std::map<std::string, std::vector<double>> m_figures;
};

} // namespace
} // namespace qlm

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    qlm::ContentListCost().Run(argc > 1 ? QByteArray(argv[1]).toInt() : qlm::UsualRounds);
    return 0;
}
