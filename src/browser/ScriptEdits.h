// SPDX-License-Identifier: MIT
#pragma once

namespace qlm {

class App;

// Edits of the scripts of the page in WebBrowser1, in place. Their own errors are ignored: a page that can't
// be edited stays as it is.

// The compose page asks nothing any more when it is left; called just before that. The control would not show
// the prompt, so a script that the engine doesn't run again loses nothing.
void ChangeJavascriptMessaging(App& app);
// Kept ready; no step calls these two.
// The comment form doesn't grab the focus.
void RemoveCommentFocus(App& app);
// A deny link asks nothing that a run would have to answer.
void DefuseDenyPrompt(App& app);

} // namespace qlm
