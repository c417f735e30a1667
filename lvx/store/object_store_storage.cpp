#include "lvx/store/object_store_storage.h"

#include <charconv>
#include <cstdint>
#include <memory>
#include <typeinfo>
#include <utility>

#include "lvx/platform/structured_storage.h"
#include "lvx/store/shortcuts.h"
#include "lvx/text/strings.h"

namespace {

struct Releaser {
    void operator()(IStream* stream) const { stream->Release(); }
};
using OwnedStream = std::unique_ptr<IStream, Releaser>;

std::optional<std::uint64_t> position_of(IStream* stream) {
    ULARGE_INTEGER position{};
    const HRESULT result = stream->Seek(LARGE_INTEGER{}, STREAM_SEEK_CUR, &position);
    return SUCCEEDED(result) ? std::optional<std::uint64_t>(position.QuadPart) : std::nullopt;
}

bool move_to(IStream* stream, std::uint64_t position) {
    LARGE_INTEGER target{};
    target.QuadPart = static_cast<std::int64_t>(position);
    return SUCCEEDED(stream->Seek(target, STREAM_SEEK_SET, nullptr));
}

class StreamMedium : public lvx::store::Medium {
public:
    explicit StreamMedium(IStream* stream) : m_stream(stream) {}

    std::size_t Fetch(void* data, std::size_t size) override {
        ULONG count = 0;
        return SUCCEEDED(m_stream->Read(data, static_cast<ULONG>(size), &count)) ? count : 0;
    }
    bool Deliver(const void* data, std::size_t size) override {
        ULONG count = 0;
        return SUCCEEDED(m_stream->Write(data, static_cast<ULONG>(size), &count)) && count == size;
    }
    void SkipToEnd() override { m_stream->Seek(LARGE_INTEGER{}, STREAM_SEEK_END, nullptr); }
    std::optional<std::uint64_t> Remaining() override {
        STATSTG status{};
        const std::optional<std::uint64_t> position = position_of(m_stream);
        if (!position || FAILED(m_stream->Stat(&status, STATFLAG_NONAME))) {
            return std::nullopt;
        }
        const std::uint64_t size = status.cbSize.QuadPart;
        return size > *position ? size - *position : 0;
    }

private:
    IStream* m_stream;
};

// The code as 32 bits, with no locale's grouping.
std::string text_of(HRESULT result) {
    char digits[8];
    const auto end = std::to_chars(digits, digits + sizeof digits, static_cast<std::uint32_t>(result), 16);
    return "HRESULT = " + std::string(digits, end.ptr);
}

HRESULT open_storage(const std::wstring& name, ObjectStore::OpenMode mode, IStorage*& storage) {
    return mode == ObjectStore::ForRead
               ? StgOpenStorage(name.c_str(), nullptr, STGM_READ | STGM_SHARE_DENY_WRITE, nullptr, 0,
                                &storage)
               : StgCreateDocfile(name.c_str(), STGM_WRITE | STGM_SHARE_EXCLUSIVE | STGM_CREATE, 0, &storage);
}

HRESULT open_stream(IStorage* storage, const std::wstring& name, ObjectStore::OpenMode mode,
                    OwnedStream& stream) {
    IStream* opened = nullptr;
    const HRESULT result =
        mode == ObjectStore::ForRead
            ? storage->OpenStream(name.c_str(), nullptr, STGM_READ | STGM_SHARE_EXCLUSIVE, 0, &opened)
            : storage->CreateStream(name.c_str(), STGM_WRITE | STGM_SHARE_EXCLUSIVE | STGM_CREATE, 0, 0,
                                    &opened);
    if (SUCCEEDED(result)) {
        stream.reset(opened);
    }
    return result;
}

}  // namespace

namespace LVXUtilities {

ObjectStoreStorage::ObjectStoreStorage() = default;

ObjectStoreStorage::~ObjectStoreStorage() {
    try {
        ObjectStoreStorage::CloseStream();
    } catch (const WriteFailure&) {
        // A destructor cannot tell.
    }
}

bool ObjectStoreStorage::OpenStorage(const std::string& name, OpenMode mode, std::string& error) {
    try {
        CloseStream();
    } catch (const WriteFailure&) {
        error = text_of(STG_E_MEDIUMFULL);
        return false;
    }
    const std::wstring file_name = lvx::platform::file_name_of(lvx::widen(name), name);
    const HRESULT result = open_storage(file_name, mode, m_storage);
    if (FAILED(result)) {
        m_storage = nullptr;
        error = text_of(result);
        return false;
    }
    m_openMode = mode;
    return true;
}

bool ObjectStoreStorage::OpenStream(const std::string& name, std::string& error) {
    if (m_storage == nullptr) {
        throw NotOpen();
    }
    if (!ReleaseStream()) {
        error = text_of(STG_E_MEDIUMFULL);
        return false;
    }
    OwnedStream stream;
    const HRESULT result = open_stream(m_storage, lvx::widen(name), m_openMode, stream);
    if (FAILED(result)) {
        error = text_of(result);
        return false;
    }
    const bool own_class = typeid(*this) == typeid(ObjectStoreStorage);
    auto medium = std::make_unique<StreamMedium>(stream.get());
    if (m_openMode == ForRead) {
        GetShortcuts().AttachReader(std::move(medium), own_class);
    } else {
        GetShortcuts().AttachWriter(std::move(medium), own_class);
    }
    m_stream = stream.release();
    return true;
}

bool ObjectStoreStorage::IsOpen() const {
    return m_storage != nullptr;
}

// Puts the last block into the stream and lets go of it. False if bytes were lost and nobody was told.
bool ObjectStoreStorage::ReleaseStream() {
    if (m_stream == nullptr) {
        return true;
    }
    const bool complete = GetShortcuts().Detach();
    std::exchange(m_stream, nullptr)->Release();
    return complete;
}

void ObjectStoreStorage::CloseStream() {
    bool complete = ReleaseStream();
    complete = lvx::platform::complete_storage(std::exchange(m_storage, nullptr)) && complete;
    ObjectStore::CloseStream();
    if (!complete) {
        throw WriteFailure();
    }
}

void ObjectStoreStorage::CheckOpen(OpenMode mode) {
    if (m_stream == nullptr) {
        throw NotOpen();
    }
    if (mode != m_openMode) {
        throw WrongMode();
    }
}

void ObjectStoreStorage::Write(const void* data, unsigned int length) {
    CheckOpen(ForWrite);
    if (!GetShortcuts().GetWriter()->Write(data, length)) {
        throw WriteFailure();
    }
}

void ObjectStoreStorage::Read(void* data, unsigned int length) {
    CheckOpen(ForRead);
    if (!GetShortcuts().GetReader()->Read(data, length)) {
        throw UnexpectedEOF();
    }
}

// Through the virtual Read, which a class derived from this one may have replaced.
char ObjectStoreStorage::GetChar() {
    char byte = 0;
    Read(&byte, 1);
    return byte;
}

void ObjectStoreStorage::UngetChar(char) {
    CheckOpen(m_openMode);
    if (m_openMode == ForRead) {
        StepBackReading();
    } else {
        StepBackWriting();
    }
}

void ObjectStoreStorage::StepBackReading() {
    lvx::store::BlockReader& reader = *GetShortcuts().GetReader();
    if (reader.StepBack()) {
        return;
    }
    // The byte left the block long ago. The stream itself stands behind what is still in there.
    const std::optional<std::uint64_t> position = position_of(m_stream);
    const std::size_t ahead = reader.InBlock();
    if (!position || *position <= ahead || !move_to(m_stream, *position - ahead - 1)) {
        throw UnexpectedEOF();
    }
    reader.Drop();
}

void ObjectStoreStorage::StepBackWriting() {
    if (!GetShortcuts().GetWriter()->Flush()) {
        throw WriteFailure();
    }
    // Not every system refuses to seek in front of the beginning, and what is written there is anybody's
    // guess.
    const std::optional<std::uint64_t> position = position_of(m_stream);
    if (!position || *position == 0 || !move_to(m_stream, *position - 1)) {
        throw UnexpectedEOF();
    }
}

int ObjectStoreStorage::GetTrim(char* buffer, int size) {
    CheckOpen(ForRead);
    if (size < 1) {
        throw UnexpectedEOF();
    }
    int length = 0;
    while (length < size - 1) {
        const char c = GetChar();
        if (c == '\n') {
            break;
        }
        if (c != '\r') {
            buffer[length++] = c;
        }
    }
    buffer[length] = '\0';
    return length;
}

}  // namespace LVXUtilities
