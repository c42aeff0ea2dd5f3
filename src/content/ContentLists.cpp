// SPDX-License-Identifier: MIT
#include "content/ContentLists.h"

#include "core/AnsiText.h"
#include "core/App.h"
#include "core/SettingsFields.h"
#include "core/Text.h"

#include <vector>

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct KindRow {
    ContentKind kind;
    const char* category;  // whose scope the files lie in
    const char* inputKind; // the same scope in the settings store
    const char* file;
    const char* rewriteFile;
    const char16_t* entryWord; // what an entry is known by
    const char16_t* rowEnd;    // the marker after what a row shows
    bool rowIsFirstLine;
    const char* orderKey;
    QLatin1StringView mainList; // on the campaign's tab
    const char* fillTag;
    const char* saveTag;
};

constexpr KindRow Kinds[] = {
    {ContentKind::Message, "MessagesList", "Message", "MessagesList.txt", "Temp_MessagesList.txt",
     u"&message", u"&Message=", false, "optMessagesListRandomize", "picMessanger.lstSendList"_L1,
     "FillMainMessagesList - frmMAIN", "cmdSave_Click - frmMessage"},
    {ContentKind::Comment, "CommentsList", "Comment", "CommentsList.txt", "Temp_CommentsList.txt",
     u"&usenonhtml", u"&usenonhtml", true, "optCommentsListRandomize", "picCommentor.lstSendList"_L1,
     "FillMainCommentsList - frmMAIN", "cmdSave_Click - frmComment"},
    {ContentKind::Bulletin, "BulletinsList", "Bulletin", "BulletinsList.txt", "Temp_BulletinsList.txt",
     u"&bulletin", u"&Bulletin=", false, "optBulletinsListRandomize", "picBulletin.lstSendList"_L1,
     "FillMainBulletinsList - frmMAIN", "cmdSave_Click - frmBulletin"},
    {ContentKind::Status, "StatusesList", "Status", "StatusesList.txt", "Temp_StatusesList.txt",
     u"&selected=", u"&Selected=", true, "optStatusesListRandomize", "picStatusUpdater.lstSendList"_L1,
     "FillMainStatusesList - frmMAIN", "cmdSave_Click - frmStatus"},
};

const KindRow& RowOf(ContentKind kind) {
    return Kinds[static_cast<int>(kind)];
}

struct Refusal {
    ContentKind kind;
    QString ContentFields::*field;
    const char16_t* message;
};

const std::vector<Refusal>& Refusals() {
    static const std::vector<Refusal> rows{
        {ContentKind::Message, &ContentFields::subject, u"Please enter the message subject"},
        {ContentKind::Message, &ContentFields::text, u"Please enter the message body"},
        {ContentKind::Bulletin, &ContentFields::subject, u"Please enter the bulletin subject"},
        {ContentKind::Bulletin, &ContentFields::text, u"Please enter the bulletin body"},
        {ContentKind::Comment, &ContentFields::text, u"Please enter the comment to save"},
        {ContentKind::Status, &ContentFields::text, u"Please enter the status update"},
    };
    return rows;
}

// A line that begins with the word counts as having no subject and is no entry.
bool IsEntry(const QString& line, const QString& word) {
    return line.indexOf(word, 0, Qt::CaseInsensitive) >= 1;
}

// What the status screen shows of a text: up to its first line break, unless it begins with one.
QString ShownOf(const QString& text) {
    const qsizetype end = text.indexOf(u"%nl%"_s);
    return end >= 1 ? text.left(end) : text;
}

// What tells the entry that is being edited from the other lines; null for a line that is none.
QString Identity(ContentKind kind, const QString& line) {
    const QString unflagged = WithoutFlag(line);
    if (kind != ContentKind::Message && kind != ContentKind::Bulletin)
        return unflagged;
    const QString& marker = kind == ContentKind::Message ? MessageMarker : BulletinMarker;
    return unflagged.contains(marker, Qt::CaseInsensitive) ? TextBehind(unflagged, marker) + u'.' : QString();
}

} // namespace

QString ContentLists::FolderOf(ContentKind kind) {
    return FileSystem::Join(m_app.state.ProgramFolder, m_app.Get<SettingsFields>().AccountDataPath(
                                                           QString::fromLatin1(RowOf(kind).category)));
}

QString ContentLists::PathOf(ContentKind kind) {
    return FileSystem::Join(FolderOf(kind), QString::fromLatin1(RowOf(kind).file));
}

QString ContentLists::RewritePathOf(ContentKind kind) {
    return FileSystem::Join(FolderOf(kind), QString::fromLatin1(RowOf(kind).rewriteFile));
}

bool ContentLists::ListHasEntries(ContentKind kind, const QString& needle) {
    const QString path = PathOf(kind);
    m_app.files.EnsureFile(path);
    const bool firstLineAlone = kind == ContentKind::Message;
    const QString own = QString::fromUtf16(RowOf(kind).entryWord);
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
    const QString word = needle.isEmpty() ? QString::fromUtf16(RowOf(kind).entryWord) : needle;
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

bool ContentLists::Randomizes(ContentKind kind) {
    const KindRow& row = RowOf(kind);
    return ToBoolean(m_app.platform.Settings().GetSetting(
        m_app.Get<SettingsFields>().SectionOf(QString::fromLatin1(row.inputKind)),
        QString::fromLatin1(row.orderKey), u"False"_s));
}

void ContentLists::FillMainList(ContentKind kind) {
    const KindRow& row = RowOf(kind);
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

bool ContentLists::SaveEntry(ContentKind kind, const ContentFields& fields, const ContentFields* edited) {
    for (const Refusal& refusal : Refusals())
        if (refusal.kind == kind && (fields.*refusal.field).trimmed().isEmpty()) {
            m_app.ShowMessage(QString::fromUtf16(refusal.message));
            return false;
        }
    const QString error = m_app.diagnostics.Trap(RowOf(kind).saveTag, [&] {
        m_app.files.EnsureFile(PathOf(kind));
        m_app.files.EnsureFile(RewritePathOf(kind));
        if (edited)
            Replace(kind, fields, *edited);
        else
            m_app.files.AppendLine(PathOf(kind), LineOf(kind, fields, SelectedFlag));
    });
    return error.isEmpty();
}

// All equal lines are replaced. The rewrite file stays behind.
void ContentLists::Replace(ContentKind kind, const ContentFields& fields, const ContentFields& edited) {
    const QString wanted = Identity(kind, LineOf(kind, edited, {}));
    QStringList lines = m_app.files.ReadLines(PathOf(kind));
    for (QString& line : lines)
        if (Identity(kind, line) == wanted)
            line = LineOf(kind, fields, FlagTextOf(line));
    m_app.files.WriteLines(RewritePathOf(kind), lines);
    m_app.files.CopyFile(RewritePathOf(kind), PathOf(kind));
}

QString ContentLists::GetCompleteStatusFromList(const QString& row) {
    QString found;
    m_app.diagnostics.Trap("GetCompleteStatusFromList - frmStatusesList", [&] {
        const QString path = PathOf(ContentKind::Status);
        m_app.files.EnsureFile(path);
        for (const QString& line : m_app.files.ReadLines(path)) {
            const QString text = TextBefore(line, SelectedMarker);
            if (ShownOf(text) == row) {
                found = UnescapeLine(text);
                return;
            }
        }
    });
    return found;
}

} // namespace qlm
