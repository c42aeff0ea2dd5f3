// SPDX-License-Identifier: MIT
#include "browser/ScriptEdits.h"

#include "browser/NavigationGuard.h"
#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString CommentTrail = u"debugcom.txt"_s;

// edit answers a script's new text, or the same. The collection is fetched afresh each time, since an edit
// can change it; a text that is written may run again and navigate, hence the guard.
template <typename Edit> void EditScripts(App& app, const Edit& edit) {
    BrowserControl& browser = app.WebBrowser1();
    browser.SetSilent(true);
    Diagnostics::IgnoreErrors([&] {
        for (size_t at = 0; at < browser.Document().Scripts().size(); ++at) {
            const Element script = browser.Document().Scripts().at(at);
            const QString text = script.Read(ElementText::Text);
            const QString edited = edit(text);
            if (edited == text)
                continue;
            const NavigationGuard guard(browser);
            script.SetInnerText(edited);
        }
    });
}

} // namespace

void ChangeJavascriptMessaging(App& app) {
    EditScripts(app, [](const QString& text) {
        const QString noPrompt = u"window.onbeforeunload = function(){}"_s;
        QString edited = text;
        if (Has(edited, u"window.onload"_s) && !Has(edited, u"window.onbeforeunload"_s))
            edited += noPrompt;
        if (Has(edited, u"readcomposemessagepage"_s))
            edited += noPrompt;
        return edited;
    });
}

void RemoveCommentFocus(App& app) {
    app.diagnostics.Debug(CommentTrail, u"CHANGEJS1"_s);
    EditScripts(app, [&app](const QString& text) {
        if (!Has(text, u".focus"_s))
            return text;
        app.diagnostics.Debug(CommentTrail, u"CHANGEJS2 - "_s + text);
        QString edited = text;
        edited.remove(u"commentbox.focus"_s, Qt::CaseInsensitive);
        if (edited != text)
            app.diagnostics.Debug(CommentTrail, u"CHANGEJS3 - CHANGED"_s);
        return edited;
    });
}

void DefuseDenyPrompt(App& app) {
    EditScripts(app, [](QString text) {
        return text.replace(u"Are you sure you want to DENY"_s, u"BLADIEBLABLA"_s, Qt::CaseInsensitive);
    });
}

} // namespace qlm
