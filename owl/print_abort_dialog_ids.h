// The numbers in the template of PrintAbortDialog, for its source and for the resource compiler.
#define IDD_OWL_PRINT_ABORT 32500
#define IDC_OWL_PRINT_TITLE 101
#define IDC_OWL_PRINT_DEVICE 102
#define IDC_OWL_PRINT_PAGE 103
