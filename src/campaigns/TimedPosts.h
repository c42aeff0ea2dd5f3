// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/Campaigns.h"
#include "campaigns/ContentChoice.h"

#include <functional>
#include <optional>

namespace qlm {

// What the campaigns share that post by the clock: the fields and their repairs, the minutes between two
// posts, and the browser, which they borrow from whatever campaign runs when a post falls due. One object for
// each of them; it belongs to the machine.
class TimedPosts {
public:
    // post begins the next post. It is called when one falls due, with the campaign as the running activity.
    TimedPosts(App& app, const Campaign& campaign, const char* tick, std::function<void()> post);

    // What is no number in the fields becomes one.
    void Repair();
    // A run begins: nothing has been posted or waited for.
    void Begin();
    // No further post falls due before this one is done.
    void Hold();

    // The text of the present post, chosen once however often the page is tried; reported from then on.
    const SubjectAndBody& Text();
    // Notes it on the disk, before a click that can't be taken back. The post goes out in any case: a note
    // that is found later is told and holds nothing back.
    void NoteBeforePost();
    // It has been posted: counted, and the note struck out. Draws the minutes until the next one, or ends the
    // run after the last. remark is for the report.
    void Posted(const QString& remark = {});
    // It was not posted: the next one, at its time, has the same text.
    void Failed(const QString& why);
    bool IsLast() const;
    // Gives the browser back to whoever has lent it; with nobody there a finished run is over.
    void Return();

private:
    void Tick();
    void WaitForNext();
    void Finish();
    void Repair(const char* from, bool all);
    void ShowDue();
    void TellMinutes(const char* outcome);
    qint32 MinutesLeft() const;
    QString NotePath() const;
    void TellOldNotes();
    Timer& Clock() const;

    App& m_app;
    const Campaign& m_campaign;
    const CampaignTiming& m_timing;
    const std::function<void()> m_post;
    std::optional<SubjectAndBody> m_text;
    QString m_account; // that it was chosen for
    bool m_isReported = false;
    QString m_name; // of the present post, in report and note
};

} // namespace qlm
