// SPDX-License-Identifier: MIT
#include "campaigns/ContentChoice.h"

#include "campaigns/Campaigns.h"
#include "campaigns/Pacing.h"
#include "content/ContentLists.h"
#include "core/App.h"
#include "core/Integer16.h"

namespace qlm {

using namespace Qt::Literals::StringLiterals;

namespace {

// One pick from a list.
class Picker {
public:
    Picker(App& app, const CampaignContent& content)
        : m_app(app),
          m_lists(app.Get<ContentLists>()),
          m_content(content),
          m_index(app.state.*content.listIndex),
          m_randomizes(m_lists.Randomizes(content.kind)),
          m_count(m_lists.CountListEntries(content.kind)),
          m_lines(static_cast<int>(app.files.ReadLines(m_lists.PathOf(content.kind)).size())) {}

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
        const QString line = m_lists.GetNext(m_content.kind, index);
        const bool unflagged = !line.isEmpty() && !line.contains(SelectedMarker, Qt::CaseInsensitive);
        return unflagged ? line + SelectedFlag : line;
    }

    QString Draw() {
        const int next = m_randomizes ? RandomBetween(m_app, m_count, 1) : m_index + 1;
        return At(next + m_content.linesBetween);
    }

    QString FirstSelected() {
        for (int index = 1; index <= m_lines; ++index)
            if (const QString line = At(index); IsSelected(line))
                return line;
        throw NoEntrySelected();
    }

    App& m_app;
    ContentLists& m_lists;
    const CampaignContent& m_content;
    qint16& m_index;
    const bool m_randomizes;
    const qint32 m_count;
    const int m_lines; // those that are no entries too
};

ContentFields PickFields(App& app, const Campaign& campaign) {
    return FieldsOf(campaign.content.kind, PickContentLine(app, campaign));
}

bool IsAccepting(const App& app) {
    return !app.state.strAcceptMode.isEmpty();
}

CommentChoice CommentFromList(App& app) {
    const ContentFields fields = PickFields(app, Comments);
    if (app.controls.Ticked("chkCOMListSkipNonHMTL"_L1))
        return {fields.text, std::nullopt};
    return {fields.text, fields.usesNonHTML ? fields.nonHTML : fields.text};
}

// What a profile that refuses HTML gets: nothing, the alternative, or, by the option left, the same comment.
struct Fallback {
    QLatin1StringView skip;
    QLatin1StringView alternative;
    QLatin1StringView nonHTML;
};

// The accepter's alternative is its second option, the commenter's its third.
constexpr Fallback AcceptFallback{"optACCcomHTMLBLocked(0)"_L1, "optACCcomHTMLBLocked(1)"_L1,
                                  "txtAcceptCommentNonHTML"_L1};
constexpr Fallback SingleFallback{"optCOMHTMLBLocked(0)"_L1, "optCOMHTMLBLocked(2)"_L1,
                                  "txtCommentNonHTML"_L1};

} // namespace

QString PickContentLine(App& app, const Campaign& campaign) {
    return Picker(app, campaign.content).Pick();
}

SubjectAndBody ChooseText(App& app, const Campaign& campaign) {
    const CampaignContent& content = campaign.content;
    auto typed = [&app](QLatin1StringView field) {
        return field.isEmpty() ? QString() : app.controls.Text(field);
    };
    if (IsAccepting(app) && !content.acceptText.isEmpty())
        return {typed(content.acceptSubject), typed(content.acceptText)};
    if (!app.controls.Ticked(content.fromList))
        return {typed(content.subject), typed(content.text)};
    const ContentFields fields = PickFields(app, campaign);
    return {fields.subject, fields.text};
}

CommentChoice ChooseComment(App& app) {
    const bool accepting = IsAccepting(app);
    if (!accepting && app.controls.Ticked(Comments.content.fromList))
        return CommentFromList(app);
    const QString text = ChooseText(app, Comments).body;
    const Fallback& fallback = accepting ? AcceptFallback : SingleFallback;
    if (app.controls.Ticked(fallback.skip))
        return {text, std::nullopt};
    return {text, app.controls.Ticked(fallback.alternative) ? app.controls.Text(fallback.nonHTML) : text};
}

QString ForRichEditor(const QString& text) {
    QString rich = text;
    return rich.replace(u'\r', u"<br>"_s);
}

} // namespace qlm
