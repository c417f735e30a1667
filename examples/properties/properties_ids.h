// What the program and its resources call things by.
#pragma once

#define IDM_PROPERTIES 100
#define IDA_PROPERTIES 101
#define CM_PROPERTIES 110
#define CM_EXIT 111

#define IDD_PROPERTIES 200
#define IDD_LINE 201
#define IDD_FILL 202
#define IDC_WIDTH 210
#define IDC_RED 211
#define IDC_GREEN 212
#define IDC_BLUE 213
