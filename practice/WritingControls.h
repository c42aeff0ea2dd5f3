// SPDX-License-Identifier: MIT
#pragma once

#include "ControlArguments.h"

namespace qlm::practice {

struct World;

// The controls of what is written, each with what it reads of its line.
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
void SetBulletinForm(World& world, Arguments& args);
void SetStatusForm(World& world, Arguments& args);
void SetBulletinOutcome(World& world, Arguments& args);
void SetStatusOutcome(World& world, Arguments& args);
void RefuseBulletin(World& world, Arguments& args);
void RefuseStatus(World& world, Arguments& args);
void LimitBulletins(World& world, Arguments& args);
void LimitStatuses(World& world, Arguments& args);
void SetBulletins(World& world, Arguments& args);
void SetStatuses(World& world, Arguments& args);
void SetMail(World& world, Arguments& args);

} // namespace qlm::practice
