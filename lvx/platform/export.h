// lvx/platform/export.h
//
// LVX_EXPORT marks what hosts may use; everything else stays inside the shared library.
#pragma once

#ifdef _WIN32
#ifdef LVX_BUILDING_LIBRARY
#define LVX_EXPORT __declspec(dllexport)
#else
#define LVX_EXPORT __declspec(dllimport)
#endif
#else
#define LVX_EXPORT __attribute__((visibility("default")))
#endif
