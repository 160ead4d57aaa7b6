//{{NO_DEPENDENCIES}}
// Used by shapes.rc
//
#define IDS_CIRCLE 6001
#define IDD_SHAPE 6002
#define IDC_RADIUS 6003
