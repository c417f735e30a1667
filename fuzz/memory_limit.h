// The program's operator new and GlobalAlloc with a limit. A sanitizer ends the process where operator new
// ought to throw std::bad_alloc, and a document that claims gigabytes is to be told from one that takes them.
#pragma once

#include <cstddef>

namespace lvx_fuzz {

/// While it lives, one allocation of more than `most` bytes fails, or is a finding. Otherwise the limit is
/// 256 MiB. The one made last counts.
class LargestAllocation {
public:
    enum Beyond { Fails, IsFinding };

    LargestAllocation(std::size_t most, Beyond beyond);
    LargestAllocation(const LargestAllocation&) = delete;
    LargestAllocation& operator=(const LargestAllocation&) = delete;
    ~LargestAllocation();

private:
    std::size_t m_outer_limit;
    Beyond m_outer_beyond;
};

}  // namespace lvx_fuzz
