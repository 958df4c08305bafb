#pragma once

#include <afxwin.h>

#include "host/chain_protocol.h"
#include "host/drawing_objects.h"

/// What the status line tells the user to do next.
/// @param loaded  the dimension in the tolerance dialog, or null
CString PromptFor(ChainRound round, const DrawingObject* loaded);

/// Why a dimension can't be loaded.
CString NoNominalPrompt(const DrawingObject& object);
