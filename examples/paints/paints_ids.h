// The numbers of the program's resources.
#pragma once

#define IDD_PAINTS 100
#define IDC_PAINTS 101
#define IDC_MIX 102
#define IDC_LITRES 103
#define IDC_COATS 104
#define IDC_FINISH 105
#define IDC_ORDER 106
#define IDC_ANSWER 107
