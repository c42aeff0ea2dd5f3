// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// More than any "email;password" has, in characters.
constexpr qsizetype LongestAccountLine = 2000;

// An account's e-mail is also the name of its folder and the beginning of its line in the account file.

// Why the text can be none, in words for the user; empty when it can.
QString AccountNameProblem(const QString& email);
// Why the account can't be kept with that password, in words for the user; empty when it can.
QString AccountProblem(const QString& email, const QString& password);
// The name of its folder: the e-mail itself, or what comes nearest to it for one that was stored elsewhere
// and would lead out of the folder of all accounts, or into none.
QString AccountFolderName(const QString& email);

} // namespace qlm
