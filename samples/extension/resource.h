// Resource ids of the title block extension.
#ifndef TITLE_BLOCK_RESOURCE_H
#define TITLE_BLOCK_RESOURCE_H

#define IDD_TITLE_BLOCK 200
#define IDC_PROJECT 1001
#define IDC_DRAWN_BY 1002
#define IDC_CHECKED_BY 1003
#define IDC_TITLE_MESSAGE 1004

#define IDS_TITLE_PAGE 301
#define IDS_TOO_LONG 302

#endif
