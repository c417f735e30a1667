// lvx/lvx.h
//
// Everything that the library offers on this system.
#pragma once

#include "lvx/files/mru_list.h"
#include "lvx/files/mru_menu.h"
#include "lvx/files/path_string.h"
#include "lvx/files/settings.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/global_locker.h"
#include "lvx/platform/drives.h"
#include "lvx/platform/profile_directory.h"
#include "lvx/platform/windowed.h"
#include "lvx/runtime/atom.h"
#include "lvx/runtime/sync.h"
#include "lvx/store/object_factory.h"
#include "lvx/store/object_store.h"
#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"
#include "lvx/store/storable.h"
#include "lvx/text/error.h"
#include "lvx/text/function_parser.h"
#include "lvx/text/lexer.h"
#include "lvx/text/ownership.h"
#include "lvx/text/report.h"
#include "lvx/text/strings.h"
#include "lvx/text/token_stream.h"
