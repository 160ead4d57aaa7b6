// Ids of the class layer's own dialogs and texts.
#ifndef KMFC_RES_KMFC_IDS_H
#define KMFC_RES_KMFC_IDS_H

#define IDD_NEWKIND 30721
#define IDC_NEWKIND_LIST 1000

#define IDD_PRINTING 30722
#define IDC_PRINTING_DOCUMENT 1001
#define IDC_PRINTING_DEVICE 1002
#define IDC_PRINTING_PORT 1003
#define IDC_PRINTING_PAGE 1004
#define IDS_PRINT_PAGES 30750  // of the print preview, for one page and for two
#define IDS_PRINT_PAGE 30751
#define IDS_PRINT_FILES 30752  // filter of files that are printed to
#define IDS_PRINT_FAILED 30753
#define IDS_PREVIEW_FAILED 30754

// Tips of caption buttons.
#define IDS_PANE_CLOSE 30740
#define IDS_PANE_AUTOHIDE 30741
#define IDS_PANE_MENU 30742
// Items of a pane's menu.
#define IDS_PANE_FLOAT 30743
#define IDS_PANE_DOCK 30744
#define IDS_PANE_HIDE 30745
// Of toolbars: the button for what has no room, and what assistive programs call pressing a button and
// opening a menu.
#define IDS_BAR_MORE 30746
#define IDS_BAR_PRESS 30747
#define IDS_BAR_OPEN 30748
#define IDS_STATUS_BAR 30749  // the name of a status bar for them
// Of a maximised document in a menu bar.
#define IDS_DOCUMENT_MENU 30755
#define IDS_DOCUMENT_MINIMIZE 30756
#define IDS_DOCUMENT_RESTORE 30757
#define IDS_DOCUMENT_CLOSE 30758

#endif
