// Ids of the resource library. Shared by the toolkit's code and the resource scripts; numbers are fixed,
// since a resource library of another language is a file of its own.
#pragma once

#define IDS_CHOOSE_COLOR_ITEM 54161
#define IDS_BLACK 54184
#define IDS_LINETYPE_MANAGER_ITEM 54210
#define IDS_OTHER_ITEM 54211
#define IDS_DEFAULT_LINEWEIGHT 54401
