#pragma once

#include "grid/grid_notifications.h"

#include <afxwin.h>

#include <cstdint>

/// What every in-place editor keeps: the cell it stands on, and the key that ended it.
struct EditedCell
{
    RowKey rowKey = nullptr;
    std::int32_t column = -1;
    UINT endingKey = 0;       // 0: the editor lost the focus otherwise
    bool isReported = false;  // the grid has been told that the editor closes
    bool isMade = false;      // its window is complete: from here on the editor deletes itself with it
};

/// Ends an editor by a key: stores it and gives the focus to the grid, so that the focus loss closes the editor. The
/// editor may be gone on return. Does nothing for one that has reported its end.
void EndByKey(CWnd& editor, EditedCell& cell, UINT key);

/// Tells the grid, the editor's parent, that the editor closes. The editor may be gone on return.
/// @param code  kGridEditClosed, kGridListClosed or kGridButtonClosed
/// @return      false when the grid had been told before: whoever was told may have given the keyboard back to the
///              editor, which then loses it once more with its window
bool ReportEnd(CWnd& editor, EditedCell& cell, UINT code, std::int32_t extra);

/// Widens the editor when its text has outgrown it, up to the right edge of the grid.
/// @return  whether it became wider
bool GrowToText(CWnd& editor);
