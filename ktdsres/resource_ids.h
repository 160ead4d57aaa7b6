// Ids of the resource library. Shared by the toolkit's code and the resource scripts; numbers are fixed,
// since a resource library of another language is a file of its own.
#pragma once

#define IDS_CHOOSE_COLOR_ITEM 54161
#define IDS_BLACK 54184
#define IDS_LINETYPE_MANAGER_ITEM 54210
#define IDS_OTHER_ITEM 54211
#define IDS_DEFAULT_LINEWEIGHT 54401
#define IDS_R13_DRAWING 54402
#define IDS_R14_DRAWING 54403
#define IDS_2000_DRAWING 54404
#define IDS_2004_DRAWING 54405
#define IDS_2007_DRAWING 54406
#define IDS_2010_DRAWING 54407
#define IDS_DRAWING_TEMPLATE 54408
#define IDS_TEMPLATE 54409
#define IDS_DRAWING_STANDARD 54410
#define IDS_STANDARD 54411
#define IDS_2013_DRAWING 54412
