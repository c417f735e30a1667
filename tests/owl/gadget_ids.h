// The commands of the tests of gadgets, for the tests and for the resource compiler.
#define CM_GADGET_SAVE 401
#define CM_GADGET_PRINT 402
#define CM_GADGET_HINT_ALONE 403
#define CM_GADGET_LONG_TIP 404
#define CM_GADGET_EMPTY_HINT 405
#define CM_GADGET_TWO_LINES 406
#define CM_GADGET_NO_TEXT 499

#define IDD_GADGET_DIALOG 450
