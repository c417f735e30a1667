// A file of this process in memory, for what reads files only.
#pragma once

#include <unistd.h>

#include <string>
#include <string_view>

#include "support/bytes.h"

namespace lvx_fuzz {

/// Made with a content, removed at the end; a second one at the same time has another name.
class ScratchFile {
public:
    explicit ScratchFile(std::string_view content)
        : m_name("/dev/shm/lvx-fuzz-" + std::to_string(getpid()) + "-" + std::to_string(s_live++)) {
        lvx_test::write_file(m_name, content);
    }
    ScratchFile(const ScratchFile&) = delete;
    ScratchFile& operator=(const ScratchFile&) = delete;
    ~ScratchFile() {
        unlink(m_name.c_str());
        --s_live;
    }

    const std::string& Name() const { return m_name; }
    std::string Content() const { return lvx_test::read_file(m_name); }

private:
    static inline int s_live = 0;

    std::string m_name;
};

}  // namespace lvx_fuzz
