// lvx/platform/posix/gsf_object.h
//
// A reference to an object of libgsf, dropped with it.
#pragma once

#include <glib-object.h>

#include <memory>

namespace lvx::platform {

struct GsfUnref {
    void operator()(void* object) const { g_object_unref(object); }
};

template <class T>
using GsfPtr = std::unique_ptr<T, GsfUnref>;

}  // namespace lvx::platform
