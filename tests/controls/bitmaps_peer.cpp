// The second process of the tests of the shared bitmaps: loads the library, asks for pictures that lie in its
// own resources, and unloads it. It is linked to nothing of the library, which would keep that loaded.
//
// Exits with 0, or with the number of what is not as it should be.
#include <windows.h>

#include <cstring>

namespace {

HMODULE library;

template <class Function>
Function find(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
}

// By the names that the compiler gives to static member functions, static data and a member function.

void* icon() {
    return find<void* (*)()>("_ZN7bitmaps8questionEv")();
}
void** button() {
    return find<void** (*)()>("_ZN7bitmaps2okEv")();
}

/// What a picture is, as far as this program knows it: to call a member function as the compiler does.
class Picture {};

HBITMAP handle_of(const void* picture) {
    using GetBitmap = HBITMAP (Picture::*)(int) const;
    const auto address = find<void*>("_ZNK9LVXBitmap9getBitmapEi");
    GetBitmap getBitmap = nullptr;
    std::memcpy(&getBitmap, &address, sizeof address);
    return (static_cast<const Picture*>(picture)->*getBitmap)(0);
}

int check() {
    auto** const kept_icon = find<void**>("_ZN7bitmaps4quesE");
    auto** const kept_button = find<void**>("_ZN7bitmaps6okbmpsE");
    if (kept_icon == nullptr || kept_button == nullptr) {
        return 2;
    }
    if (*kept_icon != nullptr || kept_button[0] != nullptr) {
        return 3;  // made without being asked for
    }
    const HBITMAP handles[] = {handle_of(icon()), handle_of(button()[0]), handle_of(button()[1]),
                               handle_of(button()[3])};
    for (int i = 0; i < 4; ++i) {
        if (::GetObjectType(handles[i]) != OBJ_BITMAP) {
            return 10 + i;
        }
    }
    ::FreeLibrary(library);
    if (::GetModuleHandleA("lvx.dll") != nullptr) {
        return 4;
    }
    for (int i = 0; i < 4; ++i) {
        if (::GetObjectType(handles[i]) != 0) {
            return 20 + i;
        }
    }
    return 0;
}

}  // namespace

int main() {
    library = ::LoadLibraryA("lvx.dll");
    return library != nullptr ? check() : 1;
}
