// SPDX-License-Identifier: MIT
#include "shell/NoticeForm.h"

#include "shell/FormParts.h"
#include "shell/TickBox.h"

#include <QBoxLayout>
#include <QDialogButtonBox>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

const std::vector<Notice>& Notices() {
    static const std::vector<Notice> notices{
        {"frmGroupGatherPrompt", u"Group Gather", u"",
         u"Quillmere detected that you are trying to gather from a group. Bear in mind that QLM gathers all "
         u"the ID's "
         u"on the *current page*, and all following pages if there are any. Therefore if you want to gather "
         u"group "
         u"members then you need to be on the \"View All Members\" page before you start gathering.",
         true},
        {"frmMusicSearchGatherPrompt", u"Gather ID's", u"",
         u"Quillmere detected that you are trying to gather from music search results. Bear in mind that QLM "
         u"gathers "
         u"all the ID's on the *current page*, and all following pages if there are any. Therefore if you "
         u"want to "
         u"gather artists then you need to click the \"see all artists\" link before you start gathering.",
         true},
        {"frmFullGatherReminder", u"Gather ID's", u"",
         u"No ID's have been found on the page.\n"
         u"Many ID's can't be gathered with the 'quick-gather' setting. Try changing to 'full-gather' for "
         u"better "
         u"results",
         true},
        {"frmFullGatherHelp", u"Gather Help",
         u"What is the difference between \"Full Gather\" and \"Quick Gather\"?",
         u"Some ID's in MySpace can't be gathered via conventional means. When the 'Full Gather' option is "
         u"selected, "
         u"those ID's will be gathered using a different method which could take up to a few seconds per ID "
         u"- "
         u"depending on the speed of your internet connection.\n"
         u"If 'Quick Gather' is selected, those ID's will be skipped during the gathering process.",
         false},
        {"frmStarting", u"Quillmere", u"Quillmere is starting",
         u"The product server is being asked for news and has not answered yet. After a minute at most the "
         u"login screen comes up, or a message says what is wrong.\nClose ends Quillmere.",
         false},
        {"frmPleaseEnterCaptcha", u"CAPTCHA", u"", u"Please enter the CAPTCHA, then press the Invite button",
         true},
        {"frmTempMySpaceErrorFR", u"Friend Requests", u"",
         u"A current issue on MySpace's end is causing friend requests for some accounts to redirect to an "
         u"error page "
         u"and then to the MySpace home page.\n"
         u"Despite the error the friend requests still appear in your 'sent requests' folder, so you can "
         u"continue "
         u"sending as usual until MySpace fix this problem",
         true},
    };
    return notices;
}

const Notice* FindNotice(const QString& name) {
    for (const Notice& notice : Notices())
        if (name == QLatin1StringView(notice.name))
            return &notice;
    return nullptr;
}

void BuildNotice(Form& form, const Notice& notice) {
    auto* column = new QVBoxLayout(&form);
    column->setSpacing(12);
    if (const QString heading = QString::fromUtf16(notice.heading); !heading.isEmpty())
        column->addWidget(NewText(heading, u"subheading"_s));
    for (const QString& paragraph : QString::fromUtf16(notice.text).split(u'\n'))
        column->addWidget(NewText(paragraph));
    column->addStretch();
    if (notice.dontShowAgain)
        column->addWidget(Named(new TickBox, "chkDontShowAgain"_L1));
    column->addWidget(NewButtonRow({notice.dontShowAgain ? "cmdOK"_L1 : "cmdClose"_L1}));
    form.resize(440, 190);
}

} // namespace qlm
