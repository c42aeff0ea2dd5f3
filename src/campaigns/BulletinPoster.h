// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/TimedPosts.h"
#include "steps/StepMachine.h"

namespace qlm {

// Posts a bulletin to all friends of the account, again and again by the clock.
class BulletinPoster {
public:
    explicit BulletinPoster(App& app);

    void Repair() { m_posts.Repair(); }
    void BeginRun();
    // The step routine.
    void IterateSendBulletins();
    // Presses the button of the page that once stood between form and post. The site has none now, and no
    // step comes by here.
    void ConfirmBulletin();

private:
    static const StepMachine<BulletinPoster>& Machine();
    void BeginStep();
    void Await(qint16 nextStep, const QString& type, const QString& value);

    Next OpenPage();
    Next SubmitBulletin();
    Next Rest();
    Next TakePosted();
    Next DeleteLast();
    void DeleteBulletin();
    bool MustDeleteFirst() const;
    void OpenSourceView();
    bool HasText();
    void FillForm();
    void WaitUntilComplete();
    bool IsOnSite();

    App& m_app;
    TimedPosts m_posts;
};

} // namespace qlm
