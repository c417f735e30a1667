// The numbers that the resources of the toolbars' tests and the tests share.
#pragma once

// Commands and, by the same numbers, pictures and texts.
#define CM_SAVE 401
#define CM_GRID 402
#define CM_LEFT 403
#define CM_CENTRE 404
#define CM_RIGHT 405
#define CM_TOP 406

// A picture of every colour beside every other, 21 by 18 pixels.
#define IDB_COLOURS 501
// One that is as large as can be, and two that are larger.
#define IDB_LARGEST 502
#define IDB_TOO_WIDE 503
#define IDB_TOO_HIGH 504

#define IDD_TOOLBAR 601
