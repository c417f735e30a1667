#include "owl/gdi_object.h"

#include <utility>

namespace owl {

TGdiObject::TGdiObject(HGDIOBJ handle, TAutoDelete autoDelete)
    : m_handle(handle), m_owner(autoDelete == AutoDelete) {}

TGdiObject::~TGdiObject() {
    DeleteOwned();
}

HGDIOBJ TGdiObject::Detach() {
    m_owner = false;
    return std::exchange(m_handle, nullptr);
}

void TGdiObject::Replace(HGDIOBJ handle) {
    DeleteOwned();
    m_handle = handle;
    m_owner = true;
}

void TGdiObject::DeleteOwned() {
    if (m_owner && m_handle)
        ::DeleteObject(m_handle);
}

}  // namespace owl
