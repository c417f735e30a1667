// lvx/platform/global_memory.h
//
// Global memory: blocks that are known by a handle and reached through a lock. On Windows the system's calls;
// elsewhere the same calls with the same results, for the moveable kinds alone. Any thread may call them.
// Off Windows they do not: tell why they failed (there is no last error), move or discard a block, or hand
// out fixed blocks, whose handle would be their address.
#pragma once

#ifdef _WIN32

#include <windows.h>

#else

#include <cstddef>

#include "lvx/platform/export.h"

using HGLOBAL = void*;

inline constexpr unsigned int GMEM_MOVEABLE = 0x0002;
inline constexpr unsigned int GMEM_ZEROINIT = 0x0040;
inline constexpr unsigned int GHND = GMEM_MOVEABLE | GMEM_ZEROINIT;

// C linkage, so that a test program can define its own GlobalAlloc in front of this one and let the n-th call
// fail; dlsym(RTLD_NEXT, "GlobalAlloc") leads on to it.
extern "C" {

/// A new block of `size` bytes: zeros with GMEM_ZEROINIT, else anything. The caller owns it until GlobalFree.
/// Null if there is no memory, or `flags` lack GMEM_MOVEABLE. A block of 0 bytes has a handle, but no
/// address. Zero pages that nobody touches take no memory.
LVX_EXPORT HGLOBAL GlobalAlloc(unsigned int flags, std::size_t size);

/// The address of the block, which stays the same until it is freed. Locks nest; each needs its GlobalUnlock.
/// Null for a handle that is null or not, or no longer, a block's.
LVX_EXPORT void* GlobalLock(HGLOBAL block);

/// Takes one lock back. Non-zero if there are others. 0 if it was the last, there was none, or the handle is
/// not a block's.
LVX_EXPORT int GlobalUnlock(HGLOBAL block);

/// Frees the block, locked or not. Null on success; `block` itself if that is not a block's handle.
LVX_EXPORT HGLOBAL GlobalFree(HGLOBAL block);

/// The size of the block in bytes; 0 if the handle is not a block's.
LVX_EXPORT std::size_t GlobalSize(HGLOBAL block);
}

#endif
