// SPDX-License-Identifier: MIT
#include "content/ContentLists.h"

#include "core/AnsiText.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct KindRow {
    ContentKind kind;
    const char* category;  // whose scope the files lie in
    const char* inputKind; // the same scope in the settings store
    const char* file;
    const char16_t* entryWord; // what an entry is known by
    const char16_t* rowEnd;    // the marker after what a row shows
    bool rowIsFirstLine;
    const char* orderKey;
    QLatin1StringView mainList; // on the campaign's tab
    const char* fillTag;
};

constexpr KindRow Kinds[] = {
    {ContentKind::Message, "MessagesList", "Message", "MessagesList.txt", u"&message", u"&Message=", false,
     "optMessagesListRandomize", "picMessanger.lstSendList"_L1, "FillMainMessagesList - frmMAIN"},
    {ContentKind::Comment, "CommentsList", "Comment", "CommentsList.txt", u"&usenonhtml", u"&usenonhtml",
     true, "optCommentsListRandomize", "picCommentor.lstSendList"_L1, "FillMainCommentsList - frmMAIN"},
    {ContentKind::Bulletin, "BulletinsList", "Bulletin", "BulletinsList.txt", u"&bulletin", u"&Bulletin=",
     false, "optBulletinsListRandomize", "picBulletin.lstSendList"_L1, "FillMainBulletinsList - frmMAIN"},
    {ContentKind::Status, "StatusesList", "Status", "StatusesList.txt", u"&selected=", u"&Selected=", true,
     "optStatusesListRandomize", "picStatusUpdater.lstSendList"_L1, "FillMainStatusesList - frmMAIN"},
};

const KindRow& TableRowOf(ContentKind kind) {
    return Kinds[static_cast<int>(kind)];
}

// A line that begins with the word counts as having no subject and is no entry.
bool IsEntry(const QString& line, const QString& word) {
    return line.indexOf(word, 0, Qt::CaseInsensitive) >= 1;
}

} // namespace

ContentList ContentLists::Of(ContentKind kind) {
    const KindRow& row = TableRowOf(kind);
    const QString folder =
        FileSystem::Join(m_app.state.ProgramFolder,
                         m_app.Get<SettingsFields>().AccountDataPath(QString::fromLatin1(row.category)));
    return {m_app, kind, ListFile(m_app.files, folder, QString::fromLatin1(row.file))};
}

QString ContentLists::PathOf(ContentKind kind) {
    return Of(kind).File().Path();
}

bool ContentLists::ListHasEntries(ContentKind kind, const QString& needle) {
    const QString path = PathOf(kind);
    m_app.files.EnsureFile(path);
    const bool firstLineAlone = kind == ContentKind::Message;
    const QString own = QString::fromUtf16(TableRowOf(kind).entryWord);
    const QString word = needle.isEmpty() || firstLineAlone ? own : needle;
    bool found = false;
    m_app.files.ForEachLine(path, [&](QByteArrayView line) {
        found = IsEntry(FromAnsi(line), word);
        return !found && !firstLineAlone;
    });
    return found;
}

qint32 ContentLists::CountListEntries(ContentKind kind, const QString& needle) {
    const QString path = PathOf(kind);
    m_app.files.EnsureFile(path);
    const QString word = needle.isEmpty() ? QString::fromUtf16(TableRowOf(kind).entryWord) : needle;
    qint32 count = 0;
    m_app.files.ForEachLine(path, [&](QByteArrayView line) {
        count += IsEntry(FromAnsi(line), word) ? 1 : 0;
        return true;
    });
    return count;
}

QString ContentLists::GetNext(ContentKind kind, int index) {
    const QString path = PathOf(kind);
    m_app.files.EnsureFile(path);
    return index < 1 ? QString() : UnescapeLine(m_app.files.ReadLines(path).value(index - 1));
}

QString ContentLists::SectionOf(ContentKind kind) {
    return m_app.Get<SettingsFields>().SectionOf(QString::fromLatin1(TableRowOf(kind).inputKind));
}

bool ContentLists::Randomizes(ContentKind kind) {
    return ToBoolean(m_app.platform.Settings().GetSetting(
        SectionOf(kind), QString::fromLatin1(TableRowOf(kind).orderKey), u"False"_s));
}

void ContentLists::FillMainList(ContentKind kind) {
    const KindRow& row = TableRowOf(kind);
    m_app.diagnostics.Trap(row.fillTag, [&] {
        m_app.controls.SetItems(row.mainList, {});
        const QString path = PathOf(kind);
        m_app.files.EnsureFile(path);
        for (const QString& line : m_app.files.ReadLines(path)) {
            if (line.trimmed().isEmpty())
                continue;
            QString text = TextBefore(line, QString::fromUtf16(row.rowEnd));
            if (FlagTextOf(line).mid(SelectedMarker.size()).trimmed() != u"1"_s)
                continue;
            if (row.rowIsFirstLine)
                text = text.section(u"%nl%"_s, 0, 0);
            m_app.controls.AddItem(row.mainList, text.replace(u"%cln%"_s, u";"_s));
        }
        if (m_app.controls.Items(row.mainList).isEmpty())
            m_app.controls.AddItem(row.mainList, u"Your list is empty..."_s);
    });
}

void ContentLists::FillMainLists() {
    for (const KindRow& row : Kinds)
        FillMainList(row.kind);
}

} // namespace qlm
