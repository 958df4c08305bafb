// Identifiers of every resource that the module takes from its resource library, read by the compiler and by the
// resource compiler. The numbers are a contract: a library that replaces ModuleSkin supplies the same ones.
#pragma once

// Dialog templates
#define IDD_CALC_TOL 103         // calculation dialog
#define IDD_EDIT_TOL 1007        // link tolerance
#define IDD_WEIGHT 1010          // weights of the links
#define IDD_EDIT_CLOSE_TOL 1011  // closing-link tolerance
#define IDD_VARIABLE 1012        // distribution parameters

// Menus
#define IDR_CALC_TOL_MENU 103          // menu bar of the calculation dialog
#define IDR_CHAIN_CONTEXT_MENU 1009    // first submenu: context menu of the chain list
#define IDR_CLOSING_CONTEXT_MENU 1010  // first submenu: context menu of the closing list

// Bitmaps
#define IDB_KIND_2 1000          // dimension without tolerance
#define IDB_CLOSING_IMAGES 1001  // strip of 25 x 16 images, magenta is transparent
#define IDB_KIND_3 1002
#define IDB_KIND_1 1003
#define IDB_CHAIN_IMAGES 1004  // strip of 16 x 16 images, magenta is transparent

// Controls of the calculation dialog
#define IDC_CHAIN_LIST 1000
#define IDC_CLOSING_LIST 1002
#define IDC_CHAIN_DIAGRAM 1035

// Controls of the link tolerance dialog
#define IDC_LINK_APPLY 1003
#define IDC_LINK_OK 1004
#define IDC_LINK_CANCEL 1005
#define IDC_LINK_DIRECTION 1006
#define IDC_LINK_UPPER_DEV 1007
#define IDC_LINK_LOWER_DEV 1008
#define IDC_LINK_WEIGHT_FIXED 1009
#define IDC_LINK_CAPTION 1010
#define IDC_LINK_NOMINAL 1011
#define IDC_LINK_PICTURE 1014
#define IDC_LINK_NAME 1015
#define IDC_LINK_FILTER 1016
#define IDC_LINK_FIELD 1017

// Controls of the weight dialog
#define IDC_WEIGHT_LIST 1018
#define IDC_WEIGHT_NAME 1019
#define IDC_WEIGHT_SLIDER 1021
#define IDC_WEIGHT_VALUE 1022
#define IDC_WEIGHT_PICTURE 1024

// Controls of the closing-link tolerance dialog
#define IDC_CLOSING_NOMINAL 1025
#define IDC_CLOSING_CAPTION 1026
#define IDC_CLOSING_FIELD 1027
#define IDC_CLOSING_FILTER 1028
#define IDC_CLOSING_UPPER_DEV 1029
#define IDC_CLOSING_LOWER_DEV 1030
#define IDC_CLOSING_OK 1031
#define IDC_CLOSING_CANCEL 1032
#define IDC_CLOSING_PICTURE 1033

// Controls of the distribution parameters dialog (caption, nominal, picture and name share the link dialog's numbers)
#define IDC_VARIABLE_CAPTION 1010
#define IDC_VARIABLE_NOMINAL 1011
#define IDC_VARIABLE_PICTURE 1014
#define IDC_VARIABLE_NAME 1015
#define IDC_VARIABLE_REDRAW 1036
#define IDC_VARIABLE_LAW 1037
#define IDC_VARIABLE_MEAN 1038
#define IDC_VARIABLE_OK 1039
#define IDC_VARIABLE_CANCEL 1040
#define IDC_VARIABLE_SIGMA 1041
#define IDC_VARIABLE_PLOT 1042

// Commands of the calculation dialog's menu bar
#define ID_LINK_ADD 32772
#define ID_CHAIN_RESERVED 32774  // enabled with the link commands, has no handler in the module
#define ID_CHAIN_WEIGHTS 32781
#define ID_LINK_EDIT 32783
#define ID_LINK_DELETE 32784
#define ID_CLOSING_ADD 32785
#define ID_METHOD_PROBABILISTIC 32787
#define ID_METHOD_ANALYTIC 32788
#define ID_LINK_DELETE_ALL 32789
#define ID_CLOSING_EDIT 32793
#define ID_CLOSING_DELETE 32795
#define ID_LINK_DISTRIBUTION 32796
#define ID_CLOSING_DISTRIBUTION 32797

// Commands of the context menus
#define ID_CONTEXT_LINK_DELETE 32777
#define ID_CONTEXT_LINK_EDIT 32778
#define ID_CONTEXT_LINK_WEIGHT 32779
#define ID_CONTEXT_LINK_ADD 32780
#define ID_CONTEXT_LINK_DELETE_ALL 32782
#define ID_CONTEXT_CLOSING_ADD 32790
#define ID_CONTEXT_CLOSING_DELETE 32791
#define ID_CONTEXT_CLOSING_EDIT 32792
#define ID_CONTEXT_LINK_DISTRIBUTION 32798
#define ID_CONTEXT_CLOSING_DISTRIBUTION 32799

// Strings: column headings
#define IDS_COLUMN_LINK 1083
#define IDS_COLUMN_NOMINAL 52695
#define IDS_COLUMN_FIELD 52696
#define IDS_COLUMN_WEIGHT_FIXED 52697
#define IDS_COLUMN_WEIGHT 52698
#define IDS_COLUMN_UPPER_DEV 52707
#define IDS_COLUMN_LOWER_DEV 52708

// Strings: messages
#define IDS_UPPER_DEV_MALFORMED 51691
#define IDS_LOWER_DEV_MALFORMED 51692
#define IDS_DEVIATIONS_INCONSISTENT 51693
#define IDS_MEAN_MISSING 52699
#define IDS_MEAN_OUTSIDE_FIELD 52700
#define IDS_NAME_MISSING 52703
#define IDS_DEVIATIONS_MISSING 52704

// Strings: pictures
#define IDS_UPPER_LIMIT 52701
#define IDS_LOWER_LIMIT 52702
#define IDS_DIAGRAM_CAPTION 52706
#define IDS_MISMATCH_LINE_1 52709
#define IDS_MISMATCH_LINE_2 52710
#define IDS_MISMATCH_LINE_3 52711

// Strings: entries and labels
#define IDS_NOMINAL_CAPTION 52705
#define IDS_WEIGHT_FIXED_YES 52712
#define IDS_WEIGHT_FIXED_NO 52713
#define IDS_INCREASING 52718
#define IDS_DECREASING 52719
#define IDS_LAW_UNIFORM 52720
#define IDS_LAW_NORMAL 52721
#define IDS_LAW_TRIANGULAR 52722
