// tools/lvxdoc/picture_packer.h
//
// Puts pictures into a new compound document, one in each stream.
#pragma once

#include <string>
#include <vector>

namespace lvxdoc {

struct PackedPicture {
    std::string file;
    std::string stream;
    int width = 0;
    int height = 0;
    int bits_per_pixel = 0;
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
/// A JPEG file that is damaged behind its first bytes ends the process, as the library has it; nothing is
/// left behind then either. Requires: no other document is being packed.
std::vector<PackedPicture> pack_pictures(const std::string& name, const std::vector<std::string>& pictures,
                                         bool force);

}  // namespace lvxdoc
