// Dialog templates of the dialog tests.
#ifndef DIALOGS_TEST_RESOURCE_H
#define DIALOGS_TEST_RESOURCE_H

#define IDD_ELASTIC 200
#define IDD_FIXED 201
#define IDD_PAGE 202
#define IDD_TABBED 203
#define IDD_TAB_PAGE 204

#define IDC_FIRST 1001
#define IDC_SECOND 1002
#define IDC_THIRD 1003
#define IDC_LIST 1004
#define IDC_BARE_LIST 1005
#define IDC_TABS 1006
#define IDC_APPLY 1007

#define IDS_TAB_NAME 300
#define IDS_NO_TAB_NAME 301

#endif
