//{{NO_DEPENDENCIES}}
// Used by sampler.rc
//
#define IDD_SAMPLER 300
#define IDC_LISTVIEW 1200
#define IDC_TREE 1201
#define IDC_SLIDER 1202
#define IDC_PROGRESS 1203
#define IDC_SPIN 1204
#define IDC_BUDDY 1205
#define IDC_DATE 1206
#define IDC_TAB 1207
#define IDC_CHECKS 1208
#define IDC_STATE 1209
