// SPDX-License-Identifier: MIT
#include "core/controls/ControlRows.h"

namespace qlm::rows {

namespace {

constexpr const char16_t* MoveUpTip = u"Take the chosen entry one place up. It can be dragged, too";
constexpr const char16_t* MoveDownTip = u"Take the chosen entry one place down. It can be dragged, too";
constexpr const char16_t* UndoTip =
    u"Bring back what was deleted last. It is possible until this window closes";
constexpr const char16_t* InOrderTip = u"The ticked entries are used one after the other";
constexpr const char16_t* RandomizeTip = u"A ticked entry is drawn each time";
constexpr const char16_t* PreviewTip = u"Show the text as it looks on the site";

std::vector<ControlRow> ListScreens() {
    return {
        List("frmMessagesList.lstMessages").Spoken(u"Messages"),
        Lines("frmMessagesList.txtMessage").Spoken(u"Text of the chosen message"),
        Button("frmMessagesList.cmdAddMessage", u"&Add"),
        Button("frmMessagesList.cmdEditMessage", u"&Edit"),
        Button("frmMessagesList.cmdDeleteMessage", u"&Delete"),
        Button("frmMessagesList.cmdUndoDelete", u"U&ndo delete").Tip(UndoTip),
        Button("frmMessagesList.cmdMoveUp", u"Move &up").Tip(MoveUpTip),
        Button("frmMessagesList.cmdMoveDown", u"Move d&own").Tip(MoveDownTip),
        Button("frmMessagesList.cmdPreview", u"&Preview").Tip(PreviewTip),
        Option("frmMessagesList.optMessagesListSendInOrder", "orderMSG", u"Send &in order")
            .Ticked()
            .Tip(InOrderTip),
        Option("frmMessagesList.optMessagesListRandomize", "orderMSG", u"&Randomize").Tip(RandomizeTip),
        Button("frmMessagesList.Command1", u"&Close"),

        List("frmCommentsList.lstComments").Spoken(u"Comments"),
        Lines("frmCommentsList.txtComment").Spoken(u"Text of the chosen comment"),
        Lines("frmCommentsList.txtCommentNonHTML").Spoken(u"Alternative of the chosen comment"),
        Label("frmCommentsList.lblUseNonHTML", u"OFF"),
        Button("frmCommentsList.cmdAddComment", u"&Add"),
        Button("frmCommentsList.cmdEditComment", u"&Edit"),
        Button("frmCommentsList.cmdDeleteComment", u"&Delete"),
        Button("frmCommentsList.cmdUndoDelete", u"U&ndo delete").Tip(UndoTip),
        Button("frmCommentsList.cmdMoveUp", u"Move &up").Tip(MoveUpTip),
        Button("frmCommentsList.cmdMoveDown", u"Move d&own").Tip(MoveDownTip),
        Button("frmCommentsList.cmdPreview", u"&Preview").Tip(PreviewTip),
        Option("frmCommentsList.optCommentsListSendInOrder", "orderCOM", u"Send &in order")
            .Ticked()
            .Tip(InOrderTip),
        Option("frmCommentsList.optCommentsListRandomize", "orderCOM", u"&Randomize").Tip(RandomizeTip),
        Button("frmCommentsList.Command1", u"&Close"),

        List("frmBulletinsList.lstBulletins").Spoken(u"Bulletins"),
        Lines("frmBulletinsList.txtMessage").Spoken(u"Text of the chosen bulletin"),
        Button("frmBulletinsList.cmdAddBulletin", u"&Add"),
        Button("frmBulletinsList.cmdEditBulletin", u"&Edit"),
        Button("frmBulletinsList.cmdDeleteBulletin", u"&Delete"),
        Button("frmBulletinsList.cmdUndoDelete", u"U&ndo delete").Tip(UndoTip),
        Button("frmBulletinsList.cmdMoveUp", u"Move &up").Tip(MoveUpTip),
        Button("frmBulletinsList.cmdMoveDown", u"Move d&own").Tip(MoveDownTip),
        Button("frmBulletinsList.cmdPreview", u"&Preview").Tip(PreviewTip),
        Option("frmBulletinsList.optBulletinsListSendInOrder", "orderBUL", u"Send &in order")
            .Ticked()
            .Tip(InOrderTip),
        Option("frmBulletinsList.optBulletinsListRandomize", "orderBUL", u"&Randomize").Tip(RandomizeTip),
        Button("frmBulletinsList.Command1", u"&Close"),

        List("frmStatusesList.lstStatuses").Spoken(u"Status updates"),
        Button("frmStatusesList.cmdAddStatus", u"&Add"),
        Button("frmStatusesList.cmdEditStatus", u"&Edit"),
        Button("frmStatusesList.cmdDeleteStatus", u"&Delete"),
        Button("frmStatusesList.cmdUndoDelete", u"U&ndo delete").Tip(UndoTip),
        Button("frmStatusesList.cmdMoveUp", u"Move &up").Tip(MoveUpTip),
        Button("frmStatusesList.cmdMoveDown", u"Move d&own").Tip(MoveDownTip),
        Option("frmStatusesList.optStatusesListSendInOrder", "orderSTATUS", u"Send &in order")
            .Ticked()
            .Tip(InOrderTip),
        Option("frmStatusesList.optStatusesListRandomize", "orderSTATUS", u"&Randomize").Tip(RandomizeTip),
        Button("frmStatusesList.Command1", u"&Close"),
    };
}

std::vector<ControlRow> EntryScreens() {
    return {
        Line("frmMessage.txtSubject", u"S&ubject:").Tip(NameTip),
        Lines("frmMessage.txtMessage", u"&Message:").Tip(NameTip),
        Button("frmMessage.picBulPreview", u"Preview").Tip(PreviewTip),
        Button("frmMessage.cmdSave", u"&Save"),
        Button("frmMessage.cmdCancel", u"Cancel"),
        Lines("frmComment.txtComment", u"&Comment:").Tip(NameTip),
        Box("frmComment.chkComUseNonHTML", u"Certain &profiles don't allow HTML in comments. Enter an "
                                           u"alternative comment below to be used for those friends"),
        Lines("frmComment.txtCommentNonHTML", u"&Alternative comment:").Tip(NameTip),
        Button("frmComment.cmdSave", u"&Save"),
        Button("frmComment.cmdCancel", u"Cancel"),
        Line("frmBulletin.txtSubject", u"S&ubject:"),
        Lines("frmBulletin.txtMessage", u"&Bulletin:"),
        Button("frmBulletin.picBulPreview", u"Preview").Tip(PreviewTip),
        Button("frmBulletin.cmdSave", u"&Save"),
        Button("frmBulletin.cmdCancel", u"Cancel"),
        Lines("frmStatus.txtMessage", u"S&tatus update:"),
        Label("frmStatus.lblStatusCharactersRemaining"),
        Button("frmStatus.cmdSave", u"&Save"),
        Button("frmStatus.cmdCancel", u"Cancel"),
        Button("frmPreview.cmdClose", u"&Close"),
    };
}

std::vector<ControlRow> BookmarkForms() {
    return {
        List("frmManageBookmarks.lstBookmarks").Spoken(u"Bookmarks"),
        Button("frmManageBookmarks.cmdAddBookmark", u"&Add"),
        Button("frmManageBookmarks.cmdEditBookmark", u"&Edit"),
        Button("frmManageBookmarks.cmdDeleteBookmark", u"&Delete"),
        Button("frmManageBookmarks.cmdMoveUp", u"Move &up"),
        Button("frmManageBookmarks.cmdMoveDown", u"Move d&own"),
        Button("frmManageBookmarks.Command1", u"&Close"),
        Line("frmBookmark.txtName", u"&Name:"),
        Line("frmBookmark.txtLocation", u"&Location:"),
        Button("frmBookmark.cmdSave", u"&Save"),
        Button("frmBookmark.cmdCancel", u"Cancel"),
    };
}

} // namespace

std::vector<ControlRow> ContentForms() {
    std::vector<ControlRow> all = ListScreens();
    for (const auto& form : {EntryScreens(), BookmarkForms()})
        all.insert(all.end(), form.begin(), form.end());
    return all;
}

} // namespace qlm::rows
