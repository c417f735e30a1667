#include "lvx/store/object_store_stream.h"

#include <istream>
#include <ostream>
#include <typeinfo>

#include "lvx/store/shortcuts.h"

namespace {

class StreamLength : public lvx::store::Measurable {
public:
    explicit StreamLength(std::istream& stream) : m_buffer(stream.rdbuf()) {}

    std::optional<std::uint64_t> Remaining() override {
        constexpr auto reading = std::ios_base::in;
        const std::streamoff here = m_buffer == nullptr ? -1 : Seek(0, std::ios_base::cur);
        if (here < 0) {
            return std::nullopt;
        }
        const std::streamoff end = Seek(0, std::ios_base::end);
        m_buffer->pubseekpos(here, reading);
        return end < here ? std::nullopt : std::optional(static_cast<std::uint64_t>(end - here));
    }

    void SkipToEnd() override { Seek(0, std::ios_base::end); }

private:
    std::streamoff Seek(std::streamoff offset, std::ios_base::seekdir from) {
        return m_buffer->pubseekoff(offset, from, std::ios_base::in);
    }

    std::streambuf* m_buffer;
};

}  // namespace

ObjectStoreStream::ObjectStoreStream() = default;

ObjectStoreStream::~ObjectStoreStream() {
    ObjectStoreStream::CloseStream();
}

bool ObjectStoreStream::OpenStream(std::ostream* stream) {
    CloseStream();
    m_mode = ForWrite;
    m_output = stream;
    if (stream != nullptr && typeid(*this) == typeid(ObjectStoreStream)) {
        GetShortcuts().AttachStream(*stream);
    }
    return IsOpen();
}

bool ObjectStoreStream::OpenStream(std::istream* stream) {
    CloseStream();
    m_mode = ForRead;
    m_input = stream;
    if (stream != nullptr && typeid(*this) == typeid(ObjectStoreStream)) {
        GetShortcuts().AttachStream(*stream);
        GetShortcuts().AttachMeasure(std::make_unique<StreamLength>(*stream));
    }
    return IsOpen();
}

bool ObjectStoreStream::IsOpen() const {
    return m_output != nullptr || m_input != nullptr;
}

void ObjectStoreStream::CloseStream() {
    m_output = nullptr;
    m_input = nullptr;
    GetShortcuts().Detach();
    ObjectStore::CloseStream();
}

void ObjectStoreStream::CheckOpen(OpenMode mode) {
    if (!IsOpen()) {
        throw NotOpen();
    }
    if (mode != m_mode) {
        throw WrongMode();
    }
}

void ObjectStoreStream::Write(const void* data, unsigned int length) {
    CheckOpen(ForWrite);
    if (m_output->write(static_cast<const char*>(data), length).bad()) {
        throw WriteFailure();
    }
}

void ObjectStoreStream::Read(void* data, unsigned int length) {
    CheckOpen(ForRead);
    // bad() and not fail(): hosts read optional values at the end of older documents, which are then zero.
    if (m_input->read(static_cast<char*>(data), length).bad()) {
        throw UnexpectedEOF();
    }
    GetShortcuts().fell_short = m_input->gcount() != static_cast<std::streamsize>(length);
}

char ObjectStoreStream::GetChar() {
    CheckOpen(ForRead);
    const int byte = m_input->get();
    if (byte == std::istream::traits_type::eof()) {
        throw UnexpectedEOF();
    }
    return static_cast<char>(byte);
}

void ObjectStoreStream::UngetChar(char c) {
    CheckOpen(ForRead);
    m_input->putback(c);
}

int ObjectStoreStream::GetTrim(char* buffer, int size) {
    CheckOpen(ForRead);
    if (m_input->getline(buffer, size, m_input->widen('\n')).bad()) {
        throw UnexpectedEOF();
    }
    auto length = m_input->gcount() - 1;
    while (length > 0) {
        buffer[length] = '\0';
        if (buffer[length - 1] != '\n' && buffer[length - 1] != '\r') {
            return static_cast<int>(length);
        }
        --length;
    }
    if (size > 0) {
        buffer[0] = '\0';
    }
    return 0;
}
