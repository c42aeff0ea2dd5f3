// SPDX-License-Identifier: MIT
#include "ComposeDesigns.h"

namespace qlm::practice {

namespace {

using Draft = ComposeDesign::Draft;
using Reply = ComposeDesign::Reply;

constexpr QStringView commonSubject =
    u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_txtSubject";
constexpr QStringView commonBody0 =
    u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_ctl00";
constexpr QStringView commonBody1 =
    u"ctl00_ctl00_ctl00_cpMain_cpMain_messagingMain_ComposeMessage_sendMessageCommonControl_ctl01";
constexpr QStringView newSubject = u"cpMain_cpMain_ctl03_sendMessageCommonControl_txtSubject";
constexpr QStringView newBody0 = u"cpMain_cpMain_ctl03_sendMessageCommonControl_ctl00";
constexpr QStringView newBody1 = u"cpMain_cpMain_ctl03_sendMessageCommonControl_ctl01";

constexpr QStringView severalButtons = uR"(<input type="submit" class="button" name="preview" value="Preview">
<input type="submit" class="button" name="sendTop" value="-Send-">
<input type="submit" class="button" name="sendButton" value="Send">)";
constexpr QStringView otherCaption =
    uR"(<input type="submit" class="button" name="sendButton" value="Deliver">)";
constexpr QStringView bareButton = uR"(<button class="button" name="sendButton">Send</button>)";
constexpr QStringView spanButton = uR"-(<span id="spanbtnSend" onclick="pressSpan()"
 data-on-click="set #butbtnSend disabled disabled; after 300ms submit #composeForm">
<button type="button" class="button" id="butbtnSend">Send</button></span>)-";
constexpr QStringView sleepingSpan =
    uR"-(<span id="spanbtnSend" onclick="pressSpan()" onmouseenter="wakeButton()" data-on-click="after 800ms remove #butbtnSend;
 after 800ms append #spanbtnSend &lt;button type=button class=button id=butbtnSend&gt;Send&lt;/button&gt;;
 after 800ms set #spanbtnSend data-on-click submit #composeForm">
<button type="button" class="button" id="butbtnSend" disabled>Send</button></span>)-";

constexpr ComposeDesign rows[] = {
    {.name = u"mailbody",
     .says = u"the oldest names",
     .older = true,
     .subject = u"Subject",
     .body = u"Mailbody"},
    {.name = u"main",
     .says = u"names with underscores",
     .older = true,
     .subject = u"ctl00_ctl00_Main_Main_sendMessageControl_subjectTextBox",
     .body = u"ctl00_ctl00_Main_Main_sendMessageControl_bodyTextBox"},
    {.name = u"skin",
     .says = u"names of a skin",
     .older = true,
     .subject = u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$subjectTextBox",
     .body = u"ctl00$ctl00$Main$messagingMain$SendMessage_Skin$bodyTextBox"},
    {.name = u"dollars",
     .says = u"the same without a skin, several buttons",
     .older = true,
     .subject = u"ctl00$ctl00$Main$messagingMain$SendMessage$subjectTextBox",
     .body = u"ctl00$ctl00$Main$messagingMain$SendMessage$bodyTextBox",
     .buttons = severalButtons},
    {.name = u"nested",
     .says = u"one level deeper, confirmed after a while",
     .older = true,
     .subject = u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$subjectTextBox",
     .body = u"ctl00$ctl00$ctl00$cpMain$cpMain$messagingMain$SendMessage$bodyTextBox",
     .reply = Reply::Late},
    {.name = u"common",
     .says = u"a plain box with an editor's name",
     .older = true,
     .subject = commonSubject,
     .body = commonBody0},
    {.name = u"common-second",
     .says = u"the other name of that box",
     .older = true,
     .subject = commonSubject,
     .body = commonBody1},
    {.name = u"frame",
     .says = u"an editor in a frame",
     .older = true,
     .subject = commonSubject,
     .body = commonBody0,
     .editor = Editor::Frame},
    {.name = u"frame-second",
     .says = u"the other frame; a line break becomes a block",
     .older = true,
     .subject = commonSubject,
     .body = commonBody1,
     .editor = Editor::Frame,
     .breaks = Breaks::Div},
    {.name = u"source",
     .says = u"the new editor with its source view",
     .older = false,
     .subject = newSubject,
     .body = newBody1,
     .editor = Editor::Source},
    {.name = u"span",
     .says = u"the same, sent by a span around the button",
     .older = false,
     .subject = newSubject,
     .body = newBody0,
     .editor = Editor::Source,
     .breaks = Breaks::Div,
     .buttons = spanButton},
    {.name = u"span-asleep",
     .says = u"the button wakes up after a first press",
     .older = false,
     .subject = newSubject,
     .body = newBody1,
     .editor = Editor::Source,
     .buttons = sleepingSpan},
    {.name = u"source-buttons",
     .says = u"several buttons, confirmed after a while",
     .older = false,
     .subject = newSubject,
     .body = newBody0,
     .editor = Editor::Source,
     .buttons = severalButtons,
     .reply = Reply::Late},
    {.name = u"frame-moved",
     .says = u"an old editor at the new address",
     .older = false,
     .subject = commonSubject,
     .body = commonBody1,
     .editor = Editor::Frame},
    {.name = u"deliver",
     .says = u"a button with another caption",
     .older = true,
     .hard = true,
     .subject = u"Subject",
     .body = u"Mailbody",
     .buttons = otherCaption},
    {.name = u"bare-button",
     .says = u"a button that is no input",
     .older = true,
     .hard = true,
     .subject = u"Subject",
     .body = u"Mailbody",
     .buttons = bareButton},
    {.name = u"draft-late",
     .says = u"its draft button comes late",
     .older = true,
     .hard = true,
     .subject = u"Subject",
     .body = u"Mailbody",
     .draft = Draft::Late},
    {.name = u"draft-never",
     .says = u"no draft button at all",
     .older = true,
     .hard = true,
     .subject = u"Subject",
     .body = u"Mailbody",
     .draft = Draft::Never},
    {.name = u"silent",
     .says = u"never says that it was sent",
     .older = true,
     .hard = true,
     .subject = u"Subject",
     .body = u"Mailbody",
     .reply = Reply::Silent},
    {.name = u"source-deliver",
     .says = u"a button with another caption",
     .older = false,
     .hard = true,
     .subject = newSubject,
     .body = newBody1,
     .editor = Editor::Source,
     .buttons = otherCaption},
    {.name = u"source-bare",
     .says = u"a button that is no input",
     .older = false,
     .hard = true,
     .subject = newSubject,
     .body = newBody1,
     .editor = Editor::Source,
     .buttons = bareButton},
    {.name = u"source-draft-late",
     .says = u"its draft button comes late",
     .older = false,
     .hard = true,
     .subject = newSubject,
     .body = newBody1,
     .editor = Editor::Source,
     .draft = Draft::Late},
    {.name = u"source-draft-never",
     .says = u"no draft button at all",
     .older = false,
     .hard = true,
     .subject = newSubject,
     .body = newBody1,
     .editor = Editor::Source,
     .draft = Draft::Never},
    {.name = u"source-silent",
     .says = u"never says that it was sent",
     .older = false,
     .hard = true,
     .subject = newSubject,
     .body = newBody1,
     .editor = Editor::Source,
     .reply = Reply::Silent},
};

} // namespace

std::span<const ComposeDesign> ComposeDesigns() {
    return rows;
}

} // namespace qlm::practice
