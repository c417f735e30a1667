// The numbers of menu, commands, dialogs and controls.
#pragma once

#define IDI_SKETCH 1
#define IDM_SKETCH 2
#define IDA_SKETCH 3
#define IDD_TURN 10
#define IDD_SKEW 11
#define IDD_LOOK 12
#define IDD_ABOUT 13
#define IDD_TEXT 14
#define IDD_PROPERTIES 15
#define IDD_SHAPE_PAGE 16
#define IDD_LINE_PAGE 17
#define IDD_FILL_PAGE 18
#define IDD_FONT_PAGE 19
#define IDD_PICTURE_PAGE 20
#define IDD_WIZARD 21
#define IDD_STEP_PAGE 22

#define CM_NEW 100
#define CM_OPEN 101
#define CM_SAVE 102
#define CM_SAVE_AS 103
#define CM_EXIT 104
#define CM_PRINT 105

#define CM_UNDO 110
#define CM_REDO 111
#define CM_DELETE 112
#define CM_DUPLICATE 113
#define CM_SELECT_NEXT 114
#define CM_SELECT_PREVIOUS 115
#define CM_SELECT_NONE 116
#define CM_TO_FRONT 117
#define CM_TO_BACK 118
#define CM_LOOK 119
#define CM_TEXT 120
#define CM_CUT 121
#define CM_COPY 122
#define CM_PASTE 123
#define CM_PROPERTIES 124
#define CM_SETTINGS 125

#define CM_TOOL_SELECT 130
#define CM_TOOL_RECTANGLE 131
#define CM_TOOL_ELLIPSE 132
#define CM_TOOL_POLYGON 133
#define CM_ADD_PICTURE 134
#define CM_TOOL_TEXT 135

#define CM_TURN_LEFT 140
#define CM_TURN_RIGHT 141
#define CM_TURN 142
#define CM_SKEW 143
#define CM_STRAIGHTEN 144

#define CM_ABOUT 150

// And the six numbers behind it: the recent files.
#define CM_RECENT 160

#define IDC_DEGREES 200
#define IDC_LEFTWARD 201
#define IDC_RIGHTWARD 202

// In the order of SeenCorner.
#define IDC_UPPER_LEFT 210
#define IDC_UPPER_RIGHT 211
#define IDC_LOWER_RIGHT 212
#define IDC_LOWER_LEFT 213
#define IDC_ACROSS 214
#define IDC_DOWN 215

#define IDC_LINE_WIDTH 220
#define IDC_LINE_STYLE 221
#define IDC_LINE_COLOUR 222
#define IDC_FILLED 223
#define IDC_FILL_PATTERN 224
#define IDC_FILL_COLOUR 225
#define IDC_LINE_COLOUR_OTHER 226
#define IDC_FILL_COLOUR_OTHER 227

#define IDC_WORDS 230
#define IDC_FONT 231
#define IDC_FONT_NAME 232
#define IDC_SAMPLE 233

#define IDC_LEFT 240
#define IDC_TOP 241
#define IDC_WIDTH 242
#define IDC_HEIGHT 243
#define IDC_NAME 244
#define IDC_PICTURE_SIZE 245

#define IDC_BACK 250
#define IDC_NEXT 251
#define IDC_STEP 252

// The parts of the frame.
#define IDC_VIEW 300
#define IDC_STATUS 301
#define IDC_BAR 302
