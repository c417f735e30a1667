// lvx/platform/export.h
//
// LVX_EXPORT marks what hosts may use; everything else stays inside the shared library. LVX_HIDDEN marks what
// stays inside although it belongs to a class that hosts may use.
#pragma once

#ifdef _WIN32
#ifdef LVX_BUILDING_LIBRARY
#define LVX_EXPORT __declspec(dllexport)
#else
#define LVX_EXPORT __declspec(dllimport)
#endif
#define LVX_HIDDEN
#else
#define LVX_EXPORT __attribute__((visibility("default")))
#define LVX_HIDDEN __attribute__((visibility("hidden")))
#endif
