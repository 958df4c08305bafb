#pragma once

#define IDD_PLAIN 200
#define IDD_VISIBLE 201
#define IDC_FIRST 210
#define IDC_SECOND 211
#define IDC_CHECK 212
#define IDM_COMMANDS 220
#define IDB_STRIP 230
#define IDS_MESSAGE 240
#define IDS_ONLY_IN_MODULE 241
#define IDR_FRAME 250
#define ID_DRAW 32900
#define ID_ERASE 32901
