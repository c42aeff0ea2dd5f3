// SPDX-License-Identifier: MIT
#include "campaigns/ContentChoice.h"

#include "campaigns/Pacing.h"
#include "content/ContentLists.h"
#include "core/App.h"
#include "core/Integer16.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Walk {
    ContentKind kind;
    qint16 RunState::*index;
    int extraStep;
};

constexpr Walk Walks[] = {
    {ContentKind::Message, &RunState::intMessageListIndex, 1},
    {ContentKind::Comment, &RunState::intCommentListIndex, 0},
    {ContentKind::Bulletin, &RunState::intBulletinListIndex, 0},
    {ContentKind::Status, &RunState::intStatusListIndex, 0},
};

// One pick from a list.
class Picker {
public:
    Picker(App& app, const Walk& walk)
        : m_app(app),
          m_lists(app.Get<ContentLists>()),
          m_walk(walk),
          m_index(app.state.*walk.index),
          m_randomizes(m_lists.Randomizes(walk.kind)),
          m_count(m_lists.CountListEntries(walk.kind)),
          m_lines(static_cast<int>(app.files.ReadLines(m_lists.PathOf(walk.kind)).size())) {}

    QString Pick() {
        QString line = Draw();
        // A walk in steps of two can pass a lone selected entry for ever.
        const int enough = m_lines * (m_randomizes ? 5 : 2);
        for (int draws = 0; !IsSelected(line); ++draws) {
            if (draws > enough)
                return FirstSelected();
            line = Draw();
            if (line.isEmpty())
                line = At(1);
        }
        return line;
    }

private:
    static bool IsSelected(const QString& line) { return line.contains(SelectedFlag, Qt::CaseInsensitive); }

    QString At(int index) {
        m_index = InInteger(index);
        const QString line = m_lists.GetNext(m_walk.kind, index);
        const bool unflagged = !line.isEmpty() && !line.contains(SelectedMarker, Qt::CaseInsensitive);
        return unflagged ? line + SelectedFlag : line;
    }

    QString Draw() {
        const int next = m_randomizes ? RandomBetween(m_app, m_count, 1) : m_index + 1;
        return At(next + m_walk.extraStep);
    }

    QString FirstSelected() {
        for (int index = 1; index <= m_lines; ++index)
            if (const QString line = At(index); IsSelected(line))
                return line;
        throw std::runtime_error("No entry of the list is selected");
    }

    App& m_app;
    ContentLists& m_lists;
    const Walk& m_walk;
    qint16& m_index;
    const bool m_randomizes;
    const qint32 m_count;
    const int m_lines; // those that are no entries too
};

bool FromList(const App& app, QLatin1StringView option) {
    return app.controls.Ticked(option);
}

SubjectAndBody PickSubjectAndBody(App& app, ContentKind kind) {
    const ContentFields fields = FieldsOf(kind, PickContentLine(app, kind));
    return {fields.subject, fields.text};
}

std::optional<QString> SkipTarget(App& app) {
    app.state.blnSkipCurrentID = true;
    return std::nullopt;
}

std::optional<QString> CommentFromList(App& app, bool refusesHTML) {
    const ContentFields fields = FieldsOf(ContentKind::Comment, PickContentLine(app, ContentKind::Comment));
    if (!refusesHTML)
        return fields.text;
    if (app.controls.Ticked("chkCOMListSkipNonHMTL"_L1))
        return SkipTarget(app);
    return fields.usesNonHTML ? fields.nonHTML : fields.text;
}

// What a profile that refuses HTML gets: nothing, the alternative, or, by the option left, the same comment.
struct Fallback {
    QLatin1StringView skip;
    QLatin1StringView alternative;
    QLatin1StringView comment;
    QLatin1StringView nonHTML;
};

// The accepter's alternative is its second option, the commenter's its third.
constexpr Fallback AcceptFallback{"optACCcomHTMLBLocked(0)"_L1, "optACCcomHTMLBLocked(1)"_L1,
                                  "txtAcceptComment"_L1, "txtAcceptCommentNonHTML"_L1};
constexpr Fallback SingleFallback{"optCOMHTMLBLocked(0)"_L1, "optCOMHTMLBLocked(2)"_L1, "txtComment"_L1,
                                  "txtCommentNonHTML"_L1};

} // namespace

QString PickContentLine(App& app, ContentKind kind) {
    return Picker(app, Walks[static_cast<int>(kind)]).Pick();
}

SubjectAndBody ChooseMessage(App& app) {
    const Controls& controls = app.controls;
    if (!app.state.strAcceptMode.isEmpty())
        return {controls.Text("txtAcceptSubject"_L1), controls.Text("txtAcceptMessage"_L1)};
    if (FromList(app, "optSendFromList(0)"_L1))
        return PickSubjectAndBody(app, ContentKind::Message);
    return {controls.Text("txtMsgSubject"_L1), controls.Text("txtMsgMessage"_L1)};
}

std::optional<QString> ChooseComment(App& app, bool refusesHTML) {
    const bool accepting = !app.state.strAcceptMode.isEmpty();
    if (!accepting && FromList(app, "optSendFromList(1)"_L1))
        return CommentFromList(app, refusesHTML);
    const Fallback& fallback = accepting ? AcceptFallback : SingleFallback;
    if (refusesHTML && app.controls.Ticked(fallback.skip))
        return SkipTarget(app);
    const bool alternative = refusesHTML && app.controls.Ticked(fallback.alternative);
    return app.controls.Text(alternative ? fallback.nonHTML : fallback.comment);
}

SubjectAndBody ChooseBulletin(App& app) {
    if (FromList(app, "optSendFromList(2)"_L1))
        return PickSubjectAndBody(app, ContentKind::Bulletin);
    return {app.controls.Text("txtBulSubject"_L1), app.controls.Text("txtBulMessage"_L1)};
}

QString ChooseStatus(App& app) {
    if (FromList(app, "optSendFromList(3)"_L1))
        return FieldsOf(ContentKind::Status, PickContentLine(app, ContentKind::Status)).text;
    return app.controls.Text("txtStatusBody"_L1);
}

QString ForRichEditor(const QString& text) {
    QString rich = text;
    return rich.replace(u'\r', u"<br>"_s);
}

} // namespace qlm
