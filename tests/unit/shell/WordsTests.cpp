// SPDX-License-Identifier: MIT
// What a form says stands in the table of controls alone.
#include "WindowTest.h"
#include "core/Tabs.h"
#include "shell/CampaignFrames.h"
#include "shell/FormRegistry.h"
#include "shell/Panels.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QGroupBox>
#include <QLineEdit>
#include <QListView>
#include <QPlainTextEdit>
#include <QRadioButton>

namespace qlm {
namespace {

class WordsTest : public WindowTest {
protected:
    // The controls below root that are bound, and those of them that say something before they are.
    struct Found {
        int controls = 0;
        QStringList speaking;
    };

    Found Walk(const QWidget& root, const QString& prefix) const {
        Found found;
        for (const auto* widget : root.findChildren<QWidget*>()) {
            const auto* caption = qobject_cast<const QLabel*>(widget);
            const QWidget* input = caption && caption->buddy() ? caption->buddy() : widget;
            const QByteArray name = (prefix + input->objectName()).toLatin1();
            if (!app->controls.Has(QLatin1StringView(name)))
                continue;
            ++found.controls;
            if (!WordsOf(*widget).join(QString()).isEmpty())
                found.speaking.append(QString::fromLatin1(name) + u": "_s + WordsOf(*widget).join(u'|'));
        }
        return found;
    }

    static QStringList WordsOf(const QWidget& widget) {
        QStringList words{widget.toolTip(), widget.accessibleName(), widget.whatsThis()};
        for (const char* property : {"text", "plainText", "placeholderText", "title"})
            words.append(widget.property(property).toString());
        if (const auto* combo = qobject_cast<const QComboBox*>(&widget))
            for (int item = 0; item < combo->count(); ++item)
                words.append(combo->itemText(item));
        return words;
    }
};

} // namespace

TEST_F(WordsTest, NoFormStatesWhatItsControlsSay) {
    int controls = 0;
    for (const QString& name : FormNames()) {
        const std::unique_ptr<Form> form(BuildForm(name, {*app, dialogs, nullptr}));
        const Found found = Walk(*form, name + u'.');
        EXPECT_EQ(found.speaking, QStringList()) << name.toStdString();
        controls += found.controls;
    }
    EXPECT_GT(controls, 110);
}

TEST_F(WordsTest, NoPanelStatesWhatItsControlsSay) {
    ControlBinder binder(*app, {}, [] { return 0; });
    int controls = 0;
    for (const Tab& tab : Tabs()) {
        const std::unique_ptr<QWidget> panel(BuildPanel(QLatin1StringView(tab.panel), *app, binder));
        const Found found = Walk(*panel, {});
        EXPECT_EQ(found.speaking, QStringList()) << tab.panel;
        controls += found.controls;
    }
    EXPECT_GT(controls, 35);
}

TEST_F(WordsTest, APanelThatNobodyBuildsIsAFault) {
    ControlBinder binder(*app, {}, [] { return 0; });
    EXPECT_THROW(BuildPanel("picNowhere"_L1, *app, binder), std::logic_error);
}

// No window is needed for a combo box to have its choices.
TEST_F(WordsTest, TheChoicesOfALimitStandInTheTable) {
    for (const auto name :
         {"cboFRPerDayOrSession"_L1, "cboMSGPerDayOrSession"_L1, "cboCOMPerDayOrSession"_L1})
        EXPECT_EQ(app->controls.Items(name), (QStringList{u"this session"_s, u"per day"_s})) << name.data();
}

TEST_F(WordsTest, ACaptionStandsInFrontOfItsInputAndNamesIt) {
    const QDialog* form = Shown("frmAccountDetails");
    auto* line = form->findChild<QLineEdit*>(u"txtEmail"_s);
    EXPECT_EQ(line->accessibleName(), u"E-mail address"_s);
    QString caption;
    for (const auto* label : form->findChildren<QLabel*>())
        if (label->buddy() == line)
            caption = label->text();
    EXPECT_EQ(caption, u"&E-mail address:"_s);
}

// The frames that campaigns share, for one whose panel is still to come.
TEST_F(WordsTest, TheSharedFramesAreBuiltForAnyCampaign) {
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    Commands commands(app->diagnostics);
    column->addWidget(
        NewContentFrame(commands, {"optSendSingle(0)"_L1, "optSendFromList(0)"_L1,
                                   "picMessanger.lstSendList"_L1, "txtMsgSubject"_L1, "txtMsgMessage"_L1}));
    column->addWidget(NewLimitFrame("txtMsgStopAt"_L1, "cboMSGPerDayOrSession"_L1));
    commands.Add(u"picScanStart_Click"_s, [] {});
    column->addLayout(NewRunBand(commands, "picScanStart"_L1, "picScanStop"_L1,
                                 {"lblMsgSentCount"_L1, "lblMsgTotalToday"_L1}));
    ControlBinder binder(*app, {}, [] { return 0; });
    binder.BindAll(window);
    window.findChild<QRadioButton*>(u"optSendFromList(0)"_s)->click();
    EXPECT_TRUE(app->controls.Ticked("optSendFromList(0)"_L1));
    EXPECT_FALSE(app->controls.Ticked("optSendSingle(0)"_L1));
    app->controls.SetItems("picMessanger.lstSendList"_L1, {u"Hello"_s});
    EXPECT_EQ(window.findChild<QListView*>(u"picMessanger.lstSendList"_s)->model()->rowCount(), 1);
    window.findChild<QPlainTextEdit*>(u"txtMsgMessage"_s)->setPlainText(u"Hi"_s);
    EXPECT_EQ(app->controls.Text("txtMsgMessage"_L1), u"Hi"_s);
    EXPECT_EQ(window.findChild<QComboBox*>(u"cboMSGPerDayOrSession"_s)->count(), 2);
    EXPECT_EQ(window.findChild<QLabel*>(u"lblMsgSentCount"_s)->text(), u"Messages sent: 0"_s);
    // A button without a command isn't shown.
    EXPECT_NE(window.findChild<QWidget*>(u"picScanStart"_s), nullptr);
    EXPECT_EQ(window.findChild<QWidget*>(u"picScanStop"_s), nullptr);
}

} // namespace qlm
