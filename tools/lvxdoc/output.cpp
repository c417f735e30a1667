#include "tools/lvxdoc/output.h"

#include <cerrno>
#include <cstring>

#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/platform/system.h"

namespace lvxdoc {

void Output::Line(std::string_view text) {
    Write(std::string(text) + '\n');
}

void FileOutput::Fail(int error) {
    if (platform::is_broken_pipe(error)) {
        throw OutputGone();
    }
    throw Failure(std::string("cannot write the output: ") + std::strerror(error));
}

void FileOutput::Write(std::string_view text) {
    errno = 0;
    if (!text.empty() && std::fwrite(text.data(), 1, text.size(), m_file) != text.size()) {
        Fail(errno);
    }
}

void FileOutput::Flush() {
    errno = 0;
    if (std::fflush(m_file) != 0) {
        Fail(errno);
    }
}

}  // namespace lvxdoc
