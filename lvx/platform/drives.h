// lvx/platform/drives.h
//
// Which folders the drive letters of paths stand for, where the system has no drives. C: is the root of all
// until it is mapped elsewhere; the other letters stand for nothing. Windows has drives of its own: there
// map_drive and unmap_drive change nothing and return false.
//
// A host maps its drives at its start. The calls may come from any thread; a path that another thread is
// asking about at that moment goes by the old drives or by the new ones.
// Does not: shut anything out. Links inside a drive lead where they lead, and one folder may be in several
// drives; the current directory is then told with the drive whose folder is the longest, and of two letters
// for the same folder with the first.
#pragma once

#include <string>

#include "lvx/platform/export.h"

namespace lvx {

/// Lets `letter`, in either case, stand for `folder`, which is given as the system knows it ("/mnt/disk"). If
/// it stood for another one, that ends; the drive's current directory is its root.
/// False, and all stays as it was, if `letter` is not one from A to Z or `folder` is not a directory that can
/// be found. Links in `folder` are followed now, not later.
LVX_EXPORT bool map_drive(char letter, const std::string& folder);

/// Lets `letter` stand for nothing. False if it already did.
LVX_EXPORT bool unmap_drive(char letter);

/// What the system itself calls `path`: "/mnt/disk/a.drw" for "D:\a.drw", and a relative path for one. For
/// all that takes the name of a file as the system knows it: stores, pictures, std::fstream. Empty if `path`
/// is empty, holds a NUL, or has a drive that is not there. On Windows the path as it stands.
LVX_EXPORT std::string system_path(const std::string& path);

}  // namespace lvx
