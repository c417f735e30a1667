// What the tests of lvxdoc share: bytes to write by hand, folders that go away, the program in this process.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "tools/lvxdoc/walker.h"

/// Bytes from hexadecimal digits and quoted text: "03000000 42 63 'myFont' 0d0a".
std::string bytes_of(std::string_view description);

/// The number as four bytes.
std::string int_bytes(std::uint32_t number);

// Defined here, so that the constants of a test can be made of them.

/// A version, a font F, F again and a second font G, 95 bytes.
inline const std::string fonts = bytes_of(
    "03000000 42 63 'myFont' 0d0a 6f 73 05000000 'Arial' 0000000000002440"
    "01000000 00000000 00000000 00000000 42 4f 00000000 42 43 00000000 6f 73 04000000 'Sans' 0000000000002040"
    "00000000 00000000 00000000 00000000");

/// The block of a picture of 2 by 2 pixels in 24 bits, 56 bytes.
inline const std::string small_block = bytes_of(
    "28000000 02000000 02000000 0100 1800 00000000 10000000 00000000 00000000 00000000 00000000"
    "0000ff 00ff00 0000 ff0000 ffffff 0000");

/// A version and that picture, whose block begins at 35.
inline const std::string small_picture =
    bytes_of("01000000 42 63 'LVXUtilities::DIBitmap' 0d0a 6f 38000000") + small_block;

/// Keeps a line for each event: the offset and the description.
class Lines : public lvxdoc::EventSink {
public:
    void Take(const lvxdoc::Event& event) override;
    std::vector<std::string> lines;
};

/// What a walk told, and the damage that ended it as "damage at 12: why".
std::vector<std::string> walk(const std::string& bytes, const std::string& schema = "",
                              lvxdoc::WalkOptions options = {});

/// The last line of `walk`.
std::string end_of_walk(const std::string& bytes, const std::string& schema = "", bool strict = false);

/// A new empty folder in the system's folder for such, removed with everything in it at the end.
class Folder {
public:
    Folder();
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;
    ~Folder();

    /// The name of a file in it.
    std::string File(const std::string& name) const;
    /// Writes a file in it and returns its name.
    std::string Write(const std::string& name, const std::string& bytes) const;
    /// The names of what is in it, sorted.
    std::vector<std::string> Names() const;
    const std::filesystem::path& Path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

std::string read_file(const std::filesystem::path& path);

struct Result {
    int status;
    std::string out;
    std::string err;
};

/// Runs the program's commands in this process.
Result run(const std::vector<std::string>& words);
