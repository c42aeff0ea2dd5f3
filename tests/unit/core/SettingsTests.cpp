// SPDX-License-Identifier: MIT
#include "SettingsTest.h"
#include "core/SettingsFields.h"

#include <QSet>

namespace qlm {
namespace {

// What is stored under each kind of data.
const std::pair<const char*, QStringList> KeysOfKinds[] = {
    {"Field Entries",
     {u"optAutoStartOn"_s, u"txtTimeHH"_s, u"txtTimeMM"_s, u"cboAMPM"_s, u"cboAutostartAction"_s}},
    {"Bulletin",
     {u"txtBulSubject"_s, u"txtBulMessage"_s, u"txtPostAmount"_s, u"txtTimer"_s, u"txtBulTimerTo"_s,
      u"chkAntiFlood"_s, u"chkBulAllowComments"_s, u"optSendSingle(2)"_s, u"optSendFromList(2)"_s,
      u"chkBulSendFromList"_s}},
    {"Status",
     {u"txtStatusBody"_s, u"txtStatusPostAmount"_s, u"txtStatusTimerFrom"_s, u"txtStatusTimerTo"_s,
      u"chkStatusAntiFlood"_s, u"optSendSingle(3)"_s, u"optSendFromList(3)"_s}},
    {"Comment",
     {u"txtComment"_s, u"txtCommentNonHTML"_s, u"optCOMHTMLBLocked(0)"_s, u"optCOMHTMLBLocked(1)"_s,
      u"optCOMHTMLBLocked(2)"_s, u"chkComUseNonHTML"_s, u"txtComStopAt"_s, u"chkComDontSendAgain"_s,
      u"cboCOMPerDayOrSession"_s, u"chkCOMListSkipNonHMTL"_s, u"optSendSingle(1)"_s, u"optSendFromList(1)"_s,
      u"chkComSendFromList"_s}},
    {"Message",
     {u"txtMsgSubject"_s, u"txtMsgMessage"_s, u"chkMsgDontSendAgain"_s, u"txtMsgStopAt"_s,
      u"cboMSGPerDayOrSession"_s, u"optSendSingle(0)"_s, u"optSendFromList(0)"_s, u"chkComSendFromList"_s}},
    {"FriendRequest",
     {u"txtFriendRequestsToSend"_s, u"cboFRPerDayOrSession"_s, u"chkFRNote"_s, u"txtFRNote"_s,
      u"chkFRFullName"_s, u"chkFrSendMessage"_s, u"chkFRAddToUpdates"_s, u"txtDelPenFRStartPage"_s,
      u"chkFRAddToCategory"_s, u"cboFRCategories"_s}},
    {"Accept",
     {u"txtAcceptMessage"_s, u"txtAcceptSubject"_s, u"txtAcceptComment"_s, u"txtAcceptCommentNonHTML"_s,
      u"optACCcomHTMLBLocked(0)"_s, u"optACCcomHTMLBLocked(1)"_s, u"optACCcomHTMLBLocked(2)"_s,
      u"chkAcceptCommentNonHTML"_s, u"optAcceptDontSend"_s, u"optAcceptSendMsg"_s, u"optAcceptSendCom"_s,
      u"chkAcceptAddToUpdates"_s, u"txtAcceptToPage"_s}},
    {"GatherSettings",
     {u"optScanCurrentPage"_s, u"optScanFollowing"_s, u"optScanGoogle"_s, u"optFullGather"_s,
      u"optQuickGather"_s, u"chkSaveScanned"_s, u"chkRemoveAfterSent"_s}},
    {"Filter", {u"optFilterOff"_s,         u"optFilterBands"_s,       u"optFilterComedy"_s,
                u"optFilterFilm"_s,        u"optFilterPeople"_s,      u"optFilterGenderOff"_s,
                u"optFilterMale"_s,        u"optFilterFemale"_s,      u"optFilterLocationOff"_s,
                u"optFilterLocation"_s,    u"txtFilterLocation"_s,    u"optFilterWhenGathering"_s,
                u"optFilterWhenSending"_s, u"optFilterAgeOff"_s,      u"blnFilterAgeOn"_s,
                u"cboFilterAge1"_s,        u"cboFilterAge2"_s,        u"optFilterLastLoginOff"_s,
                u"optFilterOnlineNow"_s,   u"optFilterLastLoginOn"_s, u"txtFilterLastLoginDays"_s}},
    {"General",
     {u"mnuMultipleAccountsOn"_s, u"mnuMultipleAccountsFROnSession"_s, u"mnuMultipleAccountsOff"_s,
      u"mnuMultipleAccountsMSGOn"_s, u"mnuMultipleAccountsMSGOnSession"_s, u"mnuMultipleAccountsMSGOff"_s,
      u"mnuMultipleAccountsBULOn"_s, u"mnuMultipleAccountsBULOnSession"_s, u"mnuMultipleAccountsBULOff"_s,
      u"mnuCaptchaSound"_s, u"mnuCaptchaPopup"_s, u"mnuCaptchaRestoreIfMinimized"_s,
      u"mnuSkipProfileCAPTCHAs"_s, u"mnuAddToLogWhenAccepting"_s, u"mnuEnableLogging"_s, u"mnuMinimizeTray"_s,
      u"mnuShowInfoBar"_s, u"mnuDisableBrowserSounds"_s}},
};

TEST_F(SettingsTest, EveryKeyIsStoredInTheSectionOfItsKind) {
    Share(false);
    Restart();
    Save();
    for (const auto& [kind, keys] : KeysOfKinds) {
        const QString name = QString::fromLatin1(kind);
        const QString section = name == General || name == Shared ? name : OwnOfA;
        for (const QString& key : keys)
            EXPECT_TRUE(world.settings.HasSetting(section, key)) << kind << " " << key.toStdString();
    }
}

TEST_F(SettingsTest, NothingButTheKnownKeysIsStored) {
    Share(false);
    Restart();
    Save();
    QMap<QString, QSet<QString>> known;
    for (const auto& [kind, keys] : KeysOfKinds) {
        const QString name = QString::fromLatin1(kind);
        known[name == General || name == Shared ? name : OwnOfA].unite(
            QSet<QString>(keys.begin(), keys.end()));
    }
    for (const QString& section : {Shared, OwnOfA})
        for (const auto& [key, value] : world.settings.All().at(section))
            EXPECT_TRUE(known[section].contains(key)) << section.toStdString() << " " << key.toStdString();
}

TEST_F(SettingsTest, ATextThatIsNoneOfItsChoicesLeavesTheBoxAsItStands) {
    int boxes = 0;
    for (const ControlRow& row : Controls::Table()) {
        if (row.type != ControlType::ComboBox || !row.choices || !row.kind[0])
            continue;
        world.settings.SaveSetting(Shared, QString::fromLatin1(row.name), u"something else"_s);
        ++boxes;
    }
    EXPECT_EQ(boxes, 6);
    Restart();
    for (const ControlRow& row : Controls::Table())
        if (row.type == ControlType::ComboBox && row.choices) {
            EXPECT_EQ(Inputs().Text(QLatin1StringView(row.name)), QString::fromUtf16(row.text)) << row.name;
        }
}

TEST_F(SettingsTest, EveryStoredInputComesBack) {
    Share(false);
    Restart();
    std::vector<const ControlRow*> changed;
    for (const ControlRow& row : Controls::Table()) {
        const QLatin1StringView name(row.name);
        // Of the two list boxes that share a key the messenger's is the one that lasts.
        if (!row.kind[0] || row.group[0] || name == "chkComSendFromList"_L1)
            continue;
        changed.push_back(&row);
        if (IsTick(Inputs()[name]))
            Inputs().SetTicked(name, !row.ticked);
        else
            Inputs().SetText(name, OtherText(row));
    }
    Save();
    Restart();
    for (const ControlRow* row : changed) {
        const QLatin1StringView name(row->name);
        if (IsTick(Inputs()[name])) {
            EXPECT_EQ(Inputs().Ticked(name), !row->ticked) << row->name;
        } else {
            EXPECT_EQ(Inputs().Text(name), OtherText(*row)) << row->name;
        }
    }
}

TEST_F(SettingsTest, EveryStoredChoiceComesBack) {
    Share(false);
    constexpr int MostChoices = 5;
    for (int choice = 0; choice < MostChoices; ++choice) {
        Restart();
        QHash<QString, int> seen;
        std::vector<QLatin1StringView> chosen;
        for (const ControlRow& row : Controls::Table())
            if (row.kind[0] && row.group[0] && seen[QString::fromLatin1(row.group)]++ == choice)
                chosen.emplace_back(row.name);
        for (const QLatin1StringView name : chosen)
            Inputs().SetTicked(name, true);
        Save();
        Restart();
        for (const QLatin1StringView name : chosen)
            EXPECT_TRUE(Inputs().Ticked(name) || name.endsWith("OnSession"_L1)) << name.data();
    }
}

TEST_F(SettingsTest, TheStoredFormsAreThoseOfTheTypes) {
    Restart();
    Inputs().SetTicked("chkFRNote"_L1, true);
    Inputs().SetTicked("optScanCurrentPage"_L1, true);
    Inputs().SetTicked("mnuCaptchaSound"_L1, true);
    Inputs().SetText("txtFRNote"_L1, u"Hi"_s);
    Save();
    EXPECT_EQ(Stored(Shared, u"chkFRNote"_s), u"1"_s);
    EXPECT_EQ(Stored(Shared, u"chkFRFullName"_s), u"0"_s);
    EXPECT_EQ(Stored(Shared, u"optScanCurrentPage"_s), u"True"_s);
    EXPECT_EQ(Stored(Shared, u"optScanFollowing"_s), u"False"_s);
    EXPECT_EQ(Stored(General, u"mnuCaptchaSound"_s), u"True"_s);
    EXPECT_EQ(Stored(Shared, u"txtFRNote"_s), u"Hi"_s);
}

TEST_F(SettingsTest, EachKindFollowsItsOwnFlag) {
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags()) {
        SCOPED_TRACE(flag.key);
        Share(true);
        world.settings.SaveSetting(General, QString::fromLatin1(flag.key), u"False"_s);
        Restart();
        for (const GlobalFlag& other : SettingsFields::GlobalFlags())
            for (const char* kind : other.kinds)
                EXPECT_EQ(app->Get<SettingsFields>().UsesGlobal(QString::fromLatin1(kind)), &other != &flag)
                    << kind;
        // What no other flag governs.
        EXPECT_EQ(app->Get<SettingsFields>().UsesGlobal(u"Anything"_s),
                  &flag != &SettingsFields::GlobalFlags().front());
    }
}

// One key of the store is two inputs of different kinds.
bool IsOfTwoKinds(const ControlRow& row) {
    return QByteArray(row.name) == "chkComSendFromList" || QByteArray(row.name) == "chkMsgSendFromList";
}

bool Governs(const GlobalFlag& flag, const char* kind) {
    return std::any_of(flag.kinds.begin(), flag.kinds.end(),
                       [kind](const char* governed) { return QByteArray(governed) == kind; });
}

TEST_F(SettingsTest, AFlagThatIsOffMovesTheInputsOfItsKindsAndNoOthers) {
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags()) {
        SCOPED_TRACE(flag.key);
        world.settings = {};
        Share(true);
        world.settings.SaveSetting(General, QString::fromLatin1(flag.key), u"False"_s);
        Restart();
        Save();
        for (const ControlRow& row : Controls::Table()) {
            const QByteArray kind = row.kind;
            if (kind.isEmpty() || kind == "General" || kind == "Field Entries" || IsOfTwoKinds(row))
                continue;
            const QString key = QString::fromLatin1(row.key[0] ? row.key : row.name);
            const bool own = Governs(flag, row.kind);
            EXPECT_EQ(world.settings.HasSetting(OwnOfA, key), own) << row.name;
            EXPECT_EQ(world.settings.HasSetting(Shared, key), !own) << row.name;
        }
    }
}

TEST_F(SettingsTest, AFlagThatIsOffMovesTheListsOfItsKindsAndNoOthers) {
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags()) {
        SCOPED_TRACE(flag.key);
        world.settings = {};
        world.settings.SaveSetting(General, QString::fromLatin1(flag.key), u"False"_s);
        Restart();
        for (const char* kind : {"BookmarksList", "Log", "GatheredList", "BulletinsList", "StatusesList",
                                 "CommentsList", "MessagesList"})
            EXPECT_EQ(app->Get<SettingsFields>().AccountDataPath(QString::fromLatin1(kind)),
                      Governs(flag, kind) ? u"\\ACCOUNTS\\a@example.com"_s : QString())
                << kind;
        EXPECT_EQ(app->Get<SettingsFields>().AccountDataPath(u"Invite"_s),
                  Governs(flag, "Invite") ? u"\\a@example.com"_s : QString());
    }
}

TEST_F(SettingsTest, TheSharedFolderIsNotMadeForTheAccount) {
    Restart();
    app->Get<SettingsFields>().AccountDataPath(u"Log"_s);
    EXPECT_FALSE(QDir(folder.filePath(u"program/ACCOUNTS"_s)).exists());
}

TEST_F(SettingsTest, EverythingIsSharedUnlessTheStoreSaysNo) {
    Restart();
    for (const GlobalFlag& flag : SettingsFields::GlobalFlags())
        EXPECT_TRUE(app->Get<SettingsFields>().GlobalFlagSet(flag)) << flag.key;
    EXPECT_EQ(SettingsFields::GlobalFlags().size(), 13);
    world.settings.SaveSetting(General, u"blnUseGlobalLogs"_s, u"perhaps"_s);
    Restart();
    EXPECT_TRUE(app->Get<SettingsFields>().UsesGlobal(u"Log"_s));
}

TEST_F(SettingsTest, TheOwnPlaceOfAnAccount) {
    Share(false);
    Restart();
    EXPECT_EQ(app->Get<SettingsFields>().AccountDataPath(u"FriendRequest"_s), u"\\a@example.com"_s);
    for (const QString& kind : {u"BookmarksList"_s, u"Log"_s, u"GatheredList"_s, u"BulletinsList"_s,
                                u"StatusesList"_s, u"CommentsList"_s, u"MessagesList"_s})
        EXPECT_EQ(app->Get<SettingsFields>().AccountDataPath(kind), u"\\ACCOUNTS\\a@example.com"_s);
    EXPECT_TRUE(QDir(folder.filePath(u"program/ACCOUNTS/a@example.com"_s)).exists());
    app->state.AccountEmail.clear();
    EXPECT_EQ(app->Get<SettingsFields>().AccountDataPath(u"Log"_s), QString());
    EXPECT_EQ(app->Get<SettingsFields>().AccountDataPath(u"FriendRequest"_s), QString());
    Share(true);
    Restart();
    EXPECT_EQ(app->Get<SettingsFields>().AccountDataPath(u"Log"_s), QString());
}

TEST_F(SettingsTest, AnotherAccountDoesNotSeeTheFirstsInputs) {
    Share(false);
    Restart();
    Inputs().SetText("txtMsgSubject"_L1, u"from a"_s);
    Inputs().SetTicked("optScanCurrentPage"_L1, true);
    Save();
    Switch(u"b@example.com"_s);
    EXPECT_EQ(Inputs().Text("txtMsgSubject"_L1), QString());
    EXPECT_TRUE(Inputs().Ticked("optScanFollowing"_L1));
    Switch(u"a@example.com"_s);
    EXPECT_EQ(Inputs().Text("txtMsgSubject"_L1), u"from a"_s);
    EXPECT_TRUE(Inputs().Ticked("optScanCurrentPage"_L1));
}

TEST_F(SettingsTest, AMissingOrBadValueLeavesTheInputAsItStands) {
    Restart();
    Inputs().SetText("txtMsgSubject"_L1, u"stands"_s);
    Inputs().SetTicked("chkFRNote"_L1, true);
    Inputs().SetTicked("optFullGather"_L1, true);
    world.settings.SaveSetting(Shared, u"chkFRNote"_s, u"no number"_s);
    world.settings.SaveSetting(Shared, u"optFullGather"_s, u"no boolean"_s);
    Switch(u"b@example.com"_s);
    EXPECT_EQ(Inputs().Text("txtMsgSubject"_L1), u"stands"_s);
    EXPECT_TRUE(Inputs().Ticked("chkFRNote"_L1));
    EXPECT_TRUE(Inputs().Ticked("optFullGather"_L1));
}

TEST_F(SettingsTest, TheMessengersListBoxGoesByTheCommentersName) {
    Restart();
    Inputs().SetTicked("chkMsgSendFromList"_L1, true);
    Inputs().SetTicked("chkComSendFromList"_L1, false);
    Save();
    // Shared, the two have one place, and the messenger's is written last.
    EXPECT_EQ(Stored(Shared, u"chkComSendFromList"_s), u"1"_s);
    EXPECT_FALSE(world.settings.HasSetting(Shared, u"chkMsgSendFromList"_s));
    Restart();
    EXPECT_TRUE(Inputs().Ticked("chkComSendFromList"_L1));
}

TEST_F(SettingsTest, AnEmptyCategoryAsksForOne) {
    world.settings.SaveSetting(Shared, u"cboFRCategories"_s, {});
    Restart();
    EXPECT_EQ(Inputs().Text("cboFRCategories"_L1), u"Select a category from the list"_s);
}

TEST_F(SettingsTest, TheSessionItemOfAChainIsStoredAndMeansOffAtTheNextStart) {
    for (const QString& chain : {u"FR"_s, u"MSG"_s, u"BUL"_s}) {
        SCOPED_TRACE(chain.toStdString());
        const QByteArray stem = "mnuMultipleAccounts" + chain.toLatin1();
        const QByteArray on = stem + "On", session = stem + "OnSession", off = stem + "Off";
        Restart();
        Inputs().SetTicked(QLatin1StringView(session), true);
        Save();
        EXPECT_EQ(Stored(General, QString::fromLatin1(session)), u"True"_s);
        Restart();
        EXPECT_FALSE(Inputs().Ticked(QLatin1StringView(session)));
        EXPECT_TRUE(Inputs().Ticked(QLatin1StringView(off)));
        Inputs().SetTicked(QLatin1StringView(on), true);
        Save();
        Restart();
        EXPECT_TRUE(Inputs().Ticked(QLatin1StringView(on)));
    }
}

TEST_F(SettingsTest, LoggingFollowsTheStoredItem) {
    world.settings.SaveSetting(General, u"mnuEnableLogging"_s, u"True"_s);
    Restart();
    EXPECT_TRUE(app->state.blnLoggingEnabled);
}

TEST_F(SettingsTest, BeforeAnAccountIsRestoredNothingIsSavedUnderIt) {
    Share(false);
    Restart();
    Inputs().SetText("txtMsgSubject"_L1, u"from a"_s);
    Save();
    app->state.AccountEmail = u"b@example.com"_s;
    app->Get<SettingsFields>().RestoreAccountSettings();
    app->Get<SettingsFields>().SaveListsAndSettings();
    EXPECT_FALSE(world.settings.HasSection(u"Field Entries\\b@example.com"_s));
    app->Get<SettingsFields>().RestoreAccountSpecificFields();
    app->Get<SettingsFields>().SaveListsAndSettings();
    EXPECT_TRUE(world.settings.HasSection(u"Field Entries\\b@example.com"_s));
}

TEST_F(SettingsTest, AServerThatCannotBeReachedEndsTheProgramWithoutSaving) {
    Share(false);
    Restart();
    world.settings.SaveSetting(u"Field Entries\\b@example.com"_s, u"txtMsgSubject"_s, u"from b"_s);
    world.http.responder = nullptr;
    EXPECT_THROW(Switch(u"b@example.com"_s), ProgramEnding);
    EXPECT_TRUE(platform->Shell().hasQuit);
    EXPECT_TRUE(app->state.blnNoSaveOnExit);
    EXPECT_EQ(dialogs.messages.size(), 1);
    EXPECT_EQ(Stored(u"Field Entries\\b@example.com"_s, u"txtMsgSubject"_s), u"from b"_s);
}

class WindowPlaceTest : public SettingsTest {
protected:
    void Restore() {
        set.reset();
        app->Get<SettingsFields>().getPlace = [this] { return place; };
        app->Get<SettingsFields>().setPlace = [this](const WindowPlace& wanted) { set = wanted; };
        app->Get<SettingsFields>().RestoreGeneralPrevious();
    }
    void Close(const WindowPlace& at) {
        app->Get<SettingsFields>().getPlace = [at] { return at; };
        app->Get<SettingsFields>().SaveGeneral();
    }
    WindowPlace place{1, 2, 300, 200, false, false};
    std::optional<WindowPlace> set;
};

TEST_F(WindowPlaceTest, AnOrdinaryPlaceComesBack) {
    Close({10, 20, 900, 700, false, false});
    Restore();
    ASSERT_TRUE(set);
    EXPECT_EQ(std::make_tuple(set->left, set->top, set->width, set->height, set->maximized),
              std::make_tuple(10, 20, 900, 700, false));
}

TEST_F(WindowPlaceTest, EachValueHoldsWhateverBecameOfTheOthers) {
    const std::vector<std::pair<QString, int WindowPlace::*>> values{{u"Left"_s, &WindowPlace::left},
                                                                     {u"Top"_s, &WindowPlace::top},
                                                                     {u"Width"_s, &WindowPlace::width},
                                                                     {u"Height"_s, &WindowPlace::height}};
    for (const auto& [bad, own] : values) {
        SCOPED_TRACE(bad.toStdString());
        Close({10, 20, 900, 700, false, false});
        world.settings.SaveSetting(General, bad, u"wide"_s);
        Restore();
        ASSERT_TRUE(set);
        const WindowPlace stored{10, 20, 900, 700, false, false};
        for (const auto& [key, field] : values)
            EXPECT_EQ((*set).*field, key == bad ? place.*own : stored.*field) << key.toStdString();
    }
}

TEST_F(WindowPlaceTest, AMaximisedOrMinimisedWindowLeavesTheStoredPlace) {
    Close({10, 20, 900, 700, false, false});
    Close({0, 0, 1900, 1000, true, false});
    Restore();
    ASSERT_TRUE(set);
    EXPECT_EQ(set->width, 900);
    EXPECT_TRUE(set->maximized);
    Close({0, 0, 5, 5, false, true});
    Restore();
    EXPECT_EQ(set->width, 900);
    EXPECT_FALSE(set->maximized);
}

TEST_F(WindowPlaceTest, AWindowThatWasOnlyEverMaximisedIsSoAgain) {
    Restore();
    EXPECT_FALSE(set);
    Close({0, 0, 1900, 1000, true, false});
    Restore();
    ASSERT_TRUE(set);
    EXPECT_TRUE(set->maximized);
    EXPECT_EQ(set->width, 300);
}

TEST_F(SettingsTest, WhatIsSavedIsWrittenToTheDiskAtOnce) {
    Restart();
    const auto syncs = [this](const std::function<void()>& act) {
        const int before = world.settings.syncs;
        act();
        return world.settings.syncs - before;
    };
    EXPECT_EQ(syncs([this] { app->Get<SettingsFields>().SaveListsAndSettings(); }), 1);
    EXPECT_EQ(syncs([this] { app->Get<SettingsFields>().SaveGeneral(); }), 1);
}

TEST_F(SettingsTest, ASoundThatIsTakenAndGivenBackIsOnTheDiskAtOnce) {
    const QString path = u"AppEvents\\Schemes\\Apps\\Explorer\\Navigating"_s;
    world.settings.SaveSetting(path, u".Current"_s, u"click.wav"_s);
    Restart();
    for (const QString& sound : {QString(), u"click.wav"_s}) {
        const int before = world.settings.syncs;
        app->commands.Run(u"mnuDisableBrowserSounds_Click"_s);
        EXPECT_EQ(world.settings.GetSetting(path, u".Current"_s, u"none"_s), sound);
        EXPECT_GT(world.settings.syncs, before);
    }
}

} // namespace
} // namespace qlm
