// lvx/platform/posix/drive_set.h
//
// Which folder each drive letter stands for, and where in it the drive's current directory is, at one moment.
// Text alone: the file system is not asked. A plain value; for one thread at a time.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace lvx::platform {

/// A directory or file of a drive; the path is without drive and leading separator, and has '/'.
struct DrivePlace {
    char letter;
    std::string path;

    bool operator==(const DrivePlace&) const = default;
};

class DriveSet {
public:
    /// C: is the root of all; there are no others.
    DriveSet();

    /// Lets a letter stand for a folder, absolute and without '/' at its end unless it is the root. False if
    /// it is not a letter.
    bool Map(char letter, const std::string& root);
    /// False if the letter stood for nothing.
    bool Unmap(char letter);

    /// The folder of a drive; nothing if the letter stands for none.
    std::optional<std::string> Root(char letter) const;

    /// Where an absolute path is: in the drive with the longest folder, and of several in the first. Nothing
    /// if no drive leads there.
    std::optional<DrivePlace> PlaceOf(const std::string& absolute) const;

    /// The current directory of a drive, for the time when another one is the current drive.
    void Remember(const DrivePlace& place);
    /// What was remembered, or the root: an empty path.
    std::string Remembered(char letter) const;

private:
    struct Drive {
        std::string root;  // empty if the letter stands for nothing
        std::string current;
    };

    const Drive* Find(char letter) const;
    Drive* Find(char letter);

    std::array<Drive, 26> m_drives;
};

/// The letter as a capital; nothing if it is none.
std::optional<char> drive_letter(char character);

}  // namespace lvx::platform
