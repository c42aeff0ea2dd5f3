// SPDX-License-Identifier: MIT
#pragma once

#include "platform/MessageQueue.h"

#include <QElapsedTimer>
#include <QStringList>
#include <functional>
#include <vector>

class QWidget;

namespace qlm {

class App;

// Sits at the mouse in a user's place: a list of steps, each of which waits for something to show and then
// acts on the real widgets. Everything is done from the message pump, as with a user's own clicks; so no act
// falls into the middle of a call into a page. A message box is told and answered: OK, or No where there is
// no OK.
//
// Lives in main or in a test; ends the process's message loop after the last step, or at the first that
// fails.
class WindowDriver {
public:
    struct Step {
        QString title;
        int limitSeconds;
        std::function<bool()> isReady;
        std::function<void()> act;
    };

    explicit WindowDriver(App& app);
    virtual ~WindowDriver();
    WindowDriver(const WindowDriver&) = delete;
    WindowDriver& operator=(const WindowDriver&) = delete;

    void Add(Step step) { m_steps.push_back(std::move(step)); }
    // Before the program's own start, so that its first boxes are answered too.
    void Start();
    // Ends the run here and now; empty when nothing is wrong.
    void End(const QString& problem);

    // 0 when all steps were gone through; 1 otherwise, or when a step did not come about in its time.
    int ExitCode() const { return m_exitCode; }
    QString Problem() const { return m_problem; }
    // The message boxes so far.
    const QStringList& Messages() const { return m_messages; }
    bool WasTold(const QString& beginning) const;

    // A widget that is missing or can't be used ends the run.
    QWidget* Form(const char* name) const;
    QWidget* Find(const char* form, const char* name) const;
    void Press(const char* form, const char* name);
    void Choose(const char* menuItem);
    // The tab of that caption.
    void ChooseTab(const QString& caption);
    void Type(const char* form, const char* name, const QString& text);
    void ChooseItem(const char* form, const char* name, const QString& item);
    // Key by key to whatever has the keyboard in the main window; "\n" is Enter.
    void TypeKeys(const QString& text);
    // One line of the run's story, with the seconds since its beginning.
    void Say(const QString& text) const;

protected:
    // The last word before the message loop ends.
    virtual void OnEnd(const QString& problem);

    App& m_app;

private:
    void Look();
    bool AnswerBox();

    std::vector<Step> m_steps;
    size_t m_next = 0;
    Timer m_clock;
    QElapsedTimer m_stepTime;
    QElapsedTimer m_wholeTime;
    QStringList m_messages;
    QString m_problem;
    int m_exitCode = 1;
};

} // namespace qlm
