// lvx/store/type_name.h
//
// Run-time type names in plain source form. They go into documents, so they are the same on every compiler.
#pragma once

#include <typeinfo>

namespace lvx::store {

/// The name of `type` as it stands in source, with its namespaces: "LVXUtilities::DIBitmap". Stays valid
/// until the process ends. May be asked by several threads at once.
const char* type_name(const std::type_info& type);

}  // namespace lvx::store
