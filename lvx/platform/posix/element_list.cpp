#include "lvx/platform/posix/element_list.h"

#include <cstdlib>
#include <cwchar>
#include <utility>

#include "lvx/platform/posix/counted.h"

namespace lvx::platform {
namespace {

class ElementList final : public Counted<IEnumSTATSTG> {
public:
    explicit ElementList(std::vector<Element> elements) : m_elements(std::move(elements)) {}

    HRESULT Next(ULONG count, STATSTG* elements, ULONG* fetched) override {
        // How many came is dispensable only to whoever asks for one.
        if ((elements == nullptr && count != 0) || (fetched == nullptr && count > 1)) {
            return STG_E_INVALIDPOINTER;
        }
        ULONG done = 0;
        HRESULT result = S_OK;
        while (done < count && m_next < m_elements.size() && result == S_OK) {
            result = Tell(m_elements[m_next], elements[done]);
            if (result == S_OK) {
                ++m_next;
                ++done;
            }
        }
        if (fetched != nullptr) {
            *fetched = done;
        }
        if (FAILED(result)) {
            return result;
        }
        return done == count ? S_OK : S_FALSE;
    }

private:
    static HRESULT Tell(const Element& element, STATSTG& status) {
        status = {copy_name(element.name.c_str()),
                  element.is_stream ? STGTY_STREAM : STGTY_STORAGE,
                  {element.size}};
        return status.pwcsName != nullptr ? S_OK : STG_E_INSUFFICIENTMEMORY;
    }

    std::vector<Element> m_elements;
    std::size_t m_next = 0;
};

}  // namespace

IEnumSTATSTG* make_element_list(std::vector<Element> elements) {
    return new ElementList(std::move(elements));
}

LPOLESTR copy_name(const wchar_t* name) {
    const std::size_t size = std::wcslen(name) + 1;
    auto* const copy = static_cast<LPOLESTR>(std::calloc(size, sizeof(wchar_t)));
    return copy != nullptr ? std::wmemcpy(copy, name, size) : nullptr;
}

}  // namespace lvx::platform

void CoTaskMemFree(void* memory) {
    std::free(memory);
}
