// SPDX-License-Identifier: MIT
#include "core/Tabs.h"

namespace qlm {

const std::vector<Tab>& Tabs() {
    static const std::vector<Tab> tabs{
        {u"Gather ID's", "TABGATHER", "picScanIDs"},
        {u"Friend Requester", "TABFRIENDS", "picFriendRequester"},
        {u"Auto Messenger", "TABMESSAGES", "picMessanger"},
        {u"Auto Commenter", "TABCOMMENTS", "picCommentor"},
    };
    return tabs;
}

QStringList TabCaptions() {
    QStringList captions;
    for (const Tab& tab : Tabs())
        captions.append(QString::fromUtf16(tab.caption));
    return captions;
}

} // namespace qlm
