// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::vector<ControlRow> (*Forms[])() = {
    rows::MainWindow,   rows::Menus,        rows::AutoStart,   rows::GatherTab,     rows::FriendRequesterTab,
    rows::MessengerTab, rows::CommenterTab, rows::BulletinTab, rows::StatusTab,     rows::AcceptTab,
    rows::Filters,      rows::AccountForms, rows::GatherForms, rows::SettingsForms, rows::SmallForms,
};

} // namespace

QStringList rows::Periods() {
    return {u"this session"_s, u"per day"_s};
}

const std::vector<ControlRow>& Controls::Table() {
    static const std::vector<ControlRow> table = [] {
        std::vector<ControlRow> all;
        for (const auto& form : Forms)
            for (const ControlRow& row : form())
                all.push_back(row);
        return all;
    }();
    return table;
}

} // namespace qlm
