#pragma once

#include "host/player/step_handler.h"

/// Makes the call that a step `call` or `on` names, now. Throws std::runtime_error when it can't be made.
void MakeCall(PlayState& play, const Step& step);
