#pragma once

#define IDD_DIALOG 100
#define IDD_BARE 101
#define IDD_SIDE 102
#define IDD_RESIZABLE 103
#define IDD_CHILD 104
#define IDD_FIELDS 110
#define IDD_LIST 111
#define IDD_NOTHING 112

#define IDC_FIRST 200
#define IDC_LABEL 201
#define IDC_SECOND 202
#define IDC_LAST 203
#define IDC_LIST 204
#define IDC_COMBO 205
#define IDC_BOX 206
#define IDC_NO_PREFIX 207
#define IDC_EXTRA 208
#define IDC_LINES 209
#define IDC_CHOICE 210

#define IDB_CELS 300
#define IDB_MASKED 301

#define CM_PAGE 500
#define CM_DIALOG 501
