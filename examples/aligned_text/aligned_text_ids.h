// The numbers of the program's resources, for the program and for the resource compiler. Those of commands
// are also those of their pictures and texts.
#define CM_LEFT 101
#define CM_CENTRE 102
#define CM_RIGHT 103
#define CM_FRAME 104
#define CM_PLAIN 105

#define IDM_ALIGNED_TEXT 201
#define IDA_ALIGNED_TEXT 202
