// lvx/platform/posix/element_list.h
//
// The elements of a storage, as IStorage::EnumElements hands them out.
#pragma once

#include <vector>

#include "lvx/platform/posix/element.h"
#include "lvx/platform/structured_storage.h"

namespace lvx::platform {

/// A list of `elements` as they are now, with one reference for the caller; also past the storage's end.
IEnumSTATSTG* make_element_list(std::vector<Element> elements);

/// A copy for CoTaskMemFree, or null if there is no memory.
LPOLESTR copy_name(const wchar_t* name);

}  // namespace lvx::platform
