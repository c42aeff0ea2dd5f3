// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// Edits of the scripts of the page in WebBrowser1, in place. Their own errors are ignored: a page that can't
// be edited stays as it is.

// The compose page can be left without a prompt. Called just before it is left.
void ChangeJavascriptMessaging(App& app);
// Kept ready; no step calls these two.
// The comment form doesn't grab the focus.
void RemoveCommentFocus(App& app);
// A deny link asks nothing that a run would have to answer.
void DefuseDenyPrompt(App& app);

} // namespace qlm
