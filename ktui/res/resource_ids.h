// Ids of the library's own resources. Shared by code and resource script.
#pragma once

#define IDB_DROP_ARROWS 108
#define IDI_DIALOG 1017
#define IDS_APPLICATION_TITLE 57344
