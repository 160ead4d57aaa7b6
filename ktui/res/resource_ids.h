// Ids of the library's own resources. Shared by code and resource script. Private to the library.
#pragma once

#define IDB_DROP_ARROWS 108
#define IDB_ARROWHEADS 1003
#define IDB_BLOCKS 1004
#define IDB_LINK_ARROW 1021
#define IDD_TASK_DIALOG 1020
#define IDI_DIALOG 1017
#define IDI_TRUE_TYPE_FONT 1018
#define IDI_SHX_FONT 1019
// The larger pictures: this plus their side, 20, 24 or 32; 25, 30 or 40 of the arrow.
#define IDB_LARGER_ARROWHEADS 3000
#define IDB_LARGER_BLOCKS 3100
#define IDB_LARGER_LINK_ARROWS 3200
#define IDS_APPLICATION_TITLE 57344
