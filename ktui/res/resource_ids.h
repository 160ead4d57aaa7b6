// Ids of the library's own resources. Shared by code and resource script.
#pragma once

#define IDB_DROP_ARROWS 108
#define IDB_ARROWHEADS 1003
#define IDB_BLOCKS 1004
#define IDI_DIALOG 1017
#define IDS_APPLICATION_TITLE 57344
