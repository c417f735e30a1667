// The numbers of the program's resources, for pages.cpp and for the resource compiler.
#define IDM_PAGES 100
#define IDA_PAGES 101

#define CM_NEW 201
#define CM_OPEN 202
#define CM_EXIT 203

// Recent files have those from CM_RECENT + 1 to CM_RECENT + 6.
#define CM_RECENT 5000
