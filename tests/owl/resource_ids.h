// The numbers of the test program's resources, for the tests and for the resource compiler.
#define IDM_TEST_MENU 100
#define IDA_TEST_KEYS 101
#define IDB_TEST_BITMAP 102
#define IDS_TEST_TEXT 103
#define IDS_TEST_EMPTY_NEIGHBOUR 104
#define IDD_TEST_DIALOG 105
#define IDD_TEST_PAGE 106
#define IDD_TEST_PANE 108
#define IDI_TEST_ICON 107

#define CM_TEST_FIRST 201
#define CM_TEST_SECOND 202
#define CM_TEST_UNKNOWN 203

#define IDC_TEST_EDIT 301
#define IDC_TEST_LIST 302
#define IDC_TEST_COMBO 303
#define IDC_TEST_STATIC 304
#define IDC_TEST_SCROLL 305
#define IDC_TEST_CHECK 306
#define IDC_TEST_RADIO_A 307
#define IDC_TEST_RADIO_B 308
#define IDC_TEST_GROUP 309
#define IDC_TEST_PANE_CHECK 310
#define IDC_TEST_PANE_EDIT 311
