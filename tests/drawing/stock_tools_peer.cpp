// The second process of the tests of the stock tools: loads the library, asks for its tools, and unloads it.
// It is linked to nothing of the library, which would keep that loaded.
//
// Exits with 0, or with the number of what is not as it should be.
#include <windows.h>

namespace {

HMODULE library;

template <class Function>
Function find(const char* name) {
    return reinterpret_cast<Function>(reinterpret_cast<void*>(::GetProcAddress(library, name)));
}

/// By the names that the compiler gives: of a static member function, and of static data.
void* tool_of(const char* name) {
    return find<void* (*)()>(name)();
}
void* data_of(const char* name) {
    return *find<void**>(name);
}

/// The handle of what a pen, a brush or a font has behind the pointer to its virtual functions: that of the
/// framework's object, which stands behind that one's.
HGDIOBJ handle_of(void* tool) {
    void* const object = static_cast<void**>(tool)[1];
    return static_cast<HGDIOBJ*>(object)[1];
}

bool lives(HGDIOBJ handle) {
    return ::GetObjectType(handle) != 0;
}

const char* const getters[] = {"_ZN11brushes_etc10GetSysFontEv",
                               "_ZN11brushes_etc11GetSysFixedEv",
                               "_ZN11brushes_etc17GetLightGrayBrushEv",
                               "_ZN11brushes_etc17GetVeryLightBrushEv",
                               "_ZN11brushes_etc7GetAPenEv",
                               "_ZN11brushes_etc9GetRedPenEv",
                               "_ZN11brushes_etc10GetCyanPenEv",
                               "_ZN11brushes_etc11GetWhitePenEv"};
const char* const data[] = {"_ZN11brushes_etc11the_sysfontE",
                            "_ZN11brushes_etc12the_sysfixedE",
                            "_ZN11brushes_etc20the_light_gray_brushE",
                            "_ZN11brushes_etc20the_very_light_brushE",
                            "_ZN11brushes_etc7the_penE",
                            "_ZN11brushes_etc10the_redpenE",
                            "_ZN11brushes_etc11the_cyanpenE",
                            "_ZN11brushes_etc12the_whitepenE"};
constexpr int count = 8;
constexpr int freed = 5;

int check() {
    for (int i = 0; i < count; ++i) {
        if (find<void*>(getters[i]) == nullptr || find<void*>(data[i]) == nullptr) {
            return 10 + i;
        }
        if (data_of(data[i]) != nullptr) {
            return 20 + i;  // made without being asked for
        }
    }
    void* tools[count];
    HGDIOBJ handles[count];
    for (int i = 0; i < count; ++i) {
        tools[i] = tool_of(getters[i]);
        handles[i] = handle_of(tools[i]);
        if (data_of(data[i]) != tools[i] || !lives(handles[i])) {
            return 30 + i;
        }
    }
    // The stock fonts of the system belong to it; those of the getters were measured on a device already.
    ::FreeLibrary(library);
    if (::GetModuleHandleA("lvx.dll") != nullptr) {
        return 2;
    }
    for (int i = 0; i < count; ++i) {
        const bool isStock = i == 1;
        if (lives(handles[i]) != (isStock || i >= freed)) {
            return 40 + i;
        }
    }
    return 0;
}

}  // namespace

int main() {
    library = ::LoadLibraryA("lvx.dll");
    return library != nullptr ? check() : 1;
}
