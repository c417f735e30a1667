// lvx/platform/posix/compound_directory.h
//
// The directory of a compound file: entries of 128 bytes that form a tree. The entries of a storage hang
// together as a binary tree below its entry.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "lvx/platform/posix/element.h"

namespace lvx::platform {

struct CompoundDirectory {
    /// The entry of the file itself; its stream holds the small streams.
    Element root;
    /// What lies directly below it, in no particular order.
    std::vector<Element> elements;

    /// Nothing if the directory is damaged: a link that leads out of it or to the same entry twice, an entry
    /// of unknown kind or without a proper name, or a tree too deep to descend. Files with sectors of 512
    /// bytes have sizes of 32 bits and may have anything behind them.
    static std::optional<CompoundDirectory> Check(std::span<const unsigned char> data, bool has_wide_sizes);
};

}  // namespace lvx::platform
