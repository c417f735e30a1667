// The numbers of the program's resources, for the program and for the resource compiler.
#define CM_RED 101
#define CM_GREEN 102
#define CM_BLUE 103
#define CM_CLEAR 104
