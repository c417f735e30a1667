#include "lvx/platform/posix/compound_reader.h"

#include <algorithm>
#include <map>
#include <memory>
#include <new>
#include <optional>
#include <utility>
#include <vector>

#include "lvx/platform/posix/compound_layout.h"
#include "lvx/platform/posix/counted.h"
#include "lvx/platform/posix/element_list.h"
#include "lvx/platform/posix/element_names.h"
#include "lvx/platform/posix/stream_position.h"

namespace lvx::platform {
namespace {

class ReadStream final : public Counted<IStream> {
public:
    ReadStream(const Element& element, std::vector<Extent> extents, std::FILE* file,
               std::shared_ptr<StreamState> state)
        : m_element(element), m_extents(std::move(extents)), m_file(file), m_state(std::move(state)) {
        m_state->is_open = true;
    }
    ~ReadStream() override { m_state->is_open = false; }

    HRESULT Read(void* data, ULONG size, ULONG* count) override {
        ULONG ignored = 0;
        ULONG& read = count != nullptr ? *count : ignored;
        read = 0;
        if (m_state->is_reverted) {
            return STG_E_REVERTED;
        }
        if (data == nullptr && size != 0) {
            return STG_E_INVALIDPOINTER;
        }
        const std::uint64_t left = m_element.size - std::min(m_element.size, m_position);
        const auto wanted = static_cast<ULONG>(std::min<std::uint64_t>(size, left));
        if (wanted != 0 && !ReadAt(m_position, static_cast<unsigned char*>(data), wanted)) {
            return STG_E_READFAULT;
        }
        m_position += wanted;
        read = wanted;
        return S_OK;
    }

    HRESULT Write(const void*, ULONG, ULONG* count) override {
        if (count != nullptr) {
            *count = 0;
        }
        return m_state->is_reverted ? STG_E_REVERTED : STG_E_ACCESSDENIED;
    }

    HRESULT Seek(LARGE_INTEGER distance, DWORD origin, ULARGE_INTEGER* position) override {
        if (m_state->is_reverted) {
            return STG_E_REVERTED;
        }
        const HRESULT result = move_position(m_position, m_element.size, distance, origin);
        if (position != nullptr) {
            position->QuadPart = m_position;
        }
        return result;
    }

    HRESULT Stat(STATSTG* status, DWORD flags) override {
        return m_state->is_reverted ? STG_E_REVERTED
                                    : tell_stream(m_element.name.c_str(), m_element.size, flags, status);
    }

private:
    // Requires: the stream has the bytes.
    bool ReadAt(std::uint64_t position, unsigned char* data, std::uint64_t size) const {
        auto extent = std::ranges::upper_bound(m_extents, position, {}, &Extent::position) - 1;
        for (; size != 0; ++extent) {
            const std::uint64_t skipped = position - extent->position;
            const std::uint64_t length = std::min(size, extent->length - skipped);
            if (!read_at(m_file, extent->offset + skipped, data, length)) {
                return false;
            }
            position += length;
            data += length;
            size -= length;
        }
        return true;
    }

    Element m_element;
    std::vector<Extent> m_extents;
    // The storage's, which is not touched once that has reverted the stream.
    std::FILE* m_file;
    std::shared_ptr<StreamState> m_state;
    std::uint64_t m_position = 0;
};

class ReadStorage final : public Counted<IStorage> {
public:
    ~ReadStorage() override {
        for (const auto& [element, state] : m_states) {
            state->is_reverted = true;
        }
    }

    HRESULT Load(StorageFile file) {
        m_file = std::move(file);
        return m_layout.Load(m_file.get());
    }

    HRESULT OpenStream(const OLECHAR* name, void*, DWORD mode, DWORD, IStream** stream) override try {
        if (stream == nullptr) {
            return STG_E_INVALIDPOINTER;
        }
        *stream = nullptr;
        if (mode != (STGM_READ | STGM_SHARE_EXCLUSIVE)) {
            return STG_E_INVALIDFLAG;
        }
        if (name == nullptr || !is_element_name(name)) {
            return STG_E_INVALIDNAME;
        }
        const Element* const element = Find(name);
        if (element == nullptr) {
            return STG_E_FILENOTFOUND;
        }
        return Open(*element, *stream);
    } catch (const std::bad_alloc&) {
        return STG_E_INSUFFICIENTMEMORY;
    }

    HRESULT CreateStream(const OLECHAR*, DWORD, DWORD, DWORD, IStream** stream) override {
        if (stream != nullptr) {
            *stream = nullptr;
        }
        return STG_E_ACCESSDENIED;
    }

    HRESULT EnumElements(DWORD, void*, DWORD, IEnumSTATSTG** elements) override try {
        if (elements == nullptr) {
            return STG_E_INVALIDPOINTER;
        }
        *elements = make_element_list(m_layout.Elements());
        return S_OK;
    } catch (const std::bad_alloc&) {
        return STG_E_INSUFFICIENTMEMORY;
    }

private:
    const Element* Find(const std::wstring& name) const {
        const auto found = std::ranges::find_if(m_layout.Elements(), [&](const Element& element) {
            return element.is_stream && is_same_element(element.name, name);
        });
        return found != m_layout.Elements().end() ? &*found : nullptr;
    }

    HRESULT Open(const Element& element, IStream*& stream) {
        const std::shared_ptr<StreamState>& state =
            m_states.try_emplace(&element, std::make_shared<StreamState>()).first->second;
        if (state->is_open) {
            return STG_E_ACCESSDENIED;
        }
        std::optional<std::vector<Extent>> extents = m_layout.Locate(element);
        if (!extents) {
            return STG_E_DOCFILECORRUPT;
        }
        stream = new ReadStream(element, std::move(*extents), m_file.get(), state);
        return S_OK;
    }

    StorageFile m_file;
    CompoundLayout m_layout;
    std::map<const Element*, std::shared_ptr<StreamState>> m_states;
};

}  // namespace

HRESULT read_compound(StorageFile file, IStorage*& storage) {
    std::unique_ptr<ReadStorage, Releaser> reader(new ReadStorage);
    const HRESULT result = reader->Load(std::move(file));
    if (SUCCEEDED(result)) {
        storage = reader.release();
    }
    return result;
}

}  // namespace lvx::platform
