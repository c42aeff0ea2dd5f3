// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

std::vector<ControlRow> BulletinTab() {
    return {
        Line("txtBulSubject").Kept("Bulletin"),
        Lines("txtBulMessage").Kept("Bulletin"),
        Line("txtPostAmount").Kept("Bulletin"),
        Line("txtTimer").Kept("Bulletin"),
        Line("txtBulTimerTo").Kept("Bulletin"),
        Box("chkAntiFlood").Kept("Bulletin"),
        Box("chkBulAllowComments").Kept("Bulletin"),
        Option("optSendSingle(2)", "sendBUL").Ticked().Kept("Bulletin"),
        Option("optSendFromList(2)", "sendBUL").Kept("Bulletin"),
        List("picBulletin.lstSendList"),
        Box("chkBulSendFromList").Kept("Bulletin"),
        Button("picBulPreview", u"Preview the bulletin")
            .Picture("PREVIEW")
            .Tip(u"Show the bulletin as it looks on the site"),
        Button("picBulletin.picEditList", u"Edit the list of bulletins")
            .Picture("EDITLIST")
            .Tip(u"Click this button to manage your list of bulletins"),
        Label("lblBulSentCount", u"Bulletins sent: 0"),
    };
}

} // namespace qlm::rows
