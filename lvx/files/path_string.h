// lvx/files/path_string.h
//
// LVXPathString: a text that knows the syntax of a drive-letter path. It takes a path apart, puts it together
// again with other parts, asks the system about what it names, lists files along a search list and moves the
// current directory.
//
// `\` alone separates directories; `/` is a character like any other. In second place a `:` ends the drive.
// Of "C:\work\pics\logo.bmp" the drive is "C:", the base "\work\pics", the name "logo.bmp", the prefix
// "logo", the suffix "bmp" and the directory "C:\work\pics".
//
// Several parts depend on whether the path is a directory that exists, for then its last component belongs to
// the base. Operations that say so ask the system, on each call.
//
// Results go to the caller's strings; such a string may be the path itself. A NUL is a character like any
// other for the rules on text; no such path is ever given to the system, which would see less of it.
//
// Threads: operations on text are safe on different paths. The current directory and the counter of
// tempFile() are the process's: list(), listNames(), dolist(), tempFile(), setDrive() and setCurrent() are
// for one thread at a time.
// Throws: nothing of its own; only what std::string does when it gets too long or memory runs out.
// Does not: bring texts into a common form (case, doubled or trailing separators), join relative directories,
// know "\\server\share".
#pragma once

#include <cstdlib>
#include <string>
#include <vector>

#include "lvx/platform/export.h"

// The C runtime of Windows has a variable of this name, which is a macro there. A class that has an operation
// of the name cannot live with it; the variable stays in reach through __p__environ().
#undef _environ

class LVX_EXPORT LVXPathString : public std::string {
public:
    /// Given to buildPath(): this part stays as it is. Neither null nor the address of a text.
    static const char* const KeepPart;

    LVXPathString() = default;
    /// The text as it stands; texts are paths wherever one is asked for. Null gives an empty path.
    LVXPathString(const char* path);
    LVXPathString(const std::string& path);
    LVXPathString(const LVXPathString& path) = default;

    LVXPathString& operator=(const char* path);
    LVXPathString& operator=(const std::string& path);
    LVXPathString& operator=(const LVXPathString& path) = default;

    // Parts. A false result leaves `out` as it was, except where it is told.

    /// The drive with its ':', a letter from a to z in upper case. False unless the second character is a
    /// ':'; the first may be anything, so "1:" is a drive.
    bool driveOf(std::string& out) const;

    /// The directory without the drive, and without the `\` in front of the name unless it is all there is:
    /// "\a" of "C:\a\f", "\" of "\f". False for a bare name. All of a path without its drive if that is a
    /// directory that exists (the system is asked), the last component and a `\` at the end included.
    /// Does not: look beyond the first 500 characters of the path.
    bool baseOf(std::string& out) const;

    /// What stands behind the last `\` or ':', be it nothing. False for an empty path only.
    bool nameOf(std::string& out) const;

    /// Drive and base. The path as it stands if it is a directory that exists. The drive alone if there is no
    /// base; false if there is neither.
    bool directoryOf(std::string& out) const;

    /// What stands behind the dot that dotOf() finds, be it nothing. With no such dot false, and `out` is
    /// emptied.
    bool suffixOf(std::string& out) const;

    /// The name up to its first dot: "a" of "a.b.c", whose suffix is "c". False for an empty path only.
    bool prefixOf(std::string& out) const;

    /// The dot in front of the suffix, in this path's own text and valid as long as that is; null if there is
    /// none. That is the last dot of the name, but neither the first character of the path nor behind another
    /// dot: ".profile", "a..b" and ".." have none. "a." has one, with an empty suffix.
    const char* dotOf() const;

    /// The value of an environment variable. False, with `out` as it was, if `variable` is empty, holds a NUL
    /// or is not set. Has nothing to do with the path.
    bool _environ(const std::string& variable, std::string& out) const;

    // Other parts.

    /// Appends `\`, unless that is the last character, and `name`. An empty path begins with the `\` then;
    /// an empty name still brings it. Gives the path back.
    LVXPathString& addName(const std::string& name);

    /// Replaces the suffix and its dot, or adds both; an empty `newSuffix` takes them away. ".profile"
    /// becomes ".profile.bmp".
    void suffix(const std::string& newSuffix);

    /// Composes a path of this one's parts and others and assigns it to `result`. For each part, KeepPart
    /// takes that of this path, if it has it; null leaves the part out; a text is used as it stands, with a
    /// ':' behind it if it is the drive. Drive and directory are parted from the name by a `\`, if there is
    /// something of them; no name leaves no `\`, an empty one does.
    ///
    /// On a directory that exists, KeepPart for both directory and name repeats the last component, which is
    /// in the base and in the name: drive("d") makes "d:\a\b\b" of an existing "c:\a\b".
    void buildPath(std::string& result, const char* drive, const char* directory, const char* name) const;

    /// buildPath() into itself with another drive, such as "d". An empty one leaves a ':' in front.
    void drive(const std::string& d);
    /// buildPath() into itself with another directory.
    void directory(const std::string& d);
    /// buildPath() into itself with another name.
    void name(const std::string& n);

    /// Makes a relative path absolute, by the current directory of the process or of the path's drive. A path
    /// with drive and base stays as it is, a relative base too: "c:sub\f". A relative base without a drive
    /// gets the current drive and nothing else: "C:sub\f". An empty path becomes the current directory with
    /// a `\` behind it. Where the current directory cannot be told, nothing stands for it: "f" becomes "\f".
    void expand();

    /// Moves the path one directory up, the name with it: "C:\a\b\f.txt" becomes "C:\a\f.txt". False, with
    /// the path as it was, if its base is missing, is the root, or holds no `\` ("sub\f"). A directory that
    /// exists is its own base and has a name as well: it comes out as it was, and the result is true.
    bool asParent();

    /// Becomes the current directory of the process, in lower case; stays as it was if that cannot be told or
    /// has 500 characters or more. True in any case.
    bool asCurrent();

    /// Becomes a bare name of four digits or more and ".tmp", from the time and a counter. Gives the path
    /// back. Does not: look whether there is such a file.
    LVXPathString& tempFile();

    // Questions to the system. All are false for a path that holds a NUL.

    /// Whether there is anything of this name.
    bool exists() const;

    /// Whether this is a regular file. False for what holds a '*', without asking. A '?' stands for no
    /// character but itself: the system is asked, and Windows has no such names.
    bool isFile() const;

    /// Whether this is a directory, with or without one `\` at its end. False for what holds a '*', without
    /// asking. False for "C:\" too, for it is "C:" that the system is asked about.
    bool isDirectory() const;

    /// Whether the name fits the pattern's, byte by byte. Prefixes and suffixes are compared whole; one that
    /// the pattern lacks, or that is "*", fits all. So "logo.bmp" fits "*.bmp", "logo.*", "logo" and "", but
    /// neither "LOGO.bmp" nor "lo*.bmp". Directories do not count, and the system is not asked.
    bool isMatch(const LVXPathString& pattern) const;

    // Listing.

    /// Appends to `out` the full paths of what this path, as a pattern of the system, finds in the
    /// directories of a search list: the current directory, if `includeCurrent` or if there is no `variable`
    /// (null or empty), and behind it those in that environment variable, with ';' between them. Directories
    /// are found too. All is in lower case; nothing is sorted, and what is found twice is there twice. True
    /// in any case.
    bool list(std::vector<std::string>& out, const char* variable, bool includeCurrent) const;

    /// The same with bare names.
    bool listNames(std::vector<std::string>& out, const char* variable, bool includeCurrent) const;

    /// list() if `fullPaths`, else listNames().
    bool dolist(bool fullPaths, std::vector<std::string>& out, const std::string& variable,
                bool includeCurrent) const;

    // The current directory.

    /// Makes the path's drive the current one, at that drive's own current directory. False if the path has
    /// no drive, or there is no such drive.
    bool setDrive() const;

    /// Goes to the path, or to its directory if it is not a directory itself, and to its drive. True in any
    /// case; CurrentDirectory() tells whether it worked. A path with a NUL goes nowhere.
    bool setCurrent() const;

    /// The current directory as it was when the library was loaded.
    static LVXPathString StartDirectory();

    /// The current directory, as asCurrent() gives it; empty if it cannot be told.
    static LVXPathString CurrentDirectory();
};
