// SPDX-License-Identifier: MIT
#pragma once

#include "ControlArguments.h"

namespace qlm::practice {

struct World;

// The controls of requests that wait for an answer, each with what it reads of its line.
void SetIncoming(World& world, Arguments& args);
void SetSentRequests(World& world, Arguments& args);
void SetAcceptOutcome(World& world, Arguments& args);
void SetAcceptShare(World& world, Arguments& args);
void SetRequestList(World& world, Arguments& args);
void Vanish(World& world, Arguments& args);
void SetMobile(World& world, Arguments& args);

} // namespace qlm::practice
