// SPDX-License-Identifier: MIT
#include "BrowserTest.h"
#include "browser/ScriptEdits.h"
#include "steps/BrowserHost.h"

using namespace Qt::Literals::StringLiterals;

namespace qlm {
namespace {

const QString NoPrompt = u"window.onbeforeunload = function(){}"_s;

// The scripts of the page, before and after an edit.
class ScriptEditsTest : public BrowserTest {
protected:
    void ShowScripts(const QStringList& scripts, const QString& address = u"{SiteRootHost}/page"_s) {
        Show(address, u"<script>"_s + scripts.join(u"</script><script>"_s) + u"</script>"_s);
    }
    QStringList Scripts() {
        QStringList texts;
        for (const Element& script : Browser().Document().Scripts())
            texts += script.Read(ElementText::Text);
        return texts;
    }
    bool LeaveFor(const QString& url) {
        NavigationRequest request;
        request.url = url;
        return Browser().events.beforeNavigate2(request);
    }

    const QString Onload = u"Window.OnLoad = start;"_s;
    const QString Prompting = u"window.onload = start; window.onBeforeUnload = ask;"_s;
    const QString Compose = u"readComposeMessagePage();"_s;
};

TEST_F(ScriptEditsTest, ACompositionCanBeLeftWithoutAPrompt) {
    ShowScripts({u"var a;"_s, Onload, Prompting, Compose, u"var b;"_s});
    Browser().SetSilent(false);
    ChangeJavascriptMessaging(*app);
    EXPECT_EQ(Scripts(),
              (QStringList{u"var a;"_s, Onload + NoPrompt, Prompting, Compose + NoPrompt, u"var b;"_s}));
    EXPECT_TRUE(Browser().Silent());
    EXPECT_FALSE(Browser().RefusesNavigations());
}

TEST_F(ScriptEditsTest, AScriptOfBothKindsIsEditedForEach) {
    ShowScripts({Onload + Compose, Prompting + Compose});
    ChangeJavascriptMessaging(*app);
    EXPECT_EQ(Scripts(),
              (QStringList{Onload + Compose + NoPrompt + NoPrompt, Prompting + Compose + NoPrompt}));
}

TEST_F(ScriptEditsTest, OnlyTheComposePageIsEditedWhenItIsLeft) {
    app->Get<BrowserHost>().Attach();
    const QString compose = u"{MessagingHost}/index.cfm?fuseaction=mail.message"_s;
    ShowScripts({Onload}, compose + u"&friendID=1"_s);
    EXPECT_FALSE(LeaveFor(u"http://www.site.example.com/ann"_s));
    EXPECT_EQ(Scripts(), QStringList{Onload + NoPrompt});
    for (const QString& other : {u"{MessagingHost}/index.cfm?fuseaction=MAIL.message"_s,
                                 u"{MessagingHost}/index.cfm?fuseaction=mail.inbox"_s}) {
        ShowScripts({Onload}, other);
        EXPECT_FALSE(LeaveFor(u"http://www.site.example.com/ann"_s));
        EXPECT_EQ(Scripts(), QStringList{Onload}) << other.toStdString();
    }
}

TEST_F(ScriptEditsTest, AMissingPageIsNoError) {
    ChangeJavascriptMessaging(*app);
    RemoveCommentFocus(*app);
    DefuseDenyPrompt(*app);
    EXPECT_TRUE(dialogs.messages.empty());
    EXPECT_FALSE(Browser().RefusesNavigations());
}

TEST_F(ScriptEditsTest, TheCommentFormLosesItsFocusCalls) {
    ShowScripts({u"CommentBox.focus(); a();"_s, u"other.focus();"_s, u"var b;"_s});
    RemoveCommentFocus(*app);
    EXPECT_EQ(Scripts(), (QStringList{u"(); a();"_s, u"other.focus();"_s, u"var b;"_s}));
    EXPECT_EQ(trail, (QStringList{u"CHANGEJS1"_s, u"CHANGEJS2 - CommentBox.focus(); a();"_s,
                                  u"CHANGEJS3 - CHANGED"_s, u"CHANGEJS2 - other.focus();"_s}));
}

TEST_F(ScriptEditsTest, ADenyLinkAsksNothing) {
    ShowScripts({u"confirm('Are you sure you want to DENY this?');"_s, u"confirm('Are you sure?');"_s});
    DefuseDenyPrompt(*app);
    EXPECT_EQ(Scripts(), (QStringList{u"confirm('BLADIEBLABLA this?');"_s, u"confirm('Are you sure?');"_s}));
}

// A script that is written runs again; where it leads meanwhile, nobody goes.
TEST_F(ScriptEditsTest, AWrittenScriptLeadsNowhere) {
    Show(u"<script data-on-input='goto /away'>"_s + Onload + u"</script>"_s);
    const QString before = Address();
    Browser().TakeVisited();
    ChangeJavascriptMessaging(*app);
    EXPECT_EQ(Scripts(), QStringList{Onload + NoPrompt});
    platform->Pump().RunFor(1000);
    EXPECT_EQ(Address(), before);
    EXPECT_TRUE(Browser().TakeVisited().isEmpty());
}

TEST_F(ScriptEditsTest, AScriptThatAnEditBringsInIsEditedToo) {
    Show(u"<script data-on-input='append #box <script>window.onload=late;</script>'>"_s + Onload +
         u"</script><div id=box></div>"_s);
    ChangeJavascriptMessaging(*app);
    EXPECT_EQ(Scripts(), (QStringList{Onload + NoPrompt, u"window.onload=late;"_s + NoPrompt}));
}

} // namespace
} // namespace qlm
