#include "property_desk.h"

namespace propdlg_test {

DEFINE_RESPONSE_TABLE1(Page, LVXPropertyPage)
    EV_COMMAND(CM_PAGE, CmPage),
END_RESPONSE_TABLE;

DEFINE_RESPONSE_TABLE1(Dialog, TPropertyDialog)
    EV_COMMAND(CM_DIALOG, CmDialog),
END_RESPONSE_TABLE;

}  // namespace propdlg_test
