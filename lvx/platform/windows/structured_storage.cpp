#include "lvx/platform/structured_storage.h"

namespace lvx::platform {

bool complete_storage(IStorage* storage) {
    if (storage != nullptr) {
        storage->Release();
    }
    return true;
}

std::wstring file_name_of(std::wstring widened, const std::string&) {
    return widened;
}

}  // namespace lvx::platform
