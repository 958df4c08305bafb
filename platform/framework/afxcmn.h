#pragma once

/// The common controls.

#include "afxwin.h"
#include "controls/image_list.h"
#include "controls/list_ctrl.h"
#include "controls/slider_ctrl.h"
#include "controls/status_bar_ctrl.h"
