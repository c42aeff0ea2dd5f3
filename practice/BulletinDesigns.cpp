// SPDX-License-Identifier: MIT
#include "BulletinDesigns.h"

namespace qlm::practice {

namespace {

using After = BulletinDesign::After;
using Choice = BulletinDesign::Choice;
using Comments = BulletinDesign::Comments;

constexpr QStringView severalButtons = uR"(<input type="hidden" name="postKind" value="post to all">
<input type="submit" class="button plain" name="preview" value="Preview">
<input type="submit" class="button" name="postButton" value="Post">
<input type="submit" class="button plain" name="discard" value="Discard post">)";
constexpr QStringView otherCaption =
    uR"(<input type="submit" class="button" name="postButton" value="Publish">)";
constexpr QStringView bareButton = uR"(<button class="button" name="postButton">Post</button>)";

constexpr BulletinDesign rows[] = {
    {.name = u"newer", .says = u"the editor with its source view"},
    {.name = u"older", .says = u"the same under older names", .older = true},
    {.name = u"buttons", .says = u"several buttons", .buttons = severalButtons},
    {.name = u"older-buttons", .says = u"several buttons", .older = true, .buttons = severalButtons},
    {.name = u"unticked",
     .says = u"comments are forbidden until one ticks them; the list of posts comes late",
     .comments = Comments::Unticked,
     .choice = Choice::Late},
    {.name = u"older-unticked",
     .says = u"comments are forbidden until one ticks them; the list of posts comes late",
     .older = true,
     .comments = Comments::Unticked,
     .choice = Choice::Late},
    {.name = u"no-comments", .says = u"nothing to tick", .comments = Comments::Missing},
    {.name = u"no-subject", .says = u"no subject", .hasSubject = false},
    {.name = u"plain", .says = u"a plain box without a source view", .editor = Editor::Plain},
    {.name = u"older-plain",
     .says = u"a plain box without a source view",
     .older = true,
     .editor = Editor::Plain},
    {.name = u"confirm", .says = u"a page to confirm", .after = After::Confirm},
    {.name = u"older-confirm", .says = u"a page to confirm", .older = true, .after = After::Confirm},
    {.name = u"silent", .says = u"never says that it was posted", .after = After::Silent},
    {.name = u"publish", .says = u"a button with another caption", .buttons = otherCaption},
    {.name = u"bare-button", .says = u"a button that is no input", .buttons = bareButton},
    {.name = u"no-boxes", .says = u"nothing to choose posts by", .choice = Choice::None},
    {.name = u"older-no-boxes", .says = u"nothing to choose posts by", .older = true, .choice = Choice::None},
};

} // namespace

std::span<const BulletinDesign> BulletinDesigns() {
    return rows;
}

} // namespace qlm::practice
