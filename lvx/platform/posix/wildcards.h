// lvx/platform/posix/wildcards.h
#pragma once

#include <string_view>

namespace lvx::platform {

/// Whether a file name fits a pattern with `*` for any characters and `?` for one. A name without a dot fits
/// also if it would with a dot at its end, for which a `?` does not stand. Takes a time in proportion to the
/// product of both lengths at the most.
bool fits_wildcards(std::string_view name, std::string_view pattern);

}  // namespace lvx::platform
