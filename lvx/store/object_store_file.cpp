#include "lvx/store/object_store_file.h"

#include <cstring>
#include <typeinfo>
#include <utility>

#include "lvx/platform/open_file.h"
#include "lvx/store/shortcuts.h"

namespace {

class FileMedium : public lvx::store::Medium {
public:
    explicit FileMedium(std::FILE* file) : m_file(file) {}

    std::size_t Fetch(void* data, std::size_t size) override {
        return lvx::platform::read_available(m_file, data, size);
    }
    bool Deliver(const void* data, std::size_t size) override {
        return std::fwrite(data, 1, size, m_file) == size;
    }
    void SkipToEnd() override { std::fseek(m_file, 0, SEEK_END); }
    std::optional<std::uint64_t> Remaining() override { return lvx::platform::remaining_length(m_file); }

private:
    std::FILE* m_file;
};

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using OwnedFile = std::unique_ptr<std::FILE, Closer>;

// Null if it cannot be opened.
OwnedFile open_file(const char* name, ObjectStore::OpenMode mode) {
    if (name == nullptr) {
        return nullptr;
    }
    OwnedFile file(std::fopen(name, mode == ObjectStore::ForRead ? "rb" : "wb"));
    if (file == nullptr || lvx::platform::is_directory(file.get())) {
        return nullptr;
    }
    // The store has blocks of its own.
    std::setvbuf(file.get(), nullptr, _IONBF, 0);
    return file;
}

// C text without the line ends behind it; its length.
int strip_line_end(char* text) {
    std::size_t length = std::strlen(text);
    while (length > 0 && (text[length - 1] == '\n' || text[length - 1] == '\r')) {
        text[--length] = '\0';
    }
    return static_cast<int>(length);
}

}  // namespace

ObjectStoreFile::ObjectStoreFile() = default;

ObjectStoreFile::~ObjectStoreFile() {
    try {
        ObjectStoreFile::CloseStream();
    } catch (const WriteFailure&) {
        // A destructor cannot tell.
    }
}

bool ObjectStoreFile::OpenStream(const char* name, OpenMode mode) {
    CloseStream();
    m_mode = mode;
    OwnedFile file = open_file(name, mode);
    if (file == nullptr) {
        return false;
    }
    const bool own_class = typeid(*this) == typeid(ObjectStoreFile);
    auto medium = std::make_unique<FileMedium>(file.get());
    if (mode == ForRead) {
        GetShortcuts().AttachReader(std::move(medium), own_class);
    } else {
        GetShortcuts().AttachWriter(std::move(medium), own_class);
    }
    m_file = file.release();
    return IsOpen();
}

bool ObjectStoreFile::IsOpen() const {
    return m_file != nullptr;
}

void ObjectStoreFile::CloseStream() {
    bool complete = true;
    if (m_file != nullptr) {
        complete = GetShortcuts().Detach();
        complete = std::fclose(std::exchange(m_file, nullptr)) == 0 && complete;
    }
    ObjectStore::CloseStream();
    if (!complete) {
        throw WriteFailure();
    }
}

void ObjectStoreFile::CheckOpen(OpenMode mode) {
    if (m_file == nullptr) {
        throw NotOpen();
    }
    if (mode != m_mode) {
        throw WrongMode();
    }
}

void ObjectStoreFile::Write(const void* data, unsigned int length) {
    CheckOpen(ForWrite);
    if (!GetShortcuts().GetWriter()->Write(data, length)) {
        throw WriteFailure();
    }
}

void ObjectStoreFile::Read(void* data, unsigned int length) {
    CheckOpen(ForRead);
    if (!GetShortcuts().GetReader()->Read(data, length)) {
        throw UnexpectedEOF();
    }
}

char ObjectStoreFile::GetChar() {
    CheckOpen(ForRead);
    const int byte = GetShortcuts().GetReader()->Get();
    if (byte < 0) {
        throw UnexpectedEOF();
    }
    return static_cast<char>(byte);
}

void ObjectStoreFile::UngetChar(char c) {
    CheckOpen(ForRead);
    GetShortcuts().GetReader()->Unget(static_cast<unsigned char>(c));
}

int ObjectStoreFile::GetTrim(char* buffer, int size) {
    CheckOpen(ForRead);
    int length = 0;
    int byte = 0;
    while (length < size - 1 && byte != '\n' && (byte = GetShortcuts().GetReader()->Get()) >= 0) {
        buffer[length++] = static_cast<char>(byte);
    }
    if (size < 1 || (length == 0 && byte < 0)) {
        throw UnexpectedEOF();
    }
    buffer[length] = '\0';
    return strip_line_end(buffer);
}
