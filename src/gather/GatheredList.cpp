// SPDX-License-Identifier: MIT
#include "gather/GatheredList.h"

#include "core/ActivityWords.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "gather/ListFiles.h"

#include <QFileInfo>
#include <QScopeGuard>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {
// The box shows the entries 0 to 30000; the array has no limit.
constexpr qint32 LastShownIndex = 30000;
constexpr qsizetype EntriesInAPart = 50000;
// Where nothing happens between two parts they are small enough for the processor's cache.
constexpr qsizetype EntriesInASmallPart = 5000;
} // namespace

bool GatheredList::IsEmpty() const {
    return UBound() == 0 && m_app.state.arrFriendIDs.IsBlank(0);
}

qint32 GatheredList::UBound() const {
    return static_cast<qint32>(m_app.state.arrFriendIDs.size()) - 1;
}

void GatheredList::ProcessArrayAndList(const QString& caller, const std::function<void()>& change) {
    const auto changeBoth = [&] {
        change();
        SetScannedLabel();
    };
    m_app.diagnostics.Trap("ProcessArrayAndList", changeBoth, [&] { return caller; });
}

void GatheredList::Add(const QString& id, const QString& caller) {
    ProcessArrayAndList(caller, [&] { Append(id); });
}

void GatheredList::Remove(qint32 index, const QString& caller) {
    ProcessArrayAndList(caller, [&] { RemoveAt(index); });
}

void GatheredList::Append(const QString& id) {
    IdList& ids = m_app.state.arrFriendIDs;
    if (ids.IsBlank(0))
        ids = {id};
    else
        ids.append(id);
    if (UBound() <= LastShownIndex)
        m_app.controls.AddItem("lstFriendIDs"_L1, id);
}

// An entry beyond the view can't be removed; a row that goes makes room for the first entry that stood
// hidden.
void GatheredList::RemoveAt(qint32 index) {
    IdList& ids = m_app.state.arrFriendIDs;
    const QStringList& rows = m_app.controls.Items("lstFriendIDs"_L1);
    if (index < 0 || index >= rows.size())
        return;
    m_app.controls.RemoveItem("lstFriendIDs"_L1, index);
    if (rows.size() < UBound())
        m_app.controls.AddItem("lstFriendIDs"_L1, ids.at(rows.size() + 1));
    if (UBound() == 0)
        ids = {QString()};
    else
        ids.removeAt(index);
}

bool GatheredList::IsInList(const QString& id, bool fullGatherList) {
    if (fullGatherList)
        return m_app.state.lstAlreadyFullGatheredPageIDs.contains(id);
    if (m_app.state.CurrentAction == ActivityWord::Accepting)
        return m_app.controls.Items("lstAcceptIDs"_L1).contains(id);
    return m_app.state.arrFriendIDs.contains(id);
}

void GatheredList::SetScannedLabel() {
    const qint32 count = IsEmpty() ? 0 : UBound() + 1;
    m_app.controls.SetText("lblProfilesGathered"_L1, u"Profiles Gathered: "_s + QString::number(count));
}

void GatheredList::ArrayToListBox(const QString& caller) {
    auto data = [&] {
        return u"Callingproc: "_s + caller + u", "_s + QString::number(UBound()) + u", "_s +
               (m_app.controls.Ticked("chkRemoveAfterSent"_L1) ? u"1"_s : u"0"_s);
    };
    m_app.diagnostics.Trap(
        "ArrayToListBox",
        [this] {
            m_app.controls.SetItems("lstFriendIDs"_L1,
                                    m_app.state.arrFriendIDs.ToStringList(LastShownIndex + 1));
            m_app.waiting.Pump();
        },
        data);
}

QString GatheredList::ScopedPath() {
    return m_app.ProgramFile(
        FileSystem::Join(m_app.Get<SettingsFields>().AccountDataPath(u"GatheredList"_s), u"Gathered.txt"_s));
}

void GatheredList::FillScannedList(const QString& path, bool clearFirst, bool checkDuplicates) {
    // A list that is read by half would be saved by half.
    const Waiting::Unowned whole(m_app.waiting);
    m_app.diagnostics.Trap("FillScannedList", [&] {
        if (path.isEmpty() && !m_app.controls.Ticked("chkSaveScanned"_L1)) {
            m_app.state.blnFillingList = false;
            return;
        }
        if (clearFirst)
            Clear();
        m_app.state.blnFillingList = true;
        m_readFrom = path.isEmpty() ? ScopedPath() : path;
        const auto filled = qScopeGuard([this] {
            m_app.state.blnFillingList = false;
            m_readFrom.clear();
        });
        ReadLinesInto(m_readFrom, checkDuplicates);
        if (UBound() > 0)
            ArrayToListBox(u"FillScannedList"_s);
        SetScannedLabel();
    });
}

// Begins at the upper bound, not after it: the first ID that is read takes the place of the last one there.
// The list may change while the message loop turns.
void GatheredList::ReadLinesInto(const QString& path, bool checkDuplicates) {
    m_app.files.EnsureFile(path);
    IdList& ids = m_app.state.arrFriendIDs;
    qsizetype position = UBound();
    ForEachId(m_app, path, [&](const QString& id) {
        if (checkDuplicates && IsInList(id, false))
            return;
        if (position == ids.size()) {
            ids.append(id);
        } else {
            ids.resize(position + 1);
            ids.Set(position, id);
        }
        ++position;
    });
}

bool GatheredList::SaveScannedList(const QString& path) {
    return path == m_readFrom || WriteList(path, false);
}

bool GatheredList::WriteList(const QString& path, bool turns) {
    const Waiting::Unowned whole(m_app.waiting);
    const QString error = m_app.diagnostics.Trap("SaveScannedList - form1", [&] {
        m_app.files.CreateFolder(QFileInfo(path).path());
        const IdList asItIs = turns ? m_app.state.arrFriendIDs : IdList();
        const IdList& ids = turns ? asItIs : m_app.state.arrFriendIDs;
        const qsizetype entries = turns ? EntriesInAPart : EntriesInASmallPart;
        qsizetype next = 0;
        const auto nextLines = [&](QByteArray& part) {
            if (turns && next > 0)
                m_app.waiting.Pump();
            const qsizetype end = std::min(next + entries, ids.size());
            part = ids.Lines(next, end);
            next = end;
            return next < ids.size();
        };
        m_app.files.WriteParts(path, nextLines, Readers::Everyone,
                               turns ? Durability::Synced : Durability::Quick);
    });
    return error.isEmpty();
}

} // namespace qlm
