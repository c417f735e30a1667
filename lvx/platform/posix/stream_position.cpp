#include "lvx/platform/posix/stream_position.h"

#include "lvx/platform/posix/element_list.h"

namespace lvx::platform {

HRESULT move_position(std::uint64_t& position, std::uint64_t size, LARGE_INTEGER distance, DWORD origin) {
    std::uint64_t base = 0;
    switch (origin) {
        case STREAM_SEEK_SET:
            break;
        case STREAM_SEEK_CUR:
            base = position;
            break;
        case STREAM_SEEK_END:
            base = size;
            break;
        default:
            return STG_E_INVALIDFUNCTION;
    }
    // Unsigned, so that the most negative distance has a magnitude too.
    const auto magnitude = distance.QuadPart < 0 ? 0 - static_cast<std::uint64_t>(distance.QuadPart)
                                                 : static_cast<std::uint64_t>(distance.QuadPart);
    if (distance.QuadPart < 0 ? magnitude > base : magnitude > UINT64_MAX - base) {
        return STG_E_INVALIDFUNCTION;
    }
    position = distance.QuadPart < 0 ? base - magnitude : base + magnitude;
    return S_OK;
}

HRESULT tell_stream(const wchar_t* name, std::uint64_t size, DWORD flags, STATSTG* status) {
    if (status == nullptr) {
        return STG_E_INVALIDPOINTER;
    }
    *status = {nullptr, STGTY_STREAM, {size}};
    if (flags == STATFLAG_NONAME) {
        return S_OK;
    }
    status->pwcsName = copy_name(name);
    return status->pwcsName != nullptr ? S_OK : STG_E_INSUFFICIENTMEMORY;
}

}  // namespace lvx::platform
