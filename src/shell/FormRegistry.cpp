// SPDX-License-Identifier: MIT
#include "shell/FormRegistry.h"

#include "shell/Forms.h"
#include "shell/NoticeForm.h"
#include "shell/frmBookmark.h"
#include "shell/frmGlobalSettings.h"
#include "shell/frmGoogleSearch.h"
#include "shell/frmInteken.h"
#include "shell/frmPreview.h"
#include "shell/frmRunReport.h"
#include "shell/frmTimeDelay.h"

#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename FormType>
Form* Make(const FormContext& context, const QString& name, const QString& title) {
    return new FormType(context, name, title);
}

struct FormRow {
    QLatin1StringView name;
    const char16_t* title;
    void (*build)(Form&);
    Form* (*make)(const FormContext&, const QString& name, const QString& title) = Make<Form>;
};

constexpr FormRow Forms[] = {
    {"frmInteken"_L1, u"Quillmere", BuildLogin, Make<frmInteken>},
    {"frmSwitchAccount"_L1, u"Switch Account", BuildSwitchAccount},
    {"frmAccountDetails"_L1, u"Account Details", BuildAccountDetails},
    {"frmLoginProblem"_L1, u"Login problem", BuildLoginProblem},
    {"frmMultipleAccounts"_L1, u"Multiple Chaining", BuildMultipleAccounts},
    {"frmAutoStart"_L1, u"Auto Start", BuildAutoStart},
    {"frmChainingOn"_L1, u"Account Chaining", BuildChainingOn},
    {"frmError"_L1, u"Error", BuildError},
    {"frmTerms"_L1, u"Terms of Service", BuildTerms},
    {"frmTimeDelay"_L1, u"Time Delay", BuildTimeDelay, Make<frmTimeDelay>},
    {"frmFilters"_L1, u"Filter Options", BuildFilters},
    {"frmGlobalSettings"_L1, u"Global Settings", BuildGlobalSettings, Make<frmGlobalSettings>},
    {"frmLog"_L1, u"Log", BuildLog},
    {"frmBlacklist"_L1, u"Black List", BuildBlacklist},
    {"frmGoogleSearch"_L1, u"Google Search", BuildGoogleSearch, Make<frmGoogleSearch>},
    {"frmProifleIDHelp"_L1, u"Profile ID Help", BuildProfileIDHelp},
    {"frmMessagesList"_L1, u"Messages List", BuildContentList},
    {"frmCommentsList"_L1, u"Comments List", BuildContentList},
    {"frmBulletinsList"_L1, u"Bulletins List", BuildContentList},
    {"frmStatusesList"_L1, u"Statuses List", BuildContentList},
    {"frmMessage"_L1, u"Message", BuildContentEntry},
    {"frmComment"_L1, u"Comment", BuildContentEntry},
    {"frmBulletin"_L1, u"Bulletin", BuildContentEntry},
    {"frmStatus"_L1, u"Status", BuildContentEntry},
    {"frmPreview"_L1, u"Preview", frmPreview::Build, Make<frmPreview>},
    {"frmManageBookmarks"_L1, u"Manage Bookmarks", BuildManageBookmarks},
    {"frmBookmark"_L1, u"Bookmark", BuildBookmark, Make<frmBookmark>},
    {"frmGroupInviteOptions"_L1, u"Invite Options", BuildGroupInviteOptions},
    {"frmInvites"_L1, u"Invites", BuildInvites},
    {"frmRunReport"_L1, u"Run Report", frmRunReport::Build, Make<frmRunReport>},
};

} // namespace

Form* BuildForm(const QString& name, const FormContext& context) {
    for (const FormRow& row : Forms)
        if (name == row.name) {
            Form* form = row.make(context, name, QString::fromUtf16(row.title));
            row.build(*form);
            return form;
        }
    if (const Notice* notice = FindNotice(name)) {
        Form* form = Make<Form>(context, name, QString::fromUtf16(notice->title));
        BuildNotice(*form, *notice);
        return form;
    }
    throw std::logic_error("No form is named " + name.toStdString());
}

Form* CreateForm(const QString& name, const FormContext& context) {
    Form* form = BuildForm(name, context);
    form->Bind();
    return form;
}

QStringList FormNames() {
    QStringList names;
    for (const FormRow& row : Forms)
        names.append(row.name);
    for (const Notice& notice : Notices())
        names.append(QString::fromLatin1(notice.name));
    return names;
}

} // namespace qlm
