// SPDX-License-Identifier: MIT
#include "invites/InviteBlocks.h"

#include "core/App.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int BlockSize = 40;
const QString Form = u"frmInvites"_s;
const QString NoticeForm = u"frmPleaseEnterCaptcha"_s;
const QString Section = u"invites"_s;
constexpr auto Start = "frmInvites.cboStart"_L1;
constexpr auto End = "frmInvites.cboEnd"_L1;
constexpr auto DontShow = "frmPleaseEnterCaptcha.chkDontShowAgain"_L1;

} // namespace

InviteBlocks::InviteBlocks(App& app) : m_app(app) {
    app.commands.Add(Form + u".cmdOK_Click"_s, "cmdOK_Click - frmInvites", [this] { cmdOK_Click(); });
    app.commands.Add(Form + u".cmdCancel_Click"_s, [this] { m_app.platform.Dialogs().CloseForm(Form); });
    app.commands.Add(NoticeForm + u".cmdOK_Click"_s, [this] { CloseCaptchaNotice(); });
}

QString InviteBlocks::Kept(const QString& key) const {
    return m_app.platform.Settings().GetSetting(Section, strType + u" - "_s + key, {});
}

void InviteBlocks::Keep(const QString& key, const QString& value) {
    m_app.platform.Settings().SaveSetting(Section, strType + u" - "_s + key, value);
    m_app.platform.Settings().Sync();
}

// Where the last run was stopped, or behind its end; at the first block when there is no such one.
int InviteBlocks::FirstChoice() const {
    const QString next = Kept(u"next listing"_s);
    const QString end = Kept(u"end listing"_s);
    const int block = IsNumeric(next)  ? ToLong(next).value_or(0)
                      : IsNumeric(end) ? ToLong(end).value_or(-1) + 1
                                       : 0;
    return block >= 0 && block < m_count ? block : 0;
}

bool InviteBlocks::Ask(const QString& type, const QString& sendTo, const QStringList& starts) {
    strType = type;
    m_count = static_cast<int>(starts.size());
    if (sendTo == u"IDs") {
        intStartLine = 0;
        intEndLine = m_count - 1;
        Keep(u"end listing"_s, QString::number(intEndLine));
        return m_count > 0;
    }
    QStringList lines;
    for (const QString& start : starts)
        lines.append(start + u" - "_s + QString::number(ToLong(start).value_or(0) + BlockSize));
    for (const QLatin1StringView box : {Start, End}) {
        m_app.controls.SetItems(box, lines);
        m_app.controls.SetSelected(box, lines.isEmpty() ? -1 : FirstChoice());
    }
    m_isChosen = false;
    m_app.platform.Dialogs().ShowModal(Form);
    return m_isChosen;
}

void InviteBlocks::cmdOK_Click() {
    const int start = m_app.controls.Selected(Start);
    const int end = m_app.controls.Selected(End);
    if (start < 0 || end < 0) {
        m_app.ShowMessage(u"Please provide the start and end positions."_s);
        return;
    }
    if (start > end) {
        m_app.ShowMessage(u"The start position must be before the end position."_s);
        return;
    }
    intStartLine = start;
    intEndLine = end;
    Keep(u"end listing"_s, QString::number(end));
    Keep(u"next listing"_s, {});
    m_isChosen = true;
    m_app.platform.Dialogs().CloseForm(Form);
}

void InviteBlocks::SaveNext(int block) {
    Keep(u"next listing"_s, QString::number(block));
}

void InviteBlocks::ShowCaptchaNotice(const QString& type) {
    strType = type;
    if (Kept(u"chkDontShowAgain"_s) == u"1"_s)
        return;
    m_app.controls.SetTicked(DontShow, false);
    m_app.platform.Dialogs().ShowForm(NoticeForm);
}

void InviteBlocks::CloseCaptchaNotice() {
    Keep(u"chkDontShowAgain"_s, m_app.controls.Ticked(DontShow) ? u"1"_s : u"0"_s);
    m_app.platform.Dialogs().CloseForm(NoticeForm);
}

} // namespace qlm
