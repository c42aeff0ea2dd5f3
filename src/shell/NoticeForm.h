// SPDX-License-Identifier: MIT
#pragma once

#include "shell/Form.h"

#include <vector>

namespace qlm {

// The words of one small notice form. text holds the paragraphs, separated by line breaks; heading may be
// empty.
struct Notice {
    const char* name;
    const char16_t* title;
    const char16_t* heading;
    const char16_t* text;
    bool dontShowAgain; // with that box and an OK button; otherwise with a Close button
};

const std::vector<Notice>& Notices();
// nullptr when no notice has that name.
const Notice* FindNotice(const QString& name);

// A form that only tells something.
void BuildNotice(Form& form, const Notice& notice);

} // namespace qlm
