// The numbers of the resources, for the program and for the resource compiler.
#define IDB_LEFT 101
#define IDB_FRAME 102
#define IDB_PLAIN 103
