// SPDX-License-Identifier: MIT
#include "core/SettingsFields.h"

#include "core/AccountName.h"
#include "core/App.h"
#include "core/BrowserSounds.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

const QString General = u"General"_s;
const QString FieldEntries = u"Field Entries"_s;

QString KeyOf(const ControlRow& row) {
    return QString::fromLatin1(row.key[0] ? row.key : row.name);
}

bool IsListKind(const QString& kind) {
    static const QSet<QString> lists{u"BookmarksList"_s, u"Log"_s,          u"GatheredList"_s,
                                     u"BulletinsList"_s, u"StatusesList"_s, u"CommentsList"_s,
                                     u"MessagesList"_s};
    return lists.contains(kind);
}

// The kinds of inputs in the order in which they are restored and saved.
const std::vector<const char*>& InputKinds() {
    static const std::vector<const char*> kinds{"Bulletin",      "Status", "Comment",        "Message",
                                                "FriendRequest", "Accept", "GatherSettings", "Filter"};
    return kinds;
}

} // namespace

const std::vector<GlobalFlag>& SettingsFields::GlobalFlags() {
    static const std::vector<GlobalFlag> flags{
        {"blnUseGlobalSettings", "chkUseGlobalSettings", {}},
        {"blnUseGlobalFilterSettings", "chkUseGlobalFilterSettings", {"Filter"}},
        {"blnUseGlobalBookmarks", "chkUseGlobalBookmarks", {"BookmarksList"}},
        {"blnUseGlobalLogs", "chkUseGlobalLogs", {"Log"}},
        {"blnUseGlobalGatheredIDsList", "chkUseGlobalGatheredIDsList", {"GatheredList"}},
        {"blnUseGlobalGatherIDsSettings", "chkUseGlobalGatherIDsSettings", {"GatherSettings"}},
        {"blnUseGlobalFriendRequesterSettings", "chkUseGlobalFriendRequesterSettings", {"FriendRequest"}},
        {"blnUseGlobalAutoMessengerSettings",
         "chkUseGlobalAutoMessengerSettings",
         {"Message", "MessagesList"}},
        {"blnUseGlobalAutoCommenterSettings",
         "chkUseGlobalAutoCommenterSettings",
         {"Comment", "CommentsList"}},
        {"blnUseGlobalBulletinSettings", "chkUseGlobalBulletinSettings", {"Bulletin", "BulletinsList"}},
        {"blnUseGlobalAutoAccepterSettings", "chkUseGlobalAutoAccepterSettings", {"Accept"}},
        {"blnUseGlobalInviteSettings", "chkUseGlobalInviteSettings", {"Invite"}},
        {"blnUseGlobalStatusSettings", "chkUseGlobalStatusSettings", {"Status", "StatusesList"}},
    };
    return flags;
}

bool SettingsFields::UsesGlobal(const QString& kind) const {
    const GlobalFlag* governing = &GlobalFlags().front();
    for (const GlobalFlag& flag : GlobalFlags())
        for (const char* governed : flag.kinds)
            if (kind == QLatin1StringView(governed))
                governing = &flag;
    return GlobalFlagSet(*governing);
}

bool SettingsFields::GlobalFlagSet(const GlobalFlag& flag) const {
    return m_flags.value(QString::fromLatin1(flag.key), true);
}

void SettingsFields::ChangeGlobalFlags(const QSet<QString>& keys) {
    SaveListsAndSettings();
    const bool listWasGlobal = UsesGlobal(u"GatheredList"_s);
    QHash<QString, bool> before;
    for (const char* kind : InputKinds())
        before.insert(QString::fromLatin1(kind), UsesGlobal(QString::fromLatin1(kind)));
    for (const GlobalFlag& flag : GlobalFlags()) {
        const QString key = QString::fromLatin1(flag.key);
        m_flags.insert(key, keys.contains(key));
        m_app.platform.Settings().SaveSetting(General, key, FromBoolean(keys.contains(key)));
    }
    Sync();
    for (const char* kind : InputKinds())
        if (before.value(QString::fromLatin1(kind)) != UsesGlobal(QString::fromLatin1(kind)))
            RestoreKind(QLatin1StringView(kind));
    SettleFields();
    stores.restoreLists();
    // A run keeps the list that it walks.
    if (listWasGlobal != UsesGlobal(u"GatheredList"_s) && m_app.state.CurrentAction.isEmpty() &&
        m_app.controls.Ticked("chkSaveScanned"_L1))
        stores.restoreGathered();
}

QString SettingsFields::AccountDataPath(const QString& kind) {
    if (m_app.state.AccountEmail.isEmpty() || UsesGlobal(kind))
        return {};
    const QString account = AccountFolderName(m_app.state.AccountEmail);
    if (!IsListKind(kind))
        return u"\\"_s + account;
    const QString folder = u"\\ACCOUNTS\\"_s + account;
    m_app.files.CreateFolder(FileSystem::Join(m_app.state.ProgramFolder, folder));
    return folder;
}

QString SettingsFields::SectionOf(const QString& kind) {
    return FieldEntries + AccountDataPath(kind);
}

void SettingsFields::RestoreControl(const QString& section, const ControlRow& row) {
    const QLatin1StringView name(row.name);
    const QString missing = u"\u0001"_s;
    const QString value = m_app.platform.Settings().GetSetting(section, KeyOf(row), missing);
    if (value == missing)
        return;
    switch (row.type) {
    case ControlType::CheckBox:
        if (const std::optional<qint32> number = ToLong(value))
            m_app.controls.SetTicked(name, *number != 0);
        return;
    case ControlType::OptionButton:
    case ControlType::MenuItem:
        if (const bool isWord = value.compare(u"True"_s, Qt::CaseInsensitive) == 0 ||
                                value.compare(u"False"_s, Qt::CaseInsensitive) == 0;
            isWord || IsNumeric(value))
            m_app.controls.SetTicked(name, ToBoolean(value));
        return;
    case ControlType::ComboBox:
        if (!row.choices || row.choices().contains(value))
            m_app.controls.SetText(name, value);
        return;
    default:
        m_app.controls.SetText(name, value);
    }
}

void SettingsFields::SaveControl(const QString& section, const ControlRow& row) {
    const Control& control = m_app.controls[QLatin1StringView(row.name)];
    QString value = control.text;
    if (row.type == ControlType::CheckBox)
        value = control.ticked ? u"1"_s : u"0"_s;
    else if (row.type == ControlType::OptionButton || row.type == ControlType::MenuItem)
        value = FromBoolean(control.ticked);
    m_app.platform.Settings().SaveSetting(section, KeyOf(row), value);
}

void SettingsFields::RestoreGeneralPrevious() {
    m_app.diagnostics.Trap("RestoreGeneralPrevious", [this] {
        RestoreWindowPlace();
        for (const char* kind : {"General", "Field Entries"})
            for (const ControlRow& row : Controls::Table())
                if (QLatin1StringView(row.kind) == QLatin1StringView(kind))
                    RestoreControl(QString::fromLatin1(kind), row);
        EndSessionChains();
        m_app.state.blnLoggingEnabled = m_app.controls.Ticked("mnuEnableLogging"_L1);
        m_app.Get<BrowserSounds>().Silence();
    });
}

void SettingsFields::RestoreWindowPlace() {
    if (!setPlace || !getPlace)
        return;
    const SettingsStore& settings = m_app.platform.Settings();
    // A value that is missing or bad leaves the others their say.
    WindowPlace place = getPlace();
    bool isStored = false;
    for (const auto& [key, field] :
         {std::pair{u"Left"_s, &WindowPlace::left}, std::pair{u"Top"_s, &WindowPlace::top},
          std::pair{u"Width"_s, &WindowPlace::width}, std::pair{u"Height"_s, &WindowPlace::height}})
        if (const std::optional<qint32> number = ToLong(settings.GetSetting(General, key, QString()))) {
            place.*field = *number;
            isStored = true;
        }
    place.maximized = ToBoolean(settings.GetSetting(General, u"Maximized"_s, u"False"_s));
    if (place.maximized || isStored)
        setPlace(place);
}

// "Until I close QLM" has come to its end: its item is stored, and read back it means off.
void SettingsFields::EndSessionChains() {
    struct Chain {
        QLatin1StringView on;
        QLatin1StringView off;
    };
    for (const Chain& chain : {Chain{"mnuMultipleAccountsFROn"_L1, "mnuMultipleAccountsFROff"_L1},
                               Chain{"mnuMultipleAccountsMSGOn"_L1, "mnuMultipleAccountsMSGOff"_L1},
                               Chain{"mnuMultipleAccountsBULOn"_L1, "mnuMultipleAccountsBULOff"_L1}})
        if (!m_app.controls.Ticked(chain.on))
            m_app.controls.SetTicked(chain.off, true);
}

void SettingsFields::RestoreAccountSettings() {
    m_restored = false;
    m_app.diagnostics.Trap("RestoreAccountSettings", [this] { stores.restoreCounters(); });
}

void SettingsFields::RestoreAccountSpecificFields() {
    m_app.diagnostics.Trap("RestoreAccountSpecificFields", [this] {
        for (const GlobalFlag& flag : GlobalFlags()) {
            const QString key = QString::fromLatin1(flag.key);
            m_flags.insert(key, ToBoolean(m_app.platform.Settings().GetSetting(General, key, u"True"_s)));
        }
        for (const char* kind : InputKinds())
            RestoreKind(QLatin1StringView(kind));
        SettleFields();
        m_restored = true;
        stores.restoreLists();
        if (m_app.controls.Ticked("chkSaveScanned"_L1))
            stores.restoreGathered();
    });
}

// No choice may be without a choice.
void SettingsFields::SettleFields() {
    const auto& scanOptions = {"optScanCurrentPage"_L1, "optScanFollowing"_L1, "optScanGoogle"_L1,
                               "optImportClickedProfiles"_L1};
    if (std::none_of(scanOptions.begin(), scanOptions.end(),
                     [this](QLatin1StringView name) { return m_app.controls.Ticked(name); }))
        m_app.controls.SetTicked("optScanFollowing"_L1, true);
    // What another account calls its friends means nothing here.
    const ControlRow& categories = Controls::RowNamed("cboFRCategories"_L1);
    if (!IsStored(SectionOf(u"FriendRequest"_s), categories) ||
        m_app.controls.Text("cboFRCategories"_L1).isEmpty())
        SetStartingValue(categories);
}

void SettingsFields::RestoreKind(QLatin1StringView kind) {
    const QString section = SectionOf(kind);
    std::vector<const ControlRow*> rows;
    for (const ControlRow& row : Controls::Table())
        if (QLatin1StringView(row.kind) == kind)
            rows.push_back(&row);
    // An account that has left the shared settings begins with the starting values until it saves its own.
    const bool own = section != FieldEntries;
    const bool nothingStored = std::none_of(rows.begin(), rows.end(),
                                            [&](const ControlRow* row) { return IsStored(section, *row); });
    for (const ControlRow* row : rows) {
        if (own && nothingStored)
            SetStartingValue(*row);
        else
            RestoreControl(section, *row);
    }
}

bool SettingsFields::IsStored(const QString& section, const ControlRow& row) const {
    const SettingsStore& settings = m_app.platform.Settings();
    return settings.GetSetting(section, KeyOf(row), u"a"_s) ==
           settings.GetSetting(section, KeyOf(row), u"b"_s);
}

void SettingsFields::SetStartingValue(const ControlRow& row) {
    const QLatin1StringView name(row.name);
    if (row.type == ControlType::CheckBox || row.type == ControlType::OptionButton)
        m_app.controls.SetTicked(name, row.ticked);
    else
        m_app.controls.SetText(name, QString::fromUtf16(row.text));
}

bool SettingsFields::SaveListsAndSettings() {
    if (!m_restored)
        return true;
    bool isListSaved = true;
    m_app.diagnostics.Trap("SaveListsAndSettings", [&] {
        for (const char* kind : InputKinds()) {
            const QString section = SectionOf(QLatin1StringView(kind));
            for (const ControlRow& row : Controls::Table())
                if (QLatin1StringView(row.kind) == QLatin1StringView(kind))
                    SaveControl(section, row);
        }
        for (const ControlRow& row : Controls::Table())
            if (QLatin1StringView(row.kind) == "Field Entries"_L1)
                SaveControl(FieldEntries, row);
        Sync();
        if (m_app.controls.Ticked("chkSaveScanned"_L1))
            isListSaved = stores.saveGathered();
    });
    return isListSaved;
}

// The store tells of its first failure alone.
bool SettingsFields::Sync() {
    m_app.platform.Settings().Sync();
    const QString problem = m_app.platform.Settings().TakeProblem();
    if (!problem.isEmpty()) {
        m_cannotSave = true;
        m_app.diagnostics.ReportError(u"SaveSetting"_s, std::runtime_error(problem.toStdString()));
    }
    return !m_cannotSave;
}

void SettingsFields::SaveGeneral() {
    m_app.diagnostics.Trap("SaveGeneral", [this] {
        SettingsStore& settings = m_app.platform.Settings();
        if (getPlace) {
            const WindowPlace place = getPlace();
            if (!place.minimized && !place.maximized) {
                settings.SaveSetting(General, u"Left"_s, QString::number(place.left));
                settings.SaveSetting(General, u"Top"_s, QString::number(place.top));
                settings.SaveSetting(General, u"Width"_s, QString::number(place.width));
                settings.SaveSetting(General, u"Height"_s, QString::number(place.height));
            }
            settings.SaveSetting(General, u"Maximized"_s, FromBoolean(place.maximized));
        }
        for (const ControlRow& row : Controls::Table())
            if (QLatin1StringView(row.kind) == "General"_L1)
                SaveControl(General, row);
        Sync();
    });
}

} // namespace qlm
