#include "owl/menu.h"

#include <vector>

#include "owl/last_error.h"
#include "owl/module.h"
#include "owl/window.h"

namespace owl {

namespace {

// What several of the system's calls give for an item that there is not.
constexpr DWORD no_item = ~static_cast<DWORD>(0);

}  // namespace

TMenu::TMenu(TAutoDelete autoDelete)
    : m_handle(Require<TXWindow>("CreateMenu", [] { return ::CreateMenu(); })), m_autoDelete(autoDelete) {}

TMenu::TMenu(HMENU handle, TAutoDelete autoDelete) : m_handle(handle), m_autoDelete(autoDelete) {}

TMenu::TMenu(const TModule& module, TResId id)
    : m_handle(Require<TXWindow>("LoadMenu", [&] { return module.LoadMenu(id); })),
      m_autoDelete(AutoDelete) {}

TMenu::~TMenu() {
    if (m_autoDelete == AutoDelete && m_handle != nullptr)
        ::DestroyMenu(m_handle);
}

HMENU TMenu::Release() {
    m_autoDelete = NoAutoDelete;
    return m_handle;
}

int TMenu::GetMenuItemCount() const {
    return ::GetMenuItemCount(m_handle);
}

HMENU TMenu::GetSubMenu(int position) const {
    return ::GetSubMenu(m_handle, position);
}

UINT TMenu::GetMenuItemID(int position) const {
    return ::GetMenuItemID(m_handle, position);
}

UINT TMenu::GetMenuState(UINT item, UINT flags) const {
    return ::GetMenuState(m_handle, item, flags);
}

// From the whole text: the system does not terminate one that it cuts on every platform.
int TMenu::GetMenuString(UINT item, char* text, int size, UINT flags) const {
    if (text == nullptr || size <= 0)
        return 0;
    const std::size_t copied = GetMenuString(item, flags).copy(text, static_cast<std::size_t>(size) - 1);
    text[copied] = '\0';
    return static_cast<int>(copied);
}

std::string TMenu::GetMenuString(UINT item, UINT flags) const {
    const int length = ::GetMenuStringA(m_handle, item, nullptr, 0, flags);
    if (length <= 0)
        return {};
    std::vector<char> text(static_cast<std::size_t>(length) + 2);
    ::GetMenuStringA(m_handle, item, text.data(), length + 1, flags);
    return text.data();
}

bool TMenu::AppendMenu(UINT flags, UINT_PTR id, const char* text) {
    return ::AppendMenuA(m_handle, flags, id, text) != 0;
}

bool TMenu::InsertMenu(UINT before, UINT flags, UINT_PTR id, const char* text) {
    return ::InsertMenuA(m_handle, before, flags, id, text) != 0;
}

bool TMenu::ModifyMenu(UINT item, UINT flags, UINT_PTR id, const char* text) {
    return ::ModifyMenuA(m_handle, item, flags, id, text) != 0;
}

bool TMenu::RemoveMenu(UINT item, UINT flags) {
    return ::RemoveMenu(m_handle, item, flags) != 0;
}

bool TMenu::DeleteMenu(UINT item, UINT flags) {
    return ::DeleteMenu(m_handle, item, flags) != 0;
}

bool TMenu::CheckMenuItem(UINT item, UINT flags) {
    return ::CheckMenuItem(m_handle, item, flags) != no_item;
}

bool TMenu::EnableMenuItem(UINT item, UINT flags) {
    return static_cast<DWORD>(::EnableMenuItem(m_handle, item, flags)) != no_item;
}

TPopupMenu::TPopupMenu(TAutoDelete autoDelete)
    : TMenu(Require<TXWindow>("CreatePopupMenu", [] { return ::CreatePopupMenu(); }), autoDelete) {}

TPopupMenu::TPopupMenu(HMENU handle, TAutoDelete autoDelete) : TMenu(handle, autoDelete) {}

TPopupMenu::~TPopupMenu() = default;

int TPopupMenu::TrackPopupMenu(UINT flags, int x, int y, const TWindow& window) {
    return ::TrackPopupMenu(GetHandle(), flags, x, y, 0, window.GetHandle(), nullptr);
}

}  // namespace owl
