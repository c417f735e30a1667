// lvx/platform/directories.h
//
// What the C runtime and the system know about the place that a drive-letter path names. On Windows their own
// calls; elsewhere the same names for as much as this library uses, over the folders of
// lvx/platform/drives.h.
//
// Elsewhere: `\` and `/` both separate, as on Windows, so that no name with a `\` can be reached. "." and
// ".." are taken out of the text, never above the root of a drive, before the system sees it. A path without
// a drive is the current drive's; the case of letters counts, but for the drive's. Does not, elsewhere: know
// servers ("\\server\share"), cut dots and blanks off the ends of names.
#pragma once

#ifdef _WIN32

#include <windows.h>
// After the basic types.
#include <direct.h>
#include <io.h>
#include <sys/stat.h>

#else

// NOLINTBEGIN(bugprone-reserved-identifier): these are the names that the C runtime of Windows has.

inline constexpr unsigned short _S_IFDIR = 0x4000;
inline constexpr unsigned short _S_IFREG = 0x8000;

struct _stat64 {
    unsigned short st_mode;  // _S_IFDIR, _S_IFREG, or 0 for any other thing
};

/// 0, and the mode of what `path` names in `status`; -1 if that cannot be told. As on Windows there is
/// nothing at a path that ends in a separator, unless it is a root, nor at a drive without a path.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wshadow"  // one name for the struct and the call, as it has always been
int _stat64(const char* path, struct _stat64* status);
#pragma GCC diagnostic pop

/// 0 if `path` names anything, else -1. Requires: a `mode` of 0, the question whether it is there.
int _access(const char* path, int mode);

/// The current directory with its drive, in `buffer` of `size` characters, and `buffer`. Null if it does not
/// fit, or no drive leads to it.
char* _getcwd(char* buffer, int size);

/// Makes `path` the current directory, and its drive the current one. 0, or -1 with nothing changed.
int _chdir(const char* path);

// NOLINTEND(bugprone-reserved-identifier)

inline constexpr unsigned int DRIVE_NO_ROOT_DIR = 1;
inline constexpr unsigned int DRIVE_FIXED = 3;

/// DRIVE_FIXED if `root`, as "C:\", is the root of a drive whose folder is there; else DRIVE_NO_ROOT_DIR.
unsigned int GetDriveTypeA(const char* root);

/// As _chdir, but 0 on failure. A drive alone, "D:", stands for the current directory of that drive.
int SetCurrentDirectoryA(const char* path);

#endif

namespace lvx::platform {

inline constexpr int longest_drive_directory = 256;

/// The current directory of a drive, 1 for A, without drive and without `\` in front, in `buffer`. 0, or -1
/// if there is no such drive or it does not fit; `buffer` is then as it was.
int _getcurdir(int drive, char (&buffer)[longest_drive_directory]);

}  // namespace lvx::platform
