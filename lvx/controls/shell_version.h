// lvx/controls/shell_version.h
//
// What the number of the system's version says of its looks. Private to the library.
#pragma once

#include <cstdint>

namespace lvx::controls {

/// Whether a system whose GetVersion answers `version` draws etched lines: from 4 on, and what called itself
/// 3.95 on its way there.
constexpr bool draws_etched_lines(std::uint32_t version) {
    const std::uint32_t major = version & 0xFF;
    const std::uint32_t minor = (version >> 8) & 0xFF;
    return major >= 4 || (major == 3 && minor >= 95);
}

}  // namespace lvx::controls
