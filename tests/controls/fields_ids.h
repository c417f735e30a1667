// The numbers of fields.rc.
#pragma once

#define IDD_FIELDS 600
#define IDC_FIELD 601
#define IDC_PLAIN_FIELD 602
#define IDC_LIST 603
#define IDC_COMBO 604
#define IDC_LABEL 605
