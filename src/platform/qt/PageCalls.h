// SPDX-License-Identifier: MIT
#pragma once

#include "platform/qt/QtPump.h"

#include <QHash>
#include <QJsonArray>
#include <QPointer>
#include <QVariant>
#include <QWebEnginePage>
#include <functional>
#include <memory>
#include <optional>

namespace qlm {

// Calls from the program into the document that a page shows at the moment, answered before they return. The
// one place besides the pump where an event loop is nested; it lets neither the user's input nor a handler
// in.
//
// A page that is busy with itself doesn't answer. A call gives up after a limit; from then on every further
// call fails at once until the page has answered after all or was replaced. A page that did answer, but late,
// is slow and not stuck: what it was asked is kept and answers the same question when that comes again, so
// that a huge page is read in the end and no call ever takes longer.
class PageCalls {
public:
    // Short enough for a stop button to work between two calls.
    static constexpr int answerMs = 700;

    struct Answer {
        QString document;    // the document that answered
        bool isDone = false; // false: it is not the one that was meant, or the script failed
        QVariant value;
    };

    // Of a question that changes nothing, an answer that came too late is as good for its next asking.
    enum class Kind { Question, Act };

    PageCalls(QtPump& pump, std::function<QString()> bridgeSource);

    // The page to be called from now on; a call that is under way on the one before is lost.
    void SetPage(QWebEnginePage* page);
    // The page's renderer is gone: nothing will be answered any more.
    void Lose();
    // A document has arrived: whatever an older one still owed is void.
    void BeginDocument();

    // Calls one document; whatever other one is there does nothing but say so. Nothing when no answer came.
    std::optional<Answer> Call(Kind kind, const QString& document, const QString& name,
                               const QJsonArray& arguments = {});
    // Puts the bridge into a document that came without; it announces itself as any other does.
    void InstallBridge();
    // Runs without waiting and without an answer, in the page's own world.
    void Post(const QString& script);
    void PostCall(const QString& document, const QString& name, const QJsonArray& arguments);

    int AnswerLimit() const { return m_answerLimitMs; }
    void SetAnswerLimit(int milliseconds) { m_answerLimitMs = milliseconds; }

    bool IsSilent() const { return m_silent; }
    bool IsUnderWay() const { return m_wait != nullptr; }
    bool CanCall() const { return m_page && !m_silent; }
    qint64 Count() const { return m_count; }

    // Called from the event loop: the page has stopped answering, the page answers again.
    std::function<void()> onSilence;
    std::function<void()> onAnswer;

private:
    struct Wait;

    QVariant Run(const QString& script, Kind kind);
    void OnLateAnswer(quint64 era, const QString& script, const QVariant& value);

    QtPump& m_pump;
    std::function<QString()> m_bridgeSource;
    QPointer<QWebEnginePage> m_page;
    std::shared_ptr<Wait> m_wait;
    // Lets what outlives this object see that it is gone.
    std::shared_ptr<PageCalls*> m_self;
    int m_answerLimitMs = answerMs;
    bool m_silent = false;
    QHash<QString, QVariant> m_late; // by the script that asked
    // Moves on when what is owed has become void.
    quint64 m_era = 1;
    qint64 m_count = 0;
};

} // namespace qlm
