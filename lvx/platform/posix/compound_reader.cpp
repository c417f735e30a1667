#include "lvx/platform/posix/compound_reader.h"

#include <gsf/gsf-infile-msole.h>
#include <gsf/gsf-input-stdio.h>

#include <algorithm>
#include <map>
#include <utility>

#include "lvx/platform/posix/compound_layout.h"
#include "lvx/platform/posix/counted.h"
#include "lvx/platform/posix/element_list.h"
#include "lvx/platform/posix/element_names.h"
#include "lvx/platform/posix/gsf_object.h"
#include "lvx/platform/posix/stream_position.h"

namespace lvx::platform {
namespace {

class ReadStream final : public Counted<IStream> {
public:
    ReadStream(const Element& element, GsfPtr<GsfInput> input, std::shared_ptr<StreamState> state)
        : m_element(element), m_input(std::move(input)), m_state(std::move(state)) {
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
        if (wanted != 0 && !ReadAt(m_position, static_cast<guint8*>(data), wanted)) {
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
    bool ReadAt(std::uint64_t position, guint8* data, std::size_t size) {
        return gsf_input_seek(m_input.get(), static_cast<gsf_off_t>(position), G_SEEK_SET) == FALSE &&
               gsf_input_read(m_input.get(), size, data) != nullptr;
    }

    Element m_element;
    GsfPtr<GsfInput> m_input;
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
        const HRESULT result = m_layout.Load(m_file.get());
        if (FAILED(result)) {
            return result;
        }
        // libgsf takes it that the file stands at its beginning.
        std::rewind(m_file.get());
        constexpr gboolean keep_open = TRUE;
        const GsfPtr<GsfInput> source(gsf_input_stdio_new_FILE("compound file", m_file.get(), keep_open));
        if (source == nullptr) {
            return STG_E_READFAULT;
        }
        m_gsf.reset(gsf_infile_msole_new(source.get(), nullptr));
        return m_gsf != nullptr ? S_OK : STG_E_DOCFILECORRUPT;
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
        if (!m_layout.IsWhole(element)) {
            return STG_E_DOCFILECORRUPT;
        }
        GsfPtr<GsfInput> input(gsf_infile_child_by_name(m_gsf.get(), utf8_from_wide(element.name).c_str()));
        if (input == nullptr || static_cast<std::uint64_t>(gsf_input_size(input.get())) != element.size) {
            return STG_E_DOCFILECORRUPT;
        }
        stream = new ReadStream(element, std::move(input), state);
        return S_OK;
    }

    StorageFile m_file;
    CompoundLayout m_layout;
    GsfPtr<GsfInfile> m_gsf;
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
