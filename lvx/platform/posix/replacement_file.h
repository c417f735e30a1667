// lvx/platform/posix/replacement_file.h
//
// A file that takes the place of another in one step, or not at all: whoever opens the name finds the old
// content or the new one, whole, whatever happens meanwhile.
#pragma once

#include <sys/types.h>

#include <string>
#include <string_view>

#include "lvx/platform/posix/file_descriptor.h"

namespace lvx::platform {

class ReplacementFile {
public:
    /// An empty file beside `name` in an open directory, with the mode, and as far as that is allowed the
    /// owner and the group, of the file there if there is one. A group that may not be given takes its rights
    /// along: the writer's group gets none.
    ReplacementFile(int directory, const std::string& name);
    ReplacementFile(const ReplacementFile&) = delete;
    ReplacementFile& operator=(const ReplacementFile&) = delete;
    /// Deletes it unless it was put in place.
    ~ReplacementFile();

    /// Makes `bytes` its content, waits until the device has them, and puts it in the place of `name`. False
    /// if that failed; `name` is then as before.
    bool Replace(std::string_view bytes);

private:
    bool Create();
    bool CopyAttributes();
    bool Write(std::string_view bytes);

    int m_directory;
    std::string m_name;
    std::string m_own_name;
    FileDescriptor m_file;
    bool m_good;
};

}  // namespace lvx::platform
