#include "tools/lvxdoc/pack_command.h"

#include <limits>

#include "tools/lvxdoc/picture_packer.h"
#include "tools/lvxdoc/text.h"

namespace lvxdoc {
namespace {

void warn_of_flaws(const std::vector<PackedPicture>& packed, Console& console) {
    for (const PackedPicture& picture : packed) {
        if (!picture.flaw.empty()) {
            console.err.Line("lvxdoc: warning: '" + picture.file +
                             "' is packed as it is, but 'check' will call it damaged: " + picture.flaw);
        }
    }
}

std::vector<PackedPicture> pack_with_bar(const Arguments& arguments, Console& console) {
    const std::vector<std::string> pictures(arguments.words.begin() + 1, arguments.words.end());
    ProgressBar bar(console.err, console.err_is_terminal, packing_steps(pictures));
    return pack_pictures(arguments.words.front(), pictures, arguments.Has("force"), &bar);
}

int run(const Arguments& arguments, Console& console) {
    const std::string& document = arguments.words.front();
    const auto packed = pack_with_bar(arguments, console);
    warn_of_flaws(packed, console);
    console.out.Line(document + ": " + counted(packed.size(), "picture"));
    for (const PackedPicture& picture : packed) {
        console.out.Line("  " + picture.file + " -> stream \"" + picture.stream + "\", " +
                         std::to_string(picture.width) + " x " + std::to_string(picture.height) + ", " +
                         counted(static_cast<std::uint64_t>(picture.bits_per_pixel), "bit") + " per pixel");
    }
    return 0;
}

}  // namespace

const Command pack_command{
    "pack",
    "OUT PICTURE...",
    2,
    std::numeric_limits<std::size_t>::max(),
    "Make a document of pictures, bitmap files and JPEG files",
    "Each picture becomes a stream of the compound file OUT, named after the picture's file: its name "
    "without\n"
    "folder and extension, of at most 31 characters, with a number behind it where two would be the same. A\n"
    "stream holds the version 1 and the picture as an object, and can be read alone. OUT appears when it is\n"
    "complete, in place of a document of that name. A damaged JPEG file ends the command with the decoder's\n"
    "message and exit status 1.\n",
    {{"force", 'f', nullptr, "replace OUT also if it is no document"}},
    &run};

}  // namespace lvxdoc
