// Ids of the navigation file dialog in the resource library. Shared by the toolkit's code and the resource
// script; numbers are fixed.
#pragma once

#define IDD_NAV_FILE 57010
#define IDC_NAV_LOCATE 57011
#define IDC_NAV_FIND 57012
#define IDC_NAV_OPTIONS 57013
#define IDC_NAV_SECURITY 57014
#define IDC_NAV_PLACES 57015
#define IDD_NAV_FILE_PREVIEW 57020
#define IDC_NAV_PREVIEW 57022
#define IDD_NAV_FILE_PLACES 57026
#define IDS_NAV_FOLDER 54051
#define IDS_NAV_OPEN 54052
#define IDS_NAV_OPEN_READ_ONLY 54053
#define IDS_NAV_PARTIAL_OPEN 54054
#define IDS_NAV_PARTIAL_OPEN_READ_ONLY 54055
#define IDS_NAV_OPEN_IMPERIAL 54056
#define IDS_NAV_OPEN_METRIC 54057
#define IDS_NAV_NAME_NOT_VALID 54058
#define IDS_NAV_LOCATION_NOT_USABLE 54059
// The place of the platform's own controls in a template (stc32).
#define IDC_NAV_PLATFORM_CONTROLS 1119
