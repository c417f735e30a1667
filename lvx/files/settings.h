// lvx/files/settings.h
//
// One settings file of sections and keys, as Windows programs have them. An object finds its file once, when
// it is made, and keeps nothing of the content: each call opens the file, so that what another program wrote
// a moment before is seen. docs/settings.md has the format.
// One thread at a time for an object, since reading a text uses its buffer; any number of objects and
// processes for a file.
// Does not: report failures. What cannot be read is the default, and what cannot be written is lost in
// silence.
#pragma once

#include <string>
#include <vector>

#include "lvx/files/path_string.h"
#include "lvx/platform/export.h"

namespace LVXUtilities {

class LVX_EXPORT Settings {
public:
    /// Finds the file for `name`, which may be just the program's. If there is a file of the whole name with
    /// ".INI" behind it in the folder of the running program, it is that one. Otherwise it is `name` with its
    /// suffix replaced by "INI". So "Tool.cfg" is "Tool.cfg.INI" beside the program, or else "Tool.INI". The
    /// system looks for a bare name in its profile directory (see lvx/platform/profile_directory.h), and for
    /// one with a directory where it says, from the current directory of each call on if it is relative. A
    /// file that appears beside the program later is not seen. `flag` means nothing.
    Settings(const std::string& name, bool flag);

    /// The name as given, with its suffix replaced by "INI", whichever file it is. Nothing is added in front.
    const LVXPathString& GetSimpleName() const { return simpleName; }

    /// The value as a number, whatever text stands behind its digits, 0 if it begins with none. Unsigned
    /// numbers from 2^31 on come back as negative ones. `defaultValue` if the value is missing or empty.
    int GetInt(const std::string& section, const std::string& key, int defaultValue) const;

    /// The value without the quotes that enclose it, or `defaultValue` if it is missing, which loses
    /// enclosing quotes and blanks at its end as well. Of any length up to 256 MiB. Names and default end at
    /// their first NUL.
    std::string GetStr(const std::string& section, const std::string& key, const std::string& defaultValue);
    /// The same. Null stands for the empty text.
    std::string GetStr(const char* section, const char* key, const char* defaultValue);

    /// Writes the number in decimal: digits with at most a '-' in front, whatever the global locale, for else
    /// GetInt() would not read it back.
    void WriteInt(const std::string& section, const std::string& key, int value);

    /// Writes the text. Blanks at its ends and quotes that enclose it are not read back; give it quotes for
    /// them: "\" text \"".
    void WriteStr(const std::string& section, const std::string& key, const std::string& value);

private:
    std::string name;
    LVXPathString fileName;
    LVXPathString simpleName;
    std::vector<char> buffer;
};

}  // namespace LVXUtilities
