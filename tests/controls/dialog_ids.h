// The numbers that the resources of the dialogs' tests and the tests share.
#pragma once

// Of 200 by 100 pixels or so, in bold.
#define IDD_BOLD 101
#define IDD_NORMAL 102
// One step above normal.
#define IDD_MEDIUM 103
#define IDD_WITHOUT_FONT 104
// For a dialog for files: a pane with a check box.
#define IDD_PANE 105

#define IDC_LABEL 201
#define IDC_WIDE_BAR 202
#define IDC_HIGH_BAR 203
#define IDC_GREY_RECT 205
#define IDC_WHITE_RECT 206
#define IDC_BLACK_FRAME 207
#define IDC_GREY_FRAME 208
#define IDC_WHITE_FRAME 209
#define IDC_FIELD 210
#define IDC_BOX 211
#define IDC_PANE_BOX 212

// A string resource: a hint, and a tip.
#define CM_TIPPED 301
