//{{NO_DEPENDENCIES}}
// Used by viewer.rc
//
#define IDR_MAINFRAME 128
