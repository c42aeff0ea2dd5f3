// SPDX-License-Identifier: MIT
#pragma once

#include "browser/NavigationGuard.h"
#include "platform/Document.h"

#include <QString>
#include <exception>
#include <memory>
#include <optional>
#include <vector>

namespace qlm {

class App;
class PageFacts;
struct JudgedLink;

// One pass over the links of the page in the browser: for gathering, for striking friends out of the list,
// and for the incoming requests. Results stand in arrFriendIDs, strNextPageLink, blnClickNextLink and
// blnRetryGatherPage.
class LinkScanner {
public:
    explicit LinkScanner(App& app) : m_app(app) {}

    // Pumps once a link. Its own errors only ask for one more pass, by blnRetryGatherPage.
    void GatherPageProfiles();
    bool IsCommentsOrNotificationsPage();

private:
    // What one pass keeps of itself.
    struct Pass {
        qint32 lngStartCount = 0; // rows of the list at its start
        qint32 lngArrayCount = 0;
        qint32 lngRepeats = 0;
        bool blnFoundButKnown = false;
        std::optional<NavigationGuard> guard; // in a full gather
    };

    void RunPass();
    void WaitForFirstPage();
    void PrepareFullGather(Pass& pass);
    Document ChooseDocument();
    void ScanLinks(Pass& pass);
    // A link and what has been found out about it before its turn comes.
    struct LinkInTurn;
    std::vector<LinkInTurn> JudgeLinks(const Document& document, const std::vector<Element>& links,
                                       const std::shared_ptr<PageFacts>& page) const;
    // False when the pass is to end.
    bool WalkOver(Pass& pass, LinkInTurn& link);
    void LookAtLink(Pass& pass, JudgedLink& link);
    void CollectRequest(JudgedLink& link);
    void Consider(Pass& pass, const QString& id);
    bool IsFoundersLink(JudgedLink& link) const;
    void FindNextPage();
    void RemindOfFullGather(const Pass& pass);
    void FilterNewProfiles(Pass& pass);
    void HandleError(const std::exception& error);
    void ShowScanStatus();
    void Trace(const QString& text);

    App& m_app;
};

} // namespace qlm
