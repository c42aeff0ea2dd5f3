// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <functional>

namespace qlm {

class App;
struct JudgedLink;

// Is the profile in WebBrowser1 the kind of person the user wants? And the window in which they say so.
class ProfileFilters {
public:
    explicit ProfileFilters(App& app);

    // True when the profile passes. Waits for what it needs of the page; false as soon as the link check is
    // held.
    bool IsFilteredProfile();
    // Of the profile in WebBrowser1; of a list page, by what stands beside the link.
    bool IsUserOnline();
    bool IsUserOnline(JudgedLink& link);
    // Every filter option is at its neutral value.
    bool AllOff() const;
    // A send run looks at the profile before it sends.
    bool ActiveWhenSending() const;

    void picFilterOptions_Click();

private:
    struct Profile {
        bool blnNewLayout = false; // of this page, not of the site
        bool blnIsMusic = false;
    };

    bool Decide();
    bool WaitForLayout(Profile& profile);
    bool IsMusicProfile(const Profile& profile);
    bool MatchesType(const Profile& profile);
    bool MatchesGender(const Profile& profile);
    bool MatchesAge(const Profile& profile);
    bool MatchesLocation(const Profile& profile);
    bool MatchesLastLogin();
    void WaitOnPage(const std::function<bool()>& arrived, int seconds, bool untilComplete);
    bool InText(const QString& text);
    bool InHTML(const QString& markup);
    void Trace(const QString& text);

    // frmFilters
    void RegisterForm();
    void FollowOptions();
    void ReadBack();
    void frmFilters_Load();
    void frmFilters_cmdOK_Click();
    void EnablePersonFilters(bool enable);
    void EnableAges(bool enable);

    App& m_app;
};

} // namespace qlm
