#include "lvx/platform/posix/compound_writer.h"

#include <algorithm>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "lvx/platform/posix/compound_output.h"
#include "lvx/platform/posix/counted.h"
#include "lvx/platform/posix/element_list.h"
#include "lvx/platform/posix/element_names.h"
#include "lvx/platform/posix/stream_position.h"

namespace lvx::platform {
namespace {

// A stream of the storage, shared with whoever has it open.
struct Content {
    std::wstring name;
    StreamBytes bytes;
    StreamState state;
};

class WriteStream final : public Counted<IStream> {
public:
    WriteStream(std::shared_ptr<Content> content, DWORD access)
        : m_content(std::move(content)), m_access(access) {
        m_content->state.is_open = true;
    }
    ~WriteStream() override { m_content->state.is_open = false; }

    HRESULT Read(void* data, ULONG size, ULONG* count) override {
        if (count != nullptr) {
            *count = 0;
        }
        const HRESULT result = Check(data, size, STGM_WRITE);
        if (FAILED(result)) {
            return result;
        }
        const std::size_t read = m_content->bytes.Read(m_position, {static_cast<unsigned char*>(data), size});
        m_position += read;
        if (count != nullptr) {
            *count = static_cast<ULONG>(read);
        }
        return S_OK;
    }

    HRESULT Write(const void* data, ULONG size, ULONG* count) override try {
        if (count != nullptr) {
            *count = 0;
        }
        const HRESULT result = Check(data, size, STGM_READ);
        if (FAILED(result)) {
            return result;
        }
        if (!m_content->bytes.Write(m_position, {static_cast<const unsigned char*>(data), size})) {
            return STG_E_MEDIUMFULL;
        }
        m_position += size;
        if (count != nullptr) {
            *count = size;
        }
        return S_OK;
    } catch (const std::bad_alloc&) {
        return STG_E_INSUFFICIENTMEMORY;
    }

    HRESULT Seek(LARGE_INTEGER distance, DWORD origin, ULARGE_INTEGER* position) override {
        if (m_content->state.is_reverted) {
            return STG_E_REVERTED;
        }
        const HRESULT result = move_position(m_position, m_content->bytes.Size(), distance, origin);
        if (position != nullptr) {
            position->QuadPart = m_position;
        }
        return result;
    }

    HRESULT Stat(STATSTG* status, DWORD flags) override {
        return m_content->state.is_reverted
                   ? STG_E_REVERTED
                   : tell_stream(m_content->name.c_str(), m_content->bytes.Size(), flags, status);
    }

private:
    // Whether a transfer may begin on a stream that is not open with `other_access` alone.
    HRESULT Check(const void* data, ULONG size, DWORD other_access) const {
        if (m_content->state.is_reverted) {
            return STG_E_REVERTED;
        }
        if (m_access == other_access) {
            return STG_E_ACCESSDENIED;
        }
        return data == nullptr && size != 0 ? STG_E_INVALIDPOINTER : S_OK;
    }

    std::shared_ptr<Content> m_content;
    DWORD m_access;
    std::uint64_t m_position = 0;
};

// The access part of `mode`, if the rest of it is `rest`.
std::optional<DWORD> access_of(DWORD mode, DWORD rest) {
    const DWORD access = mode & ~rest;
    return (mode & rest) == rest && access <= STGM_READWRITE ? std::optional(access) : std::nullopt;
}

}  // namespace

class WriteStorage final : public Counted<IStorage> {
public:
    explicit WriteStorage(StorageFile file) : m_file(std::move(file)) {}
    ~WriteStorage() override { Complete(); }

    /// Writes the file, once.
    bool Complete() try {
        for (const auto& content : m_contents) {
            content->state.is_reverted = true;
        }
        return m_file == nullptr || write_compound_file(std::move(m_file), ListStreams());
    } catch (const std::bad_alloc&) {
        return false;
    }

    HRESULT OpenStream(const OLECHAR* name, void*, DWORD mode, DWORD, IStream** stream) override try {
        const std::optional<DWORD> access = access_of(mode, STGM_SHARE_EXCLUSIVE);
        const HRESULT result = Check(name, access, stream);
        if (FAILED(result)) {
            return result;
        }
        const auto place = Find(name);
        if (place == m_contents.end()) {
            return STG_E_FILENOTFOUND;
        }
        if ((*place)->state.is_open) {
            return STG_E_ACCESSDENIED;
        }
        *stream = new WriteStream(*place, *access);
        return S_OK;
    } catch (const std::bad_alloc&) {
        return STG_E_INSUFFICIENTMEMORY;
    }

    HRESULT CreateStream(const OLECHAR* name, DWORD mode, DWORD, DWORD, IStream** stream) override try {
        const std::optional<DWORD> access = access_of(mode, STGM_SHARE_EXCLUSIVE | STGM_CREATE);
        const HRESULT result = Check(name, access, stream);
        if (FAILED(result)) {
            return result;
        }
        auto content = std::make_shared<Content>();
        content->name = name;
        std::unique_ptr<WriteStream, Releaser> created(new WriteStream(content, *access));
        Replace(std::move(content));
        *stream = created.release();
        return S_OK;
    } catch (const std::bad_alloc&) {
        return STG_E_INSUFFICIENTMEMORY;
    }

    HRESULT EnumElements(DWORD, void*, DWORD, IEnumSTATSTG** elements) override try {
        if (elements == nullptr) {
            return STG_E_INVALIDPOINTER;
        }
        std::vector<Element> list;
        for (const auto& content : m_contents) {
            list.push_back({content->name, true, content->bytes.Size(), 0});
        }
        *elements = make_element_list(std::move(list));
        return S_OK;
    } catch (const std::bad_alloc&) {
        return STG_E_INSUFFICIENTMEMORY;
    }

private:
    using Contents = std::vector<std::shared_ptr<Content>>;

    static HRESULT Check(const OLECHAR* name, std::optional<DWORD> access, IStream** stream) {
        if (stream == nullptr) {
            return STG_E_INVALIDPOINTER;
        }
        *stream = nullptr;
        if (!access) {
            return STG_E_INVALIDFLAG;
        }
        return name != nullptr && is_element_name(name) ? S_OK : STG_E_INVALIDNAME;
    }

    std::vector<OutputStream> ListStreams() const {
        std::vector<OutputStream> streams;
        for (const auto& content : m_contents) {
            streams.push_back({content->name, &content->bytes});
        }
        return streams;
    }

    Contents::iterator Find(const std::wstring& name) {
        return std::ranges::find_if(
            m_contents, [&](const auto& content) { return is_same_element(content->name, name); });
    }

    void Replace(std::shared_ptr<Content> content) {
        const auto place = Find(content->name);
        if (place == m_contents.end()) {
            m_contents.push_back(std::move(content));
            return;
        }
        (*place)->state.is_reverted = true;
        *place = std::move(content);
    }

    StorageFile m_file;
    Contents m_contents;
};

IStorage* write_compound(StorageFile file) {
    return new WriteStorage(std::move(file));
}

bool complete_storage(IStorage* storage) {
    bool complete = true;
    if (auto* const writer = dynamic_cast<WriteStorage*>(storage)) {
        complete = writer->Complete();
    }
    if (storage != nullptr) {
        storage->Release();
    }
    return complete;
}

}  // namespace lvx::platform
