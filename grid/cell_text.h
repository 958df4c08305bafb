#pragma once

#include <afxwin.h>

/// How the text of a cell is drawn, in the grid and in an in-place list; whether it is centred comes on top.
constexpr UINT kCellTextFormat = DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_EXTERNALLEADING;
