// SPDX-License-Identifier: MIT
#pragma once

#include "core/PasswordMask.h"
#include "core/Waiting.h"
#include "platform/MessageQueue.h"

#include <QString>
#include <exception>
#include <functional>

namespace qlm {

class App;

// The program's own story: the debug files for support, the error log, and the traps at the edges of
// procedures. No password gets into any of it.
class Diagnostics {
public:
    explicit Diagnostics(App& app) : m_app(app) {}

    // Appends a line to the file. Does nothing with onlyIfLogging and logging off, or when onlyForAction
    // isn't empty and isn't the running activity. Never fails: diagnostics don't stop the program.
    void AppendToFile(const QString& path, const QString& text, bool startNew, bool onlyIfLogging,
                      const QString& onlyForAction);
    // A line in one of the debug files of DataFolder ("debugfr.txt"), if logging is on.
    void Debug(const QString& fileName, const QString& text, bool startNew = false);
    // A line in the debug file of the running activity; nothing for one that has none.
    void DebugForAction(const QString& text);

    // Appends a block to the error log and tells the user: the first time in a program run by frmError, from
    // then on in a line of the main window.
    void ReportError(const QString& procedure, const std::exception& error, const QString& line = {},
                     const QString& data = {});

    // Runs the body of a procedure; an exception is reported under the procedure's name and ends it there.
    // Answers the error's text, empty when the body ran through or its run has ended; from within a step that
    // goes on to the edge of its machine.
    template <typename Body> QString Trap(const char* procedure, Body&& body) {
        try {
            body();
        } catch (const ProgramEnding&) {
            throw;
        } catch (const RunEnded&) {
            LeaveFurther();
            return {};
        } catch (const std::exception& error) {
            ReportError(QString::fromLatin1(procedure), error);
            return QString::fromUtf8(error.what());
        }
        return {};
    }
    // As above; data() gives what the report says beside the error.
    template <typename Body, typename Data> QString Trap(const char* procedure, Body&& body, Data&& data) {
        try {
            body();
        } catch (const ProgramEnding&) {
            throw;
        } catch (const RunEnded&) {
            LeaveFurther();
            return {};
        } catch (const std::exception& error) {
            ReportError(QString::fromLatin1(procedure), error, {}, data());
            return QString::fromUtf8(error.what());
        }
        return {};
    }
    // For procedures that answer their own errors: onError gets the error.
    template <typename Body, typename Handler> static void Guard(Body&& body, Handler&& onError) {
        try {
            body();
        } catch (const RunEnded&) {
            throw;
        } catch (const std::exception& error) {
            onError(error);
        }
    }
    // The number by which support knows the kind of error, and its text: "440, Automation error".
    static QString Numbered(const std::exception& error);
    // For routines whose failure doesn't matter: ends the body there, tells nobody.
    template <typename Body> static void IgnoreErrors(Body&& body) {
        try {
            body();
        } catch (const RunEnded&) {
            throw;
        } catch (const std::exception&) {
            return;
        }
    }

    // Replaces every match of the pattern; "$1" to "$9" in the replacement stand for its groups. A pattern
    // that is none leaves the text as it is and a line in "debuginitial.txt".
    QString RegExpReplace(const QString& text, const QString& pattern, const QString& replacement);

    static QString CleanText(const QString& text);

    // A password that was typed into a field of a page.
    void LearnPassword(const QString& password, const QString& field) { m_mask.Learn(password, field); }
    // An address as it may be shown.
    QString WithoutPasswords(const QString& address);
    // A page's text or markup as it may be kept.
    QString Masked(const QString& text);

    // The debug file of an activity, empty for one that has none. Set by the program.
    std::function<QString(const QString& action)> trailOf;
    // Told of each line after its writing; a test stops the program there.
    std::function<void(const QString& line)> onLine;

private:
    void TellUser(const QString& error);
    // Within a step, throws on what is being caught.
    void LeaveFurther() const;

    App& m_app;
    PasswordMask m_mask;
    bool m_shown = false;
    bool m_reporting = false;
};

} // namespace qlm
