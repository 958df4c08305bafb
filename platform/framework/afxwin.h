#pragma once

/// Windows, dialogs, standard controls, drawing, menus and the application object.

#include "afx.h"
#include "afxcoll.h"
#include "application/app.h"
#include "application/message_box.h"
#include "controls/button.h"
#include "controls/combo_box.h"
#include "controls/edit.h"
#include "controls/scroll_bar.h"
#include "controls/static.h"
#include "graphics/dc.h"
#include "graphics/gdi_object.h"
#include "graphics/menu.h"
#include "graphics/window_dc.h"
#include "window/data_exchange.h"
#include "window/dialog.h"
#include "window/frame.h"
#include "window/message_map.h"
#include "window/window_message_map.h"
#include "window/wnd.h"
