// SPDX-License-Identifier: MIT
#include "CommentDesigns.h"

namespace qlm::practice {

namespace {

using After = CommentDesign::After;

constexpr QStringView plainBox = u"commentText";
constexpr QStringView writeBox = u"ctl00$ctl00$cpMain$UserWriteCommentsControl$commentTextBox";
constexpr QStringView shortWriteBox = u"ctl00$cpMain$UserWriteCommentsControl$commentTextBox";
constexpr QStringView skinBox = u"ctl00_cpMain_UserWriteCommentsControl_Skin_commentTextBox";
constexpr QStringView postBox = u"ctl00_cpMain_postComment_commentTextBox";
constexpr QStringView mainPostBox = u"ctl00_Main_postComment_commentTextBox";
constexpr QStringView postMark = u"ctl00$cpMain$postComment$commentTextBox";
constexpr QStringView editorBox0 = u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl00";
constexpr QStringView editorBox1 = u"ctl00_ctl00_cpMain_cpMain_ctl02_ctl01";

constexpr QStringView buttonElement = uR"(<button class="button" name="postComment">Post A Comment</button>)";
constexpr QStringView imageButton =
    uR"(<input type="image" id="ctl00_cpMain_postComment_postcommentImageButton"
 name="ctl00$cpMain$postComment$postcommentImageButton" src="{image}" alt="Post A Comment">)";
constexpr QStringView otherCaption =
    uR"(<input type="submit" class="button" name="postComment" value="Share">)";
constexpr QStringView previewBeside =
    uR"(<button class="button plain" name="preview" value="1">Preview</button>
<button class="button" name="postComment">Post</button>)";
constexpr QStringView hiddenBefore = uR"(<button type="button" style="DISPLAY: NONE">Post</button>
<button class="button" name="postComment">Post</button>)";
constexpr QStringView livePost = uR"-(<button type="button" class="button" onclick="postInPlace(this)"
 data-on-click="submit #newCommentForm">Post</button>)-";
constexpr QStringView shareButton = uR"(<button class="button" name="postComment">Share</button>)";

constexpr CommentDesign rows[] = {
    {.name = u"plain",
     .says = u"a plain box, then a page to confirm",
     .older = true,
     .box = plainBox,
     .after = After::Confirm},
    {.name = u"write", .says = u"posted without a question", .older = true, .box = writeBox},
    {.name = u"write-short",
     .says = u"a shorter name; the page to confirm has a button element",
     .older = true,
     .box = shortWriteBox,
     .mark = postMark,
     .after = After::ConfirmButton},
    {.name = u"skin",
     .says = u"names of a skin; confirmed twice",
     .older = true,
     .box = skinBox,
     .mark = postMark,
     .after = After::ConfirmTwice},
    {.name = u"post",
     .says = u"an image for a button",
     .older = true,
     .box = postBox,
     .mark = postMark,
     .buttons = imageButton,
     .after = After::Confirm},
    {.name = u"post-main",
     .says = u"a button element",
     .older = true,
     .box = mainPostBox,
     .mark = postMark,
     .buttons = buttonElement,
     .after = After::Confirm},
    {.name = u"editor",
     .says = u"an editor with its source view",
     .older = true,
     .box = editorBox0,
     .mark = writeBox,
     .editor = Editor::Source,
     .after = After::Confirm},
    {.name = u"editor-second",
     .says = u"the other editor; the page fills up late",
     .older = true,
     .box = editorBox1,
     .mark = writeBox,
     .lateMark = true,
     .editor = Editor::Source,
     .after = After::Confirm},
    {.name = u"box", .says = u"a box that grows", .older = false},
    {.name = u"box-preview", .says = u"a preview beside the post", .older = false, .buttons = previewBeside},
    {.name = u"box-hidden", .says = u"a hidden button first", .older = false, .buttons = hiddenBefore},
    {.name = u"box-live", .says = u"posted in place", .older = false, .buttons = livePost},
    {.name = u"back",
     .says = u"the comment is lost and the form is back",
     .older = true,
     .hard = true,
     .box = plainBox,
     .after = After::Back},
    {.name = u"editor-back",
     .says = u"the same after an editor",
     .older = true,
     .hard = true,
     .box = editorBox0,
     .mark = writeBox,
     .editor = Editor::Source,
     .after = After::Back},
    {.name = u"confirm-asleep",
     .says = u"the button of the page to confirm wakes up late",
     .older = true,
     .hard = true,
     .box = plainBox,
     .after = After::ConfirmAsleep},
    {.name = u"share",
     .says = u"a button with another caption",
     .older = true,
     .hard = true,
     .box = plainBox,
     .buttons = otherCaption},
    {.name = u"box-shy",
     .says = u"grows only when it gets the focus",
     .older = false,
     .hard = true,
     .growsAtOnce = false},
    {.name = u"box-share",
     .says = u"a button with another caption",
     .older = false,
     .hard = true,
     .buttons = shareButton},
};

} // namespace

std::span<const CommentDesign> CommentDesigns() {
    return rows;
}

} // namespace qlm::practice
