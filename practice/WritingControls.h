// SPDX-License-Identifier: MIT
#pragma once

#include "ControlArguments.h"

namespace qlm::practice {

struct World;

// The controls of messages and comments, each with what it reads of its line.
void SetMessageForm(World& world, Arguments& args);
void SetCommentForm(World& world, Arguments& args);
void SetMessageOutcome(World& world, Arguments& args);
void SetCommentOutcome(World& world, Arguments& args);
void SetMessageShare(World& world, Arguments& args);
void SetCommentShare(World& world, Arguments& args);
void RefuseMessage(World& world, Arguments& args);
void RefuseComment(World& world, Arguments& args);
void LimitMessages(World& world, Arguments& args);
void LimitComments(World& world, Arguments& args);
void SetMail(World& world, Arguments& args);

} // namespace qlm::practice
