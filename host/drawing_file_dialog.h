#pragma once

#include <optional>

#include <afxwin.h>

#include "host/drawing_reader.h"

/// Lets the user choose a drawing file and reads it; nothing when the user cancels. Throws DrawingError.
std::optional<Drawing> AskForDrawing(CWnd& owner);
