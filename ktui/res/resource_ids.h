// Ids of the library's own resources. Shared by code and resource script. Private to the library.
#pragma once

#define IDB_DROP_ARROWS 108
#define IDB_ARROWHEADS 1003
#define IDB_BLOCKS 1004
#define IDI_DIALOG 1017
#define IDI_TRUE_TYPE_FONT 1018
#define IDI_SHX_FONT 1019
// The larger strips: this plus the side of their pictures, 20, 24 or 32.
#define IDB_LARGER_ARROWHEADS 3000
#define IDB_LARGER_BLOCKS 3100
#define IDS_APPLICATION_TITLE 57344
