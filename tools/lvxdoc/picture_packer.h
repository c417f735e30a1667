// tools/lvxdoc/picture_packer.h
//
// Puts pictures into a new compound document, one in each stream.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tools/lvxdoc/progress_bar.h"

namespace lvxdoc {

struct PackedPicture {
    std::string file;
    std::string stream;
    int width = 0;
    int height = 0;
    int bits_per_pixel = 0;
    /// Why `lvxdoc check` will call it damaged; empty for a picture that is whole.
    std::string flaw;
};

/// The version in front of each stream.
constexpr long packed_version = 1;

/// Throws Failure if `file` cannot be opened, or is neither a bitmap file nor a JPEG file by its first bytes.
/// What lies behind those is not looked at.
void check_picture(const std::string& file);

/// Makes the document `name` with a stream for each of `pictures`: the version, and the picture as an object.
/// Ids and class numbers begin anew in each, so that each can be read alone. Nothing is left behind on
/// failure; a document that stood under the name stays as it was until the new one is complete. Throws
/// Failure.
///
/// The library takes bitmap files whose header does not fit what they hold. So does this; their `flaw` tells.
///
/// `bar`, of packing_steps, moves with every picture that was written and every one that was read back; null
/// for none.
///
/// A JPEG file that is damaged behind its first bytes ends the process, as the library has it; nothing is
/// left behind then either. Requires: no other document is being packed.
std::vector<PackedPicture> pack_pictures(const std::string& name, const std::vector<std::string>& pictures,
                                         bool force, ProgressBar* bar = nullptr);

/// How far packing these files moves a bar. A file that cannot be looked at counts 0.
std::uint64_t packing_steps(const std::vector<std::string>& pictures);

}  // namespace lvxdoc
