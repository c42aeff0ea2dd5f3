// SPDX-License-Identifier: MIT
#include "campaigns/FriendCategories.h"

#include "browser/Cover.h"
#include "browser/PageSigns.h"
#include "campaigns/Pacing.h"
#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto Box = "cboFRCategories"_L1;
constexpr int MostPages = 100;
const QString HiddenBrowser = u"webHide"_s;
const QString TraceFile = u"debugcategories.txt"_s;
const QString NameMark = u"categorynamelabel"_s;

void LoadComboboxFromFile(App& app, QLatin1StringView box, const QString& path) {
    const QString shown = app.controls.Text(box);
    app.controls.SetItems(box, app.files.FileExists(path) ? app.files.ReadLines(path) : QStringList());
    app.controls.SetSelected(box, static_cast<int>(app.controls.Items(box).indexOf(shown)));
}

void SaveComboboxToFile(App& app, QLatin1StringView box, const QString& path) {
    app.files.WriteLines(path, app.controls.Items(box));
}

} // namespace

FriendCategories::FriendCategories(App& app) : m_app(app) {
    app.commands.Add(u"piccmdFRRefreshCategories_Click"_s, [this] { piccmdFRRefreshCategories_Click(); });
}

QString FriendCategories::Path() {
    const QString folder = FileSystem::Join(m_app.state.ProgramFolder,
                                            m_app.Get<SettingsFields>().AccountDataPath(u"FriendRequest"_s));
    return FileSystem::Join(folder, u"CategoriesList.txt"_s);
}

void FriendCategories::Load() {
    m_app.diagnostics.Trap("LoadComboboxFromFile", [this] { LoadComboboxFromFile(m_app, Box, Path()); });
}

bool FriendCategories::IsCurrent(int entry) const {
    return m_entry == entry && m_app.state.AccountEmail == m_email;
}

// Another fetch has begun, which is what the user can do about a page that doesn't come.
void FriendCategories::LeaveUnlessCurrent(int entry) const {
    if (!IsCurrent(entry))
        throw RunEnded();
}

void FriendCategories::piccmdFRRefreshCategories_Click() {
    if (m_app.state.CurrentAction == ActivityWord::Login) {
        m_app.ShowMessage(u"Please wait for the login process to finish"_s);
        return;
    }
    const int entry = ++m_entry;
    m_email = m_app.state.AccountEmail;
    m_app.controls.SetItems(Box, {});
    m_app.controls.SetText(Box, u"Retrieving, please wait..."_s);
    QStringList names;
    m_app.Get<Cover>().Lend();
    const QString error = m_app.diagnostics.Trap("RetrieveCategories", [&] { names = Fetch(entry); });
    m_app.Get<Cover>().TakeBack();
    LeaveUnlessCurrent(entry);
    if (names.isEmpty() || !error.isEmpty()) {
        m_app.controls.SetText(Box, u"Press button to fill list -> -> ->"_s);
        m_app.ShowMessage(
            u"This account has no friend categories.\n\nIf this is not correct, then please try "
            "again."_s);
        return;
    }
    m_app.controls.SetItems(Box, names);
    m_app.controls.SetText(Box, u"Select a category from the list"_s);
    SaveComboboxToFile(m_app, Box, Path());
}

QStringList FriendCategories::Fetch(int entry) {
    QStringList names;
    for (int page = 1; page <= MostPages; ++page) {
        OpenPage(page, entry);
        const QStringList found = NamesOnPage();
        for (const QString& name : found) {
            m_app.diagnostics.Debug(TraceFile, u"FOUND - "_s + name);
            names.append(name);
        }
        if (found.isEmpty() || !HasNextPage())
            break;
        m_app.diagnostics.Debug(TraceFile, u"NEXTPAGE - "_s + QString::number(page + 1));
    }
    m_app.webHide().Navigate(u"about:blank"_s);
    return names;
}

void FriendCategories::OpenPage(int page, int entry) {
    BrowserControl& browser = m_app.webHide();
    browser.SetSilent(true);
    browser.Navigate(u"about:blank"_s);
    m_app.waiting.Pump();
    LeaveUnlessCurrent(entry);
    const QString address =
        m_app.Expand(u"{FriendsHost}/index.cfm?fuseaction=user.viewcategories&friendId="_s) +
        m_app.state.MyProfileID;
    browser.Navigate(page == 1 ? address : address + u"&p="_s + QString::number(page));
    auto isMissing = [this] {
        return !m_app.Get<PageSigns>().IsTextInPage(u"Viewable by:"_s, false, HiddenBrowser);
    };
    m_app.waiting.WaitFor(
        u"the list of categories"_s, [&] { return IsCurrent(entry) && isMissing(); },
        u"Press the button beside the box to ask for it again."_s);
    LeaveUnlessCurrent(entry);
}

// The mark stands in the element's own tag and not in one inside it.
QStringList FriendCategories::NamesOnPage() {
    QStringList names;
    for (const Element& element : m_app.webHide().Document().Body().Tags(u"*"_s))
        if (Has(element.OuterHTML(), NameMark) && !Has(element.InnerHTML(), NameMark))
            if (const QString name = element.InnerText().trimmed(); !name.isEmpty())
                names.append(name);
    return names;
}

bool FriendCategories::HasNextPage() {
    for (const Element& link : m_app.webHide().Document().Links())
        if (Has(link.InnerText(), u"next"_s))
            return true;
    return false;
}

} // namespace qlm
