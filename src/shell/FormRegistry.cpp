// SPDX-License-Identifier: MIT
#include "shell/FormRegistry.h"

#include "shell/NoticeForm.h"
#include "shell/frmAccountDetails.h"
#include "shell/frmBlacklist.h"
#include "shell/frmError.h"
#include "shell/frmFilters.h"
#include "shell/frmGlobalSettings.h"
#include "shell/frmGoogleSearch.h"
#include "shell/frmInteken.h"
#include "shell/frmLog.h"
#include "shell/frmLoginProblem.h"
#include "shell/frmProifleIDHelp.h"
#include "shell/frmRunReport.h"
#include "shell/frmSwitchAccount.h"
#include "shell/frmTerms.h"
#include "shell/frmTimeDelay.h"

#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Registered {
    QLatin1StringView name;
    Form* (*make)(const FormContext&);
};

template <typename FormType> Form* Make(const FormContext& context) {
    return new FormType(context);
}

constexpr Registered Forms[] = {
    {"frmInteken"_L1, Make<frmInteken>},
    {"frmSwitchAccount"_L1, Make<frmSwitchAccount>},
    {"frmAccountDetails"_L1, Make<frmAccountDetails>},
    {"frmLoginProblem"_L1, Make<frmLoginProblem>},
    {"frmError"_L1, Make<frmError>},
    {"frmTerms"_L1, Make<frmTerms>},
    {"frmTimeDelay"_L1, Make<frmTimeDelay>},
    {"frmFilters"_L1, Make<frmFilters>},
    {"frmGlobalSettings"_L1, Make<frmGlobalSettings>},
    {"frmLog"_L1, Make<frmLog>},
    {"frmBlacklist"_L1, Make<frmBlacklist>},
    {"frmGoogleSearch"_L1, Make<frmGoogleSearch>},
    {"frmProifleIDHelp"_L1, Make<frmProifleIDHelp>},
    {"frmRunReport"_L1, Make<frmRunReport>},
};

Form* MakeForm(const QString& name, const FormContext& context) {
    for (const Registered& form : Forms)
        if (name == form.name)
            return form.make(context);
    if (const Notice* notice = FindNotice(name))
        return new NoticeForm(context, *notice);
    throw std::logic_error("No form is named " + name.toStdString());
}

} // namespace

Form* CreateForm(const QString& name, const FormContext& context) {
    Form* form = MakeForm(name, context);
    form->Bind();
    return form;
}

QStringList FormNames() {
    QStringList names;
    for (const Registered& form : Forms)
        names.append(form.name);
    for (const Notice& notice : Notices())
        names.append(QString::fromLatin1(notice.name));
    return names;
}

} // namespace qlm
