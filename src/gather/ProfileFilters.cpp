// SPDX-License-Identifier: MIT
#include "gather/ProfileFilters.h"

#include "browser/PageClassifier.h"
#include "browser/PageSigns.h"
#include "browser/ProfileLinkRules.h"
#include "core/App.h"
#include "core/Text.h"
#include "gather/ProfileText.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
constexpr int SecondsForPage = 30;
constexpr int SecondsForClassicPage = 15;
constexpr int SecondsForGender = 15;
constexpr int SecondsForAge = 10;
} // namespace

ProfileFilters::ProfileFilters(App& app) : m_app(app) {
    RegisterForm();
    FollowOptions();
}

void ProfileFilters::Trace(const QString& text) {
    m_app.diagnostics.Debug(u"debugfilter.txt"_s, text);
}

bool ProfileFilters::InText(const QString& text) {
    return m_app.Get<PageSigns>().IsTextInPage(text);
}

bool ProfileFilters::InHTML(const QString& markup) {
    return m_app.Get<PageSigns>().IsTextInPage(markup, true);
}

bool ProfileFilters::AllOff() const {
    const RunState& state = m_app.state;
    return state.blnFilterTypeOff && state.blnFilterGenderOff && state.blnFilterLocationOff &&
           state.blnFilterAgeOff && state.blnFilterLastLoginOff;
}

bool ProfileFilters::ActiveWhenSending() const {
    return m_app.state.optFilterWhenSending && !AllOff();
}

void ProfileFilters::WaitOnPage(const std::function<bool()>& arrived, int seconds, bool untilComplete) {
    m_app.waiting.WaitWhile(
        [&] {
            return !m_app.state.blnHoldLinkCheck &&
                   (!untilComplete || m_app.WebBrowser1().ReadyState() != 4) && !arrived();
        },
        seconds);
}

bool ProfileFilters::IsFilteredProfile() {
    bool matches = false;
    m_app.diagnostics.Trap("IsFilteredProfile", [&] { matches = Decide(); });
    return matches;
}

bool ProfileFilters::Decide() {
    const RunState& state = m_app.state;
    Trace(u"ifp 0 - "_s + m_app.Get<PageSigns>().LocationURL());
    Trace(u"ifp 1 - "_s + FromBoolean(state.blnFilterTypeOff) + u", "_s +
          FromBoolean(state.blnFilterGenderOff) + u", "_s + FromBoolean(state.blnFilterLocationOff) +
          u", "_s + FromBoolean(state.blnFilterAgeOff) + u", "_s + FromBoolean(state.blnFilterLastLoginOff));
    if (AllOff()) {
        Trace(u"ifp 2"_s);
        return true;
    }
    if (m_app.Get<PageSigns>().IsAdvertiserProfile()) {
        Trace(u"ifp ISADVPRO"_s);
        return false;
    }
    m_app.Get<PageSigns>().WaitForDocument();
    Trace(u"ifp 3 - "_s + m_app.NowText());
    Profile profile;
    if (!WaitForLayout(profile))
        return false;
    Trace(u"ifp 4 - "_s);
    profile.blnIsMusic = IsMusicProfile(profile);
    bool matches = MatchesType(profile) && MatchesGender(profile);
    Trace(u"ifp12"_s);
    matches = matches && MatchesAge(profile);
    Trace(u"ifp20"_s);
    matches = matches && MatchesLocation(profile) && (!state.optFilterOnlineNow || IsUserOnline()) &&
              MatchesLastLogin();
    Trace(u"ifp24 - "_s + FromBoolean(matches));
    return matches;
}

// False when the link check is held: the run has been stopped or paused.
bool ProfileFilters::WaitForLayout(Profile& profile) {
    auto viewLinks = [this] { return InText(u"view all "_s) || InText(u"view:"_s); };
    WaitOnPage(
        [&] {
            return viewLinks() || InHTML(u"friendSpace"_s) || m_app.Get<PageClassifier>().ClassifyErrorPage();
        },
        SecondsForPage, true);
    profile.blnNewLayout = InHTML(u"userBadgeSideBar"_s);
    if (profile.blnNewLayout)
        WaitOnPage(viewLinks, SecondsForPage, true);
    else
        WaitOnPage(
            [this] { return InHTML(u"friendSpace"_s) || InText(u"last login"_s) || InText(u"view my:"_s); },
            SecondsForClassicPage, false);
    m_app.Get<PageClassifier>().ClassifyErrorPage();
    return !m_app.state.blnHoldLinkCheck;
}

bool ProfileFilters::IsMusicProfile(const Profile& profile) {
    if (profile.blnNewLayout)
        return InText(u"Featured Playlists"_s) && InText(u"Music News"_s);
    return (InHTML(u"musicJV_logo"_s) && InHTML(m_app.Expand(u"http://{SiteRootHost}/music/shows"_s))) ||
           InHTML(m_app.Expand(u"http://{SiteRootHost}/music/blog"_s));
}

bool ProfileFilters::MatchesType(const Profile& profile) {
    const RunState& state = m_app.state;
    bool matches = true;
    if (state.blnFilterBands) {
        matches = profile.blnIsMusic;
        Trace(u"ifp5 MUS - "_s + FromBoolean(matches));
    } else if (state.blnFilterComedy) {
        matches = m_app.Get<PageSigns>().ImageExists(u"comedy%2fmscomedy.gif"_s);
        Trace(u"ifp6 COM - "_s + FromBoolean(matches));
    } else if (state.blnFilterFilm) {
        matches = m_app.Get<PageSigns>().ImageExists(u"film_logo.gif"_s);
        Trace(u"ifp7 FILM - "_s + FromBoolean(matches));
    } else if (state.blnFilterPeople) {
        matches = !profile.blnIsMusic;
        Trace(u"ifp8 PERS - "_s + FromBoolean(matches));
    }
    if (!profile.blnIsMusic && InHTML(u"sitesBetaLabel"_s))
        m_app.diagnostics.Debug(u"debugBETAPEOPLE.txt"_s, m_app.Get<PageSigns>().LocationURL());
    return matches;
}

// A band has neither gender nor age.
bool ProfileFilters::MatchesGender(const Profile& profile) {
    const RunState& state = m_app.state;
    if (state.blnFilterBands)
        return true;
    Trace(u"ifp9 - "_s);
    // Waited for with any choice of gender: the age and the place arrive with it.
    if (profile.blnNewLayout && !profile.blnIsMusic)
        WaitOnPage([this] { return InHTML(u"gender&quot;:&quot;"_s) || InHTML(u"gender\":\""_s); },
                   SecondsForGender, false);
    if (!state.blnFilterMale && !state.blnFilterFemale)
        return true;
    const Document document = m_app.WebBrowser1().Document();
    const bool matches = state.blnFilterMale ? SaysMale(document.BodyText(), document.BodyHTML())
                                             : SaysFemale(document.BodyText(), document.BodyHTML());
    Trace((state.blnFilterMale ? u"ifp10 M - "_s : u"ifp11 F - "_s) + FromBoolean(matches));
    return matches;
}

bool ProfileFilters::MatchesAge(const Profile& profile) {
    const RunState& state = m_app.state;
    if (state.blnFilterBands || state.blnFilterAgeOff)
        return true;
    Trace(u"ifp13"_s);
    Trace(u"ifp14"_s);
    if (profile.blnIsMusic) {
        Trace(u"ifp19"_s);
        return false;
    }
    Trace(u"ifp15"_s);
    WaitOnPage(
        [this] {
            return InText(u" years old"_s) || InHTML(u"span class=\"age\""_s) ||
                   InHTML(u"span class=age"_s) || InHTML(u"age&quot;:&quot;Age:"_s);
        },
        SecondsForAge, false);
    const Document document = m_app.WebBrowser1().Document();
    const QString age = GetProfileAge(document.BodyText(), document.BodyHTML());
    Trace(u"ifp16 - "_s + age + u", "_s + state.strFilterAge1 + u", "_s + state.strFilterAge2);
    const std::optional<qint32> years = ToLong(age);
    const std::optional<qint32> from = ToLong(state.strFilterAge1.trimmed());
    const std::optional<qint32> to = ToLong(state.strFilterAge2.trimmed());
    const bool matches = years && from && to && *years >= *from && *years <= *to;
    Trace(matches ? u"ifp17"_s : u"ifp18"_s);
    return matches;
}

bool ProfileFilters::MatchesLocation(const Profile& profile) {
    const RunState& state = m_app.state;
    if (!state.blnFilterLocation || state.strFilterLocation.trimmed().isEmpty())
        return true;
    Trace(u"ifp21"_s);
    m_app.Get<PageSigns>().WaitForDocument();
    const QString block = GetBasicInfoBlock(m_app.WebBrowser1().Document().BodyHTML(), profile.blnIsMusic);
    Trace(u"ifp22 - "_s + block);
    const bool matches = HoldsOnePlace(block, state.strFilterLocation);
    Trace(u"ifp23 - "_s + FromBoolean(matches));
    return matches;
}

bool ProfileFilters::IsUserOnline() {
    bool online = false;
    m_app.diagnostics.Trap("IsUserOnline",
                           [&] { online = SaysOnline(m_app.WebBrowser1().Document().BodyHTML()); });
    return online;
}

bool ProfileFilters::IsUserOnline(JudgedLink& link) {
    return link.TextHas(2, u"online now!");
}

bool ProfileFilters::MatchesLastLogin() {
    const RunState& state = m_app.state;
    if (!state.blnFilterLastLoginOn || state.intFilterLastLoginDays < 1)
        return true;
    const QString text = LastLoginText(m_app.WebBrowser1().Document().BodyHTML());
    return LastLoginWithin(text, m_app.Pump().Now().date(), state.intFilterLastLoginDays);
}

} // namespace qlm
