# Everything that is not a form, a widget or a platform, floor by floor.
add_library(quillmere_logic STATIC
    platform/MessageQueue.cpp

    core/AccountName.cpp
    core/AnsiText.cpp
    core/App.cpp
    core/BrowserSounds.cpp
    core/Controls.cpp
    core/ControlsTable.cpp
    core/Deployment.cpp
    core/Descriptor.cpp
    core/Diagnostics.cpp
    core/FileSystem.cpp
    core/IdList.cpp
    core/IniFile.cpp
    core/LineReader.cpp
    core/LineSearch.cpp
    core/LongWait.cpp
    core/PasswordMask.cpp
    core/ProductServer.cpp
    core/ProfileLock.cpp
    core/Registry.cpp
    core/SettingsFields.cpp
    core/SupportFiles.cpp
    core/Text.cpp
    core/Waiting.cpp

    browser/Cover.cpp
    browser/LanguageSigns.cpp
    browser/LinkClicks.cpp
    browser/PageBoxes.cpp
    browser/PageClassTable.cpp
    browser/PageClassifier.cpp
    browser/PageSigns.cpp
    browser/PageView.cpp
    browser/PageWords.cpp
    browser/ProfileLinkRules.cpp
    browser/ProfileLinks.cpp
    browser/ScriptEdits.cpp
    browser/ScriptValues.cpp

    steps/ActionTick.cpp
    steps/Activities.cpp
    steps/BrowserHost.cpp
    steps/ExpectedElement.cpp
    steps/FocusHelper.cpp
    steps/FullListRules.cpp
    steps/LastPageRules.cpp
    steps/PageDetours.cpp
    steps/ReportRows.cpp
    steps/RunReport.cpp
    steps/StepDispatcher.cpp
    steps/StopResume.cpp
    steps/TypedLogin.cpp

    accounts/AccountDetails.cpp
    accounts/AccountFile.cpp
    accounts/AccountScreens.cpp
    accounts/LoginErrorPages.cpp
    accounts/LoginFlow.cpp
    accounts/LoginForm.cpp
    accounts/LoginSubmission.cpp
    accounts/OwnProfileId.cpp

    gather/BlackList.cpp
    gather/BlackListForm.cpp
    gather/ClickGather.cpp
    gather/FilterOptions.cpp
    gather/FilterPass.cpp
    gather/FirstPageSigns.cpp
    gather/GatherButtons.cpp
    gather/GatherDriver.cpp
    gather/GatheredList.cpp
    gather/GatheredListButtons.cpp
    gather/IdResolution.cpp
    gather/IdTexts.cpp
    gather/LinkScanner.cpp
    gather/ListFiles.cpp
    gather/ListingText.cpp
    gather/NextLinkRules.cpp
    gather/PageLoadWait.cpp
    gather/PageTurn.cpp
    gather/Pager.cpp
    gather/ProfileFilters.cpp
    gather/ProfileText.cpp
    gather/ProfileVisit.cpp
    gather/SearchForm.cpp
    gather/StandingPage.cpp
    gather/WebSearch.cpp

    content/ContentLine.cpp
    content/ContentLists.cpp
    content/MessageFile.cpp

    campaigns/BulletinDots.cpp
    campaigns/CampaignErrorPages.cpp
    campaigns/Campaigns.cpp
    campaigns/CaptchaCalls.cpp
    campaigns/ChainedStart.cpp
    campaigns/ContentChoice.cpp
    campaigns/Counters.cpp
    campaigns/FriendCategories.cpp
    campaigns/FriendRequester.cpp
    campaigns/LogDialog.cpp
    campaigns/OpenNotes.cpp
    campaigns/Pacing.cpp
    campaigns/ReportDialog.cpp
    campaigns/RequestFields.cpp
    campaigns/RequestSubmission.cpp
    campaigns/SendRuns.cpp
    campaigns/SentLog.cpp
    campaigns/StartChecks.cpp
    campaigns/TargetName.cpp
    campaigns/TimeDelayDialog.cpp

    program/Activities.cpp
    program/GlobalSettings.cpp
    program/MainForm.cpp
    program/Program.cpp
    program/StartUp.cpp
)
target_include_directories(quillmere_logic PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(quillmere_logic PUBLIC quillmere_options Qt6::Core)
