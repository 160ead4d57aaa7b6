// Ids of the class layer's own dialogs and texts.
#ifndef KMFC_RES_KMFC_IDS_H
#define KMFC_RES_KMFC_IDS_H

#define IDD_NEWKIND 30721
#define IDC_NEWKIND_LIST 1000

// Tips of caption buttons.
#define IDS_PANE_CLOSE 30740
#define IDS_PANE_AUTOHIDE 30741
#define IDS_PANE_MENU 30742
// Items of a pane's menu.
#define IDS_PANE_FLOAT 30743
#define IDS_PANE_DOCK 30744
#define IDS_PANE_HIDE 30745

#endif
