// lvx/platform/posix/stream_position.h
//
// Where a stream stands, and whether it still may be used.
#pragma once

#include <cstdint>

#include "lvx/platform/structured_storage.h"

namespace lvx::platform {

/// What a storage and the streams that it handed out know of each other.
struct StreamState {
    /// One opening at a time.
    bool is_open = false;
    /// The storage is gone, or the stream was replaced.
    bool is_reverted = false;
};

/// The position that `distance` from `origin` leads to, in a stream of `size` bytes that stands at
/// `position`. STG_E_INVALIDFUNCTION, and `position` as it was, if that lies in front of the beginning.
HRESULT move_position(std::uint64_t& position, std::uint64_t size, LARGE_INTEGER distance, DWORD origin);

/// The answer of IStream::Stat.
HRESULT tell_stream(const wchar_t* name, std::uint64_t size, DWORD flags, STATSTG* status);

}  // namespace lvx::platform
