// SPDX-License-Identifier: MIT
// The tabs of the campaigns that send texts: everything on them, in its order, whole at every size.
#include "WindowTest.h"
#include "core/controls/ControlRows.h"
#include "shell/ElidedLabel.h"
#include "shell/Look.h"
#include "steps/StopResume.h"

#include <QComboBox>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QKeySequence>
#include <QLineEdit>
#include <QMenuBar>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QStackedWidget>
#include <QToolTip>

namespace qlm {
namespace {

struct TextTab {
    const char16_t* caption;
    std::vector<ControlRow> (*rows)();
    QStringList offTheTab; // stored for other versions; nothing reads them
    QStringList tabOrder;
    bool goesToSomebody = true;
};

const TextTab Tabs[] = {
    {u"Auto Messenger",
     rows::MessengerTab,
     {u"chkMsgSendFromList"_s},
     {u"optSendSingle(0)"_s, u"piccmdMsgLoad"_s, u"piccmdMsgSave"_s, u"picMsgPreview"_s, u"txtMsgSubject"_s,
      u"txtMsgMessage"_s, u"picMessanger.picEditList"_s, u"picMessanger.lstSendList"_s, u"txtMsgStopAt"_s,
      u"cboMSGPerDayOrSession"_s, u"chkMsgDontSendAgain"_s, u"picCmdMsgSend"_s, u"picCmdMsgStop"_s,
      u"piccmdMsgTimeDelay"_s, u"piccmdMsgClearLog"_s, u"piccmdMsgReport"_s}},
    {u"Auto Commenter",
     rows::CommenterTab,
     {u"chkComUseNonHTML"_s, u"chkComSendFromList"_s},
     {u"optSendSingle(1)"_s, u"picComPreview"_s, u"txtComment"_s, u"picCommentor.picEditList"_s,
      u"picCommentor.lstSendList"_s, u"optCOMHTMLBLocked(0)"_s, u"picComPreviewNonHTML"_s,
      u"txtCommentNonHTML"_s, u"chkCOMListSkipNonHMTL"_s, u"txtComStopAt"_s, u"cboCOMPerDayOrSession"_s,
      u"chkComDontSendAgain"_s, u"picCmdComSend"_s, u"picCmdComStop"_s, u"piccmdComTimeDelay"_s,
      u"piccmdComClearLog"_s, u"piccmdComReport"_s}},
    {u"Timed Bulletins",
     rows::BulletinTab,
     {u"chkBulSendFromList"_s},
     {u"optSendSingle(2)"_s, u"picBulPreview"_s, u"txtBulSubject"_s, u"txtBulMessage"_s,
      u"picBulletin.picEditList"_s, u"picBulletin.lstSendList"_s, u"txtPostAmount"_s, u"txtBulTimerFrom"_s,
      u"txtBulTimerTo"_s, u"chkAntiFlood"_s, u"chkBulAllowComments"_s, u"picCmdBulSend"_s, u"piccmdBulStop"_s,
      u"piccmdBulReport"_s},
     false},
    {u"Status Updater",
     rows::StatusTab,
     {},
     {u"optSendSingle(3)"_s, u"txtStatusBody"_s, u"picStatusUpdater.picEditList"_s,
      u"picStatusUpdater.lstSendList"_s, u"txtStatusPostAmount"_s, u"txtStatusTimerFrom"_s,
      u"txtStatusTimerTo"_s, u"chkStatusAntiFlood"_s, u"piccmdSendStatusUpdates"_s, u"piccmdStatusReport"_s},
     false},
    {u"Accept Friends",
     rows::AcceptTab,
     {},
     {u"optAcceptDontSend"_s, u"picAccMsgPreview"_s, u"picAccComPreview"_s, u"picAccComNonHTMLPreview"_s,
      u"chkAcceptCommentNonHTML"_s, u"chkAcceptFromOldest"_s, u"txtAcceptToPage"_s,
      u"chkAcceptAddToUpdates"_s, u"picCmdAutoApprove"_s, u"piccmdAccStop"_s, u"piccmdAccReport"_s}},
    {u"    Inviter",
     rows::InviteTab,
     {},
     {u"piccmdGroupInvite"_s, u"piccmdEventInvite"_s, u"piccmdInviteStop"_s, u"piccmdInvClearLog"_s,
      u"piccmdInviteReport"_s},
     false},
};

// A screen of 1440 by 900 pixels at 200 % has half of them to lay things out on.
constexpr QSize Sizes[] = {{1024, 700}, {1440, 900}, {720, 450}};

class CampaignPanelsTest : public WindowTest {
protected:
    CampaignPanelsTest() {
        // The campaigns' buttons, as their machines bring them along.
        for (const char* button : {"picCmdMsgSend", "picCmdMsgStop", "piccmdMsgClearLog", "piccmdMsgReport",
                                   "picCmdComSend", "picCmdComStop", "piccmdComClearLog", "piccmdComReport",
                                   "picCmdBulSend", "piccmdSendStatusUpdates", "picCmdAutoApprove"})
            Count((QByteArray(button) + "_Click").constData());
        ApplyLook(*qApp);
        dialogs.ShowForm(u"frmMain"_s);
        app->Get<StopResume>().StopAll(StopReason::WindowStop);
        window = dialogs.FormWidget(u"frmMain"_s);
        QApplication::setActiveWindow(window);
    }
    ~CampaignPanelsTest() override { qApp->setStyleSheet({}); }

    // The panel of that tab, in front.
    QWidget& Panel(const char16_t* caption) {
        app->ShowTab(QString::fromUtf16(caption));
        QApplication::processEvents();
        return *window->findChild<QStackedWidget*>(u"fraPanels"_s)->currentWidget();
    }
    void Resize(QSize size) {
        window->resize(size);
        QApplication::processEvents();
    }
    QLabel* Label(const char* name) { return window->findChild<QLabel*>(QString::fromLatin1(name)); }
    template <typename Input> Input* Named(const char* name) {
        return window->findChild<Input*>(QString::fromLatin1(name));
    }

    QWidget* window = nullptr;
};

// What the texts of a widget need.
bool IsWhole(const QWidget& widget) {
    if (dynamic_cast<const ElidedLabel*>(&widget))
        return widget.height() >= widget.sizeHint().height();
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label && label->wordWrap())
        return label->height() >= label->heightForWidth(label->width());
    if (label || qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QComboBox*>(&widget))
        return widget.width() >= widget.sizeHint().width() && widget.height() >= widget.sizeHint().height();
    return widget.width() >= widget.minimumSizeHint().width();
}

// A text, a button or an input, and not what holds them.
bool IsLeaf(const QWidget& widget) {
    return (qobject_cast<const QLabel*>(&widget) || qobject_cast<const QAbstractButton*>(&widget) ||
            !widget.objectName().isEmpty()) &&
           !widget.objectName().startsWith(u"qt_") && !widget.layout();
}

QRect PlaceOf(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint()), widget.size()};
}

QStringList Letters(const QList<QString>& captions) {
    QStringList letters;
    for (const QString& caption : captions)
        if (const QKeySequence letter = QKeySequence::mnemonic(caption); !letter.isEmpty())
            letters.append(letter.toString());
    return letters;
}

} // namespace

TEST_F(CampaignPanelsTest, EveryControlOfATabHasItsWidgetThere) {
    for (const TextTab& tab : Tabs) {
        const QWidget& panel = Panel(tab.caption);
        int widgets = 0;
        for (const ControlRow& row : tab.rows()) {
            const QString name = QString::fromLatin1(row.name);
            EXPECT_EQ(panel.findChild<QWidget*>(name) == nullptr, tab.offTheTab.contains(name)) << row.name;
            ++widgets;
        }
        EXPECT_GT(widgets, tab.tabOrder.size());
    }
}

TEST_F(CampaignPanelsTest, TheTabKeyGoesThroughATabAsItIsRead) {
    for (const TextTab& tab : Tabs) {
        QWidget& panel = Panel(tab.caption);
        QStringList order = TabOrder(*window);
        order.removeIf([&panel](const QString& name) { return !panel.findChild<QWidget*>(name); });
        EXPECT_EQ(order, tab.tabOrder) << order.join(u' ').toStdString();
    }
}

TEST_F(CampaignPanelsTest, EveryLetterOfATabLeadsToOnePlace) {
    QList<QString> around;
    for (const QAction* menu : window->findChild<QMenuBar*>()->actions())
        around.append(menu->text());
    around.append(Named<QAbstractButton>("picSkip")->text());
    for (const TextTab& tab : Tabs) {
        const QWidget& panel = Panel(tab.caption);
        QList<QString> captions = around;
        for (const auto* button : panel.findChildren<QAbstractButton*>())
            captions.append(button->text());
        for (const auto* label : panel.findChildren<QLabel*>())
            if (label->buddy())
                captions.append(label->text());
        QStringList letters = Letters(captions);
        EXPECT_GT(letters.size(), 8);
        EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u'|').toStdString();
    }
}

TEST_F(CampaignPanelsTest, NothingIsCutOffAtAnySize) {
    for (const QSize size : Sizes) {
        Resize(size);
        for (const TextTab& tab : Tabs) {
            const QWidget& panel = Panel(tab.caption);
            for (const char* text : {"txtMsgSubject", "txtMsgMessage", "txtComment", "txtCommentNonHTML"})
                app->controls.SetText(QLatin1StringView(text), u"Hello &NAME&, "_s.repeated(20));
            QApplication::processEvents();
            int looked = 0;
            for (const auto* widget : panel.findChildren<QWidget*>())
                if (widget->isVisible() && !widget->objectName().isEmpty() &&
                    !widget->objectName().startsWith(u"qt_")) {
                    const QRect place(widget->mapTo(&panel, QPoint()), widget->size());
                    EXPECT_GE(place.left(), 0) << widget->objectName().toStdString();
                    EXPECT_LE(place.right(), panel.width()) << widget->objectName().toStdString();
                    EXPECT_TRUE(IsWhole(*widget))
                        << widget->objectName().toStdString() << " of " << widget->width() << " x "
                        << widget->height() << " at " << size.width();
                    ++looked;
                }
            EXPECT_GE(looked, tab.tabOrder.size());
        }
    }
}

// Where there is no room the options scroll; nothing lies on top of another.
TEST_F(CampaignPanelsTest, NothingLiesOnTopOfAnother) {
    for (const QSize size : Sizes) {
        Resize(size);
        for (const TextTab& tab : Tabs) {
            const QWidget& options = *Panel(tab.caption).findChild<QScrollArea*>()->widget();
            for (const QString& text : {QString(), u"Hello &NAME&, "_s.repeated(20)}) {
                for (const char* name : {"txtMsgSubject", "txtMsgMessage", "txtComment", "txtCommentNonHTML"})
                    app->controls.SetText(QLatin1StringView(name), text);
                QApplication::processEvents();
                QList<const QWidget*> seen;
                for (const auto* widget : options.findChildren<QWidget*>())
                    if (widget->isVisible() && IsLeaf(*widget))
                        seen.append(widget);
                EXPECT_GT(seen.size(), 1); // the inviter has its two explanations there
                for (const QWidget* one : seen)
                    for (const QWidget* other : seen)
                        EXPECT_FALSE(one < other && PlaceOf(*one).intersects(PlaceOf(*other)))
                            << one->objectName().toStdString() << " and " << other->objectName().toStdString()
                            << " at " << size.width();
            }
        }
    }
}

// A check of the start leads to its field, wherever that has been scrolled to.
TEST_F(CampaignPanelsTest, WhatTheLogicGivesTheFocusIsInSightAtAnySize) {
    for (const QSize size : Sizes) {
        Resize(size);
        for (const TextTab& tab : Tabs) {
            const QWidget& panel = Panel(tab.caption);
            for (const QString& name : tab.tabOrder) {
                const auto* widget = panel.findChild<QWidget*>(name);
                app->controls.SetFocus(QLatin1StringView(name.toLatin1()));
                QApplication::processEvents();
                EXPECT_EQ(widget->visibleRegion().boundingRect().height(), widget->height())
                    << name.toStdString() << " at " << size.width();
            }
        }
    }
}

TEST_F(CampaignPanelsTest, RoomToSpareGoesToTheTexts) {
    for (const auto& [tab, text] :
         {std::pair{u"Auto Messenger", "txtMsgMessage"}, {u"Auto Commenter", "txtComment"}}) {
        Resize({1440, 900});
        Panel(tab);
        const int before = Named<QPlainTextEdit>(text)->height();
        Resize({1440, 1100});
        EXPECT_GT(Named<QPlainTextEdit>(text)->height(), before + 60) << text;
    }
}

// What is typed reads at once as somebody gets it.
TEST_F(CampaignPanelsTest, WhatIsTypedReadsAsSomebodyGetsIt) {
    Panel(u"Auto Messenger");
    const QLabel* reads = Label("lblMsgReads");
    EXPECT_TRUE(reads->isHidden());
    auto* text = Named<QPlainTextEdit>("txtMsgMessage");
    text->insertPlainText(u"Hello &NAM"_s);
    EXPECT_EQ(reads->text(), u"Reads: Hello &NAM"_s);
    text->insertPlainText(u"E&, how are you?"_s);
    EXPECT_EQ(reads->text(), u"Reads: Hello Anna, how are you?"_s);
    EXPECT_TRUE(reads->isVisible());
    text->clear();
    EXPECT_TRUE(reads->isHidden());
}

TEST_F(CampaignPanelsTest, EveryTextThatGoesToSomebodyHasItsReading) {
    for (const auto& [tab, text, reads] :
         {std::tuple{u"Auto Messenger", "txtMsgSubject", "lblMsgSubjectReads"},
          {u"Auto Messenger", "txtMsgMessage", "lblMsgReads"},
          {u"Auto Commenter", "txtComment", "lblComReads"},
          {u"Auto Commenter", "txtCommentNonHTML", "lblComNonHTMLReads"}}) {
        Panel(tab);
        app->controls.SetText(QLatin1StringView(text), u"Hi &name&!"_s);
        QApplication::processEvents();
        EXPECT_EQ(Label(reads)->text(), u"Reads: Hi Anna!"_s) << reads;
        const auto* input = Named<QWidget>(text);
        EXPECT_TRUE(Label(reads)->isVisible()) << reads;
        // It stands under its text.
        EXPECT_LT(Label(reads)->mapTo(window, QPoint()).y() - input->mapTo(window, QPoint()).y(),
                  input->height() + 12)
            << reads;
    }
}

// A long one is cut, and whole as a tool tip, which shows markup as it is written.
TEST_F(CampaignPanelsTest, ALongReadingIsWholeInItsToolTip) {
    Panel(u"Auto Commenter");
    app->controls.SetText("txtComment"_L1, u"<b>Hi</b> "_s.repeated(40));
    QApplication::processEvents();
    QLabel* reads = Label("lblComReads");
    const QPoint at = reads->rect().center();
    QHelpEvent rest(QEvent::ToolTip, at, reads->mapToGlobal(at));
    QApplication::sendEvent(reads, &rest);
    EXPECT_TRUE(QToolTip::text().contains(u"&lt;b&gt;Hi&lt;/b&gt;"_s)) << QToolTip::text().toStdString();
    QToolTip::hideText();
}

TEST_F(CampaignPanelsTest, WhatThePlaceholderDoesIsSaidWhereOneTypes) {
    for (const TextTab& tab : Tabs) {
        QStringList texts = Texts(Panel(tab.caption));
        // A post goes to nobody by name.
        EXPECT_EQ(
            texts.contains(u"*Note: Anywhere that you write &NAME& will be replaced by the target's name"_s),
            tab.goesToSomebody)
            << texts.join(u'|').toStdString();
    }
    for (const char* text : {"txtMsgSubject", "txtMsgMessage", "txtComment", "txtCommentNonHTML",
                             "txtAcceptSubject", "txtAcceptMessage", "txtAcceptComment"})
        EXPECT_TRUE(Named<QWidget>(text)->toolTip().contains(u"&NAME&"_s)) << text;
}

TEST_F(CampaignPanelsTest, TheAlternativeCommentAsksForItselfWithoutBeingAText) {
    Panel(u"Auto Commenter");
    const auto* text = Named<QPlainTextEdit>("txtCommentNonHTML");
    EXPECT_EQ(text->placeholderText(), u"Enter non-HTML comment here"_s);
    EXPECT_EQ(app->controls.Text("txtCommentNonHTML"_L1), QString());
}

TEST_F(CampaignPanelsTest, TheirStartButtonsTakeADoubleClickAsOne) {
    for (const auto& [tab, button] : {std::pair{u"Auto Messenger", "picCmdMsgSend"},
                                      {u"Auto Commenter", "picCmdComSend"},
                                      {u"Timed Bulletins", "picCmdBulSend"},
                                      {u"Status Updater", "piccmdSendStatusUpdates"},
                                      {u"Accept Friends", "picCmdAutoApprove"}}) {
        Panel(tab);
        runs = 0;
        auto* send = Named<QWidget>(button);
        const QPointF at = send->rect().center();
        for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease,
                                        QEvent::MouseButtonDblClick, QEvent::MouseButtonRelease}) {
            const auto held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
            QMouseEvent event(type, at, send->mapToGlobal(at), Qt::LeftButton, held, Qt::NoModifier);
            QApplication::sendEvent(send, &event);
        }
        EXPECT_EQ(runs, 1) << button;
    }
}

} // namespace qlm
