// The numbers of the program's resources, for hello.cpp and for the resource compiler.
#define IDM_HELLO 100
#define IDA_HELLO 101
#define IDI_HELLO 102
#define IDD_GREET 103

#define CM_GREET 201
#define CM_CLEAR 202
#define CM_EXIT 203

#define IDC_NAME 301
#define IDC_LOUD 302
