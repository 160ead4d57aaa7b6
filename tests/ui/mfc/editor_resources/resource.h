// Ids of the script that an editor wrote.
#define IDD_LISTS 201
#define IDR_PICTURE 202
#define IDR_BAR 203
#define IDC_KINDS 1001
#define IDC_TRACK 1002
#define IDS_WIDE 301
#define IDS_WESTERN 302
#define IDS_CHINESE 303
