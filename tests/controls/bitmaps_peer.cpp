// The second process of the tests of the shared bitmaps: loads the library, asks for pictures that lie in its
// own resources, and unloads it. It is linked to nothing of the library, which would keep that loaded.
//
// Exits with 0, or with the number of what is not as it should be.
#include <windows.h>

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

int check() {
    auto** const kept_icon = find<void**>("_ZN7bitmaps4quesE");
    auto** const kept_button = find<void**>("_ZN7bitmaps6okbmpsE");
    if (kept_icon == nullptr || kept_button == nullptr) {
        return 2;
    }
    if (*kept_icon != nullptr || kept_button[0] != nullptr) {
        return 3;  // made without being asked for
    }
    // On x86 the object's address of a member function goes a way of its own.
    using GetBitmap = HBITMAP(__thiscall*)(const void*, int);
    const auto handle_of = find<GetBitmap>("_ZNK9LVXBitmap9getBitmapEi");
    const HBITMAP handles[] = {handle_of(icon(), 0), handle_of(button()[0], 0), handle_of(button()[1], 0),
                               handle_of(button()[3], 0)};
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
