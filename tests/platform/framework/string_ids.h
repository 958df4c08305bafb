#pragma once

// String resources of the test program and of the second module.
#define IDS_IN_BOTH 2000
#define IDS_IN_SECOND_MODULE 2100
#define IDS_IN_PROGRAM 2208
#define IDS_NEIGHBOUR_IN_SECOND_MODULE 2209  // in the same block of 16 strings as IDS_IN_PROGRAM
#define IDS_FORMAT 2300
#define IDS_NOWHERE 2400
