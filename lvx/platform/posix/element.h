// lvx/platform/posix/element.h
//
// An element of a storage, as its directory has it.
#pragma once

#include <cstdint>
#include <string>

namespace lvx::platform {

struct Element {
    std::wstring name;
    bool is_stream = false;
    std::uint64_t size = 0;
    std::uint32_t first_sector = 0;
};

}  // namespace lvx::platform
