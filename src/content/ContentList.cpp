// SPDX-License-Identifier: MIT
#include "content/ContentList.h"

#include "core/AnsiText.h"
#include "core/App.h"
#include "core/LineReader.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

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

const char* SaveTagOf(ContentKind kind) {
    switch (kind) {
    case ContentKind::Message:
        return "cmdSave_Click - frmMessage";
    case ContentKind::Comment:
        return "cmdSave_Click - frmComment";
    case ContentKind::Bulletin:
        return "cmdSave_Click - frmBulletin";
    case ContentKind::Status:
        break;
    }
    return "cmdSave_Click - frmStatus";
}

} // namespace

bool MayLoseLetters(App& app, const QString& text) {
    const QString missing = MissingInAnsi(text);
    return missing.isEmpty() ||
           app.AskYesNo(
               u"These characters can't be kept in the file; each would become a question mark:\n\n%1"
               "\n\nDo you want to save the text without them?"_s.arg(missing));
}

bool ContentList::Refuse(const QString& words) const {
    m_app->ShowMessage(words);
    return false;
}

bool ContentList::MayBeSaved(const ContentFields& fields) const {
    for (const Refusal& refusal : Refusals())
        if (refusal.kind == m_kind && (fields.*refusal.field).trimmed().isEmpty())
            return Refuse(QString::fromUtf16(refusal.message));
    // A longer line could not be read again, nor could the list that holds it.
    if (LineOf(m_kind, fields, SelectedFlag).size() > LineReader::LongestLine)
        return Refuse(u"The text is too long to be kept in the list."_s);
    return MayLoseLetters(*m_app, fields.subject + fields.text + fields.nonHTML);
}

bool ContentList::SaveEntry(const ContentFields& fields, const ContentFields* edited) const {
    if (!MayBeSaved(fields))
        return false;
    bool isSaved = true;
    const QString error = m_app->diagnostics.Trap(SaveTagOf(m_kind), [&] {
        if (!edited) {
            m_file.Append(LineOf(m_kind, fields, SelectedFlag));
            return;
        }
        QStringList lines = m_file.Lines();
        isSaved = ReplaceEntry(m_kind, lines, fields, *edited);
        if (isSaved)
            m_file.Rewrite(lines);
    });
    if (!isSaved)
        return Refuse(u"The entry isn't in the list any more. Your text has not been saved."_s);
    return error.isEmpty();
}

QString ContentList::GetCompleteStatusFromList(const QString& row) const {
    QString found;
    m_app->diagnostics.Trap("GetCompleteStatusFromList - frmStatusesList", [&] {
        if (const std::optional<ContentFields> fields = DetailsOf(ContentKind::Status, Lines(), row))
            found = fields->text;
    });
    return found;
}

} // namespace qlm
