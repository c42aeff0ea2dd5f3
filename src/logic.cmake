# Everything that is not a form, a widget or a platform.
add_library(quillmere_logic STATIC
    platform/MessageQueue.cpp

    core/ActionTick.cpp
    core/Activities.cpp
    core/AnsiText.cpp
    core/App.cpp
    core/BrowserSounds.cpp
    core/Controls.cpp
    core/ControlsTable.cpp
    core/Deployment.cpp
    core/Diagnostics.cpp
    core/FileSystem.cpp
    core/GlobalSettings.cpp
    core/IdList.cpp
    core/IniFile.cpp
    core/LineSearch.cpp
    core/MainForm.cpp
    core/PasswordMask.cpp
    core/ProductServer.cpp
    core/Registry.cpp
    core/SettingsFields.cpp
    core/StartUp.cpp
    core/StopResume.cpp
    core/SupportFiles.cpp
    core/Text.cpp
    core/Waiting.cpp

    browser/BrowserHost.cpp
    browser/ErrorPages.cpp
    browser/ExpectedElement.cpp
    browser/FocusHelper.cpp
    browser/GatherPageTest.cpp
    browser/LanguageTest.cpp
    browser/LastPageRules.cpp
    browser/LinkClicks.cpp
    browser/PageBoxes.cpp
    browser/PageClassTable.cpp
    browser/PageClassifier.cpp
    browser/PageDetours.cpp
    browser/PageTests.cpp
    browser/PageWords.cpp
    browser/ScriptEdits.cpp
    browser/StepDispatcher.cpp
    browser/TypedLogin.cpp

    accounts/AccountDetails.cpp
    accounts/AccountFile.cpp
    accounts/AccountScreens.cpp
    accounts/LoginFlow.cpp
    accounts/LoginForm.cpp
    accounts/LoginSubmission.cpp
    accounts/OwnProfileId.cpp

    gather/BlackList.cpp
    gather/BlackListForm.cpp
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
    gather/ProfileLinkRules.cpp
    gather/ProfileLinks.cpp
    gather/ProfileText.cpp
    gather/ProfileVisit.cpp
    gather/SearchForm.cpp
    gather/WebSearch.cpp

    content/ContentLine.cpp
    content/ContentLists.cpp
    content/MessageFile.cpp

    campaigns/BulletinDots.cpp
    campaigns/Campaigns.cpp
    campaigns/CaptchaCalls.cpp
    campaigns/ContentChoice.cpp
    campaigns/Counters.cpp
    campaigns/FriendCategories.cpp
    campaigns/FriendRequester.cpp
    campaigns/LogDialog.cpp
    campaigns/Pacing.cpp
    campaigns/RefusalTexts.cpp
    campaigns/ReportDialog.cpp
    campaigns/ReportRows.cpp
    campaigns/RequestFields.cpp
    campaigns/RequestSubmission.cpp
    campaigns/RunReport.cpp
    campaigns/SendRuns.cpp
    campaigns/SentLog.cpp
    campaigns/StartChecks.cpp
    campaigns/TargetName.cpp
    campaigns/TimeDelayDialog.cpp
)
target_include_directories(quillmere_logic PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(quillmere_logic PUBLIC quillmere_options Qt6::Core)
