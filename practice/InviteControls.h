// SPDX-License-Identifier: MIT
#pragma once

#include "ControlArguments.h"

namespace qlm::practice {

struct World;

void SetInviteForm(World& world, Arguments& args);
void SetInviteCaptcha(World& world, Arguments& args);
void SetPublicEvent(World& world, Arguments& args);

} // namespace qlm::practice
