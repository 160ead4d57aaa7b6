//{{NO_DEPENDENCIES}}
// Used by settings.rc
//
#define IDD_GENERAL 201
#define IDD_COLORS 202
#define IDD_WELCOME 203
#define IDD_NAME 204
#define IDD_DONE 205
#define IDS_SHEET 210
#define IDS_WIZARD 211
#define IDC_NAME 1100
#define IDC_COLOR 1101
#define IDC_SUMMARY 1102
