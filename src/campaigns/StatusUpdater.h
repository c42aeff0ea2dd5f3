// SPDX-License-Identifier: MIT
#pragma once

#include "campaigns/TimedPosts.h"
#include "platform/Document.h"

#include <functional>

namespace qlm {

// Posts status updates to the stream on the home page by the clock. It has no steps: one call goes from the
// page to the post, and the clock calls it again.
class StatusUpdater {
public:
    explicit StatusUpdater(App& app);
    ~StatusUpdater();

    void Repair() { m_posts.Repair(); }
    void BeginRun();
    void SendStatusUpdates();
    // Nothing asks: a post is taken as done once it has been pressed.
    static bool IsStatusUpdatePosted() { return false; }

private:
    void OpenHomePage();
    void Post();
    void DeleteStatusUpdate();
    void DeleteInOldLayout();
    void DeleteInNewLayout();
    void ChooseInStream(const QString& link);
    Document OwnPage();  // null while a stranger's page is shown
    Document NeedPage(); // throws then
    // Until it holds of the site's own page, however long that takes; the window tells of it by these words.
    void WaitOnPage(const QString& what, const std::function<bool(const Document&)>& condition);
    void ShowCharactersLeft();

    App& m_app;
    TimedPosts m_posts;
    int m_listener = 0;
};

} // namespace qlm
