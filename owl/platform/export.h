// owl/platform/export.h
//
// OWL_EXPORT marks what hosts may use; everything else stays inside the shared library.
#pragma once

#ifdef _WIN32
#ifdef OWL_BUILDING_LIBRARY
#define OWL_EXPORT __declspec(dllexport)
#else
#define OWL_EXPORT __declspec(dllimport)
#endif
#else
#define OWL_EXPORT __attribute__((visibility("default")))
#endif
