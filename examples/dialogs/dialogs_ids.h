// The numbers of the program's resources, for the program and for the resource compiler.
#define CM_SETTINGS 101
#define CM_FONT 102
#define CM_OPEN 103
#define CM_DELETE 104

#define IDM_DIALOGS 201
#define IDD_SETTINGS 202
#define IDC_LOUD 203
