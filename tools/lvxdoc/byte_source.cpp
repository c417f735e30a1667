#include "tools/lvxdoc/byte_source.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>

#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/platform/system.h"

namespace lvxdoc {
namespace {

class FileSource : public ByteSource {
public:
    explicit FileSource(const std::string& name);
    std::uint64_t Size() const override { return m_size; }
    void ReadAt(std::uint64_t offset, void* data, std::size_t size) override;

private:
    std::string m_name;
    std::ifstream m_file;
    std::uint64_t m_size = 0;
};

FileSource::FileSource(const std::string& name) : m_name(name) {
    const std::filesystem::path path = platform::native_path(name);
    std::error_code error;
    const auto status = std::filesystem::status(path, error);
    if (error) {
        throw Failure("cannot open '" + name + "': " + error.message());
    }
    if (!std::filesystem::is_regular_file(status)) {
        throw Failure("cannot open '" + name + "': it is not a file");
    }
    m_size = std::filesystem::file_size(path, error);
    errno = 0;
    m_file.open(path, std::ios::binary);
    if (error || !m_file) {
        throw Failure("cannot open '" + name + "': " + (error ? error.message() : std::strerror(errno)));
    }
}

void FileSource::ReadAt(std::uint64_t offset, void* data, std::size_t size) {
    m_file.seekg(static_cast<std::streamoff>(offset));
    m_file.read(static_cast<char*>(data), static_cast<std::streamsize>(size));
    if (!m_file) {
        throw Failure("cannot read '" + m_name + "' at offset " + std::to_string(offset));
    }
}

}  // namespace

void MemorySource::ReadAt(std::uint64_t offset, void* data, std::size_t size) {
    m_bytes.copy(static_cast<char*>(data), size, static_cast<std::size_t>(offset));
}

std::unique_ptr<ByteSource> open_file(const std::string& name) {
    return std::make_unique<FileSource>(name);
}

}  // namespace lvxdoc
