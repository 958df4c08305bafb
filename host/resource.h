// Identifiers of the sample host's resources, read by the compiler and by the resource compiler.
#pragma once

#define IDR_MAIN_FRAME 101       // icon, menu, accelerators and title of the main window
#define IDR_DEFAULT_DRAWING 102  // the drawing that comes with the program

#define ID_FILE_OPEN_DRAWING 40001
#define ID_FILE_EXIT 40002
#define ID_CHAIN_OPEN_DIALOG 40003
#define ID_CHAIN_GO_TO_DIALOG 40004
#define ID_DIMENSION_NEXT 40005
#define ID_DIMENSION_PREVIOUS 40006
#define ID_DIMENSION_PICK 40007
#define ID_HELP_ABOUT 40008

#define IDC_SHEET_VIEW 1
#define IDC_STATUS_BAR 2

#define IDS_DRAWING_FILES 1001
#define IDS_OPEN_DRAWING 1002
#define IDS_TITLE 1003
#define IDS_ABOUT 1004
#define IDS_DIALOG_FAILED 1005

#define IDS_PROMPT_NO_DIALOG 1010
#define IDS_PROMPT_IDLE 1011
#define IDS_PROMPT_PICK_LINK 1012
#define IDS_PROMPT_PICK_CLOSING 1013
#define IDS_PROMPT_EDIT_LINK 1014
#define IDS_PROMPT_EDIT_CLOSING 1015
#define IDS_PROMPT_EDIT 1016
#define IDS_PROMPT_DISTRIBUTION 1017
#define IDS_PROMPT_LOADED 1018
#define IDS_PROMPT_NO_NOMINAL 1019
