// Replaces the program's operator new, so that a test can count allocations, make the n-th one fail and see
// the most memory that was held. Where shared libraries bind to it, as on Linux, this reaches into the
// library too.
#pragma once

#include <cstddef>

namespace lvx_test {

/// While it lives, the allocation of number `index`, counted from 0, throws std::bad_alloc (or is null for
/// the forms that do not throw). None fails if `index` is negative.
class FailingAllocation {
public:
    explicit FailingAllocation(long index);
    FailingAllocation(const FailingAllocation&) = delete;
    FailingAllocation& operator=(const FailingAllocation&) = delete;
    ~FailingAllocation();

    /// Whether the count got as far as the index.
    bool HasFailed() const;
};

/// The bytes allocated and not freed.
std::size_t live_bytes();

/// The most bytes that were live since the last call of reset_peak.
std::size_t peak_bytes();
void reset_peak();

}  // namespace lvx_test
