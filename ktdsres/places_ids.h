// Ids of places.rc: the Places list of the file dialogs. Shared by the toolkit's code and the script; numbers
// are fixed.
#pragma once

#define IDM_PLACE_REMOVE 1125
#define IDM_PLACE_ADD_CURRENT 1126
#define IDM_PLACE_ADD 1127
#define IDM_PLACE_PROPERTIES 1128
#define IDM_PLACE_RESTORE 1129
#define IDS_PLACE_PROPERTIES 54501
#define IDS_PLACE_PATH_INVALID 54502
#define IDS_PLACE_REMOVE_SURE 54503
#define IDS_PLACE_REMOVE 54504
#define IDS_PLACE_ADD_CURRENT 54505
#define IDS_PLACE_ADD 54506
#define IDS_PLACE_EDIT 54507
#define IDS_PLACES_RESTORE 54508
#define IDS_PLACES_SAVE 54509
#define IDS_PLACE_HISTORY 54510
#define IDD_PLACE 57025
#define IDC_PLACE_DISPLAY 57026
#define IDC_PLACE_PATH 57027
