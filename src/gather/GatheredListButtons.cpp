// SPDX-License-Identifier: MIT
#include "core/ActivityWords.h"
#include "core/App.h"
#include "gather/GatheredList.h"
#include "gather/ListFiles.h"
#include "steps/Activities.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int DeleteKey = 46;
constexpr qint32 SwapsBetweenTurns = 100000;

} // namespace

GatheredList::GatheredList(App& app) : m_app(app) {
    Commands& commands = app.commands;
    commands.Add(u"piccmdClearList_Click"_s, [this] { Clear(); });
    commands.Add(u"picRandomize_Click"_s, [this] { Shuffle(); });
    commands.Add(u"picImport_Click"_s, [this] { Import(); });
    commands.Add(u"picSaveToFile_Click"_s, [this] { SaveToFile(); });
    commands.Add(u"lstFriendIDs_KeyDown"_s, [this](int keyCode) { lstFriendIDs_KeyDown(keyCode); });
    commands.Add(u"lstFriendIDs_DblClick"_s, "GoToIDsPage", [this] { GoToIDsPage(); });
    commands.Add(u"mnuContextIDsListItem_Click"_s, [this](int row) { mnuContextIDsListItem_Click(row); });
}

bool GatheredList::RefuseWhileFilling() {
    if (m_app.state.blnFillingList)
        m_app.ShowMessage(
            u"The ID's list is already being filled, please wait for that process to finish. This may "
            "take a short while depending on the amount of ID's being imported."_s);
    return m_app.state.blnFillingList;
}

void GatheredList::Clear() {
    m_app.diagnostics.Trap(
        "piccmdClearList_Click",
        [this] {
            if (RefuseWhileFilling())
                return;
            m_app.controls.SetItems("lstFriendIDs"_L1, {});
            m_app.state.arrFriendIDs = IdList{QString()};
            SetScannedLabel();
        },
        [this] { return QString::number(m_app.controls.Items("lstFriendIDs"_L1).size()); });
}

void GatheredList::Shuffle() {
    m_app.diagnostics.Trap("picRandomize_Click", [this] {
        RunState& state = m_app.state;
        if (RefuseWhileFilling())
            return;
        if (const Activity* activity = FindActivity(state.CurrentAction); activity && activity->worksOnList) {
            m_app.ShowMessage(u"You cannot randomize the list of ID's while sending. Please stop the current "
                              "operation and try again."_s);
            return;
        }
        if (m_app.controls.Items("lstFriendIDs"_L1).isEmpty())
            return;
        state.CurrentAction = ActivityWord::Shuffling;
        const auto pointer = ShowWaitPointer(m_app);
        // The list may change while the message loop turns; what is left of it is shuffled then.
        for (qint32 i = UBound(); i > 0; i = std::min(i - 1, UBound())) {
            const auto j = static_cast<qint32>(m_app.platform.Random().Next() * (i + 1));
            state.arrFriendIDs.swapItemsAt(i, j);
            if (i % SwapsBetweenTurns == 0)
                m_app.waiting.Pump();
        }
        ArrayToListBox(u"Randomize"_s);
        if (state.CurrentAction == ActivityWord::Shuffling)
            state.CurrentAction.clear();
    });
}

void GatheredList::Import() {
    if (RefuseWhileFilling())
        return;
    const QString path = m_app.platform.Dialogs().ChooseFileToOpen({}, TextFilesFilter());
    if (path.isEmpty())
        return;
    const Dialogs::Answer answer = AskForDuplicates(m_app);
    const auto pointer = ShowWaitPointer(m_app);
    if (answer == Dialogs::Answer::Yes || answer == Dialogs::Answer::No)
        FillScannedList(path, false, answer == Dialogs::Answer::Yes);
}

void GatheredList::SaveToFile() {
    const QString path = m_app.platform.Dialogs().ChooseFileToSave({}, {}, TextFilesFilter());
    if (!path.isEmpty())
        WriteList(path, true);
}

void GatheredList::lstFriendIDs_KeyDown(int keyCode) {
    const int row = m_app.controls.Selected("lstFriendIDs"_L1);
    if (keyCode != DeleteKey || m_app.controls.SelectedText("lstFriendIDs"_L1).isEmpty())
        return;
    Remove(row, u"lstFriendIDs_KeyDown"_s);
    const auto rows = static_cast<int>(m_app.controls.Items("lstFriendIDs"_L1).size());
    m_app.controls.SetSelected("lstFriendIDs"_L1, std::min(row, rows - 1));
}

// The rows of the menu; the second is its separator.
void GatheredList::mnuContextIDsListItem_Click(int row) {
    switch (row) {
    case 0:
        m_app.commands.Run(u"lstFriendIDs_DblClick"_s);
        break;
    case 2:
        m_app.commands.Run(u"lstFriendIDs_KeyDown"_s, DeleteKey);
        break;
    case 3:
        m_app.commands.Run(u"picSaveToFile_Click"_s);
        break;
    case 4:
        m_app.commands.Run(u"picImport_Click"_s);
        break;
    default:
        break;
    }
}

void GatheredList::GoToIDsPage() {
    m_app.WebBrowser1().SetSilent(true);
    if (!m_app.state.CurrentAction.isEmpty()) {
        m_app.ShowMessage(u"Please stop all other operations first"_s);
        return;
    }
    const QString id = m_app.controls.SelectedText("lstFriendIDs"_L1);
    if (!id.isEmpty())
        m_app.WebBrowser1().Navigate(m_app.Expand(u"http://{SiteRootHost}/"_s) + id);
}

} // namespace qlm
