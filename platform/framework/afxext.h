#pragma once

/// The extended combo box.

#include "afxcmn.h"
#include "controls/combo_box_ex.h"
