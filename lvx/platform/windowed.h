// lvx/platform/windowed.h
//
// The headers of what needs windows, for lvx.h: all of them on Windows, none elsewhere.
#pragma once

#ifdef _WIN32

#include "lvx/controls/bitmaps.h"
#include "lvx/controls/button_gadget.h"
#include "lvx/controls/centred_dialog.h"
#include "lvx/controls/combo_box.h"
#include "lvx/controls/control_bar.h"
#include "lvx/controls/custom_colour_dialog.h"
#include "lvx/controls/edit.h"
#include "lvx/controls/enabler_dialog.h"
#include "lvx/controls/file_dialogs.h"
#include "lvx/controls/float_edit.h"
#include "lvx/controls/font_dialog.h"
#include "lvx/controls/int_edit.h"
#include "lvx/controls/list_box.h"
#include "lvx/controls/static.h"
#include "lvx/controls/yn_dialog.h"
#include "lvx/drawing/bitmap.h"
#include "lvx/drawing/brush.h"
#include "lvx/drawing/device.h"
#include "lvx/drawing/font.h"
#include "lvx/drawing/metafile.h"
#include "lvx/drawing/pen.h"
#include "lvx/drawing/port.h"
#include "lvx/drawing/printer.h"
#include "lvx/drawing/region.h"
#include "lvx/drawing/stock_tools.h"
#include "lvx/images/gl_bitmap.h"
#include "lvx/runtime/help_file.h"
#include "lvx/runtime/notifier.h"
#include "lvx/runtime/wait_cursor.h"

#endif
