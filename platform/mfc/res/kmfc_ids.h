// Ids of the class layer's own dialogs.
#ifndef KMFC_RES_KMFC_IDS_H
#define KMFC_RES_KMFC_IDS_H

#define IDD_NEWKIND 30721
#define IDC_NEWKIND_LIST 1000

#endif
