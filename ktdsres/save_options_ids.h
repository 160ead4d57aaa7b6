// Ids of save_options.rc: the sheet of save options. Shared by the toolkit's code and the script; numbers are
// fixed.
#pragma once

#define IDS_INDEX_NONE 54031
#define IDS_INDEX_LAYERS 54032
#define IDS_INDEX_SPACES 54033
#define IDS_INDEX_BOTH 54034
#define IDS_SAVE_OPTIONS 54035
#define IDD_DWG_PAGE 57080
#define IDC_DWG_PROXY_GRAPHICS 57081
#define IDC_DWG_INDEX 57082
#define IDC_DWG_FORMAT 57083
#define IDD_DXF_PAGE 57090
#define IDC_DXF_TEXT 57091
#define IDC_DXF_BINARY 57092
#define IDC_DXF_PREVIEW 57094
#define IDC_DXF_OBJECT 57095
#define IDC_DXF_PRECISION 57096
#define IDM_SAVE_OPTIONS_HELP 57670
