// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace qlm {

// An account's e-mail is also the name of its folder and the beginning of its line in the account file.

// Why the text can be none, in words for the user; empty when it can.
QString AccountNameProblem(const QString& email);
// The name of its folder: the e-mail itself, or what comes nearest to it for one that was stored elsewhere
// and would lead out of the folder of all accounts, or into none.
QString AccountFolderName(const QString& email);

} // namespace qlm
