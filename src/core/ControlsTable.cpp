// SPDX-License-Identifier: MIT
#include "core/Tabs.h"
#include "core/controls/ControlRows.h"

#include <stdexcept>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct ControlForm {
    std::vector<ControlRow> (*rows)();
    Tab tab = {}; // of a panel that the window has a tab for
};

// The tabs stand in this order.
constexpr ControlForm Forms[] = {
    {rows::MainWindow},
    {rows::Menus},
    {rows::AutoStart},
    {rows::GatherTab, {u"Gather ID's", "TABGATHER", "picScanIDs"}},
    {rows::FriendRequesterTab, {u"Friend Requester", "TABFRIENDS", "picFriendRequester"}},
    {rows::MessengerTab, {u"Auto Messenger", "TABMESSAGES", "picMessanger"}},
    {rows::CommenterTab, {u"Auto Commenter", "TABCOMMENTS", "picCommentor"}},
    {rows::BulletinTab, {u"Timed Bulletins", "TABBULLETINS", "picBulletin"}},
    {rows::StatusTab, {u"Status Updater", "TABSTATUS", "picStatusUpdater"}},
    {rows::AcceptTab, {u"Accept Friends", "TABACCEPT", "picAcceptFriends"}},
    {rows::InviteTab, {u"    Inviter", "TABINVITE", "picInvite"}},
    {rows::Filters},
    {rows::AccountForms},
    {rows::GatherForms},
    {rows::SettingsForms},
    {rows::SmallForms},
    {rows::ContentForms},
    {rows::InviteForms},
};

} // namespace

QStringList rows::Periods() {
    return {u"this session"_s, u"per day"_s};
}

const std::vector<ControlRow>& Controls::Table() {
    static const std::vector<ControlRow> table = [] {
        std::vector<ControlRow> all;
        for (const ControlForm& form : Forms)
            for (const ControlRow& row : form.rows())
                all.push_back(row);
        return all;
    }();
    return table;
}

const ControlRow& Controls::RowNamed(QLatin1StringView name) {
    for (const ControlRow& row : Table())
        if (name == QLatin1StringView(row.name))
            return row;
    throw std::logic_error("No control is named " + QString(name).toStdString());
}

const std::vector<Tab>& Tabs() {
    static const std::vector<Tab> tabs = [] {
        std::vector<Tab> all;
        for (const ControlForm& form : Forms)
            if (form.tab.panel)
                all.push_back(form.tab);
        return all;
    }();
    return tabs;
}

QStringList TabCaptions() {
    QStringList captions;
    for (const Tab& tab : Tabs())
        captions.append(QString::fromUtf16(tab.caption));
    return captions;
}

} // namespace qlm
