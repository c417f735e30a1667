#include "lvx/drawing/resource_module.h"

#include "lvx/platform/library_module.h"
#include "owl/application.h"

namespace {

HINSTANCE application_module() {
    const owl::TApplication* const application = owl::GetApplicationObject();
    return application != nullptr ? application->GetInstance() : nullptr;
}

}  // namespace

HINSTANCE lvx::drawing::module_with_bitmap(const std::string& name) {
    const HINSTANCE library = platform::library_module();
    for (const HINSTANCE module : {library, application_module(), ::GetModuleHandleA(nullptr)}) {
        if (module != nullptr && ::FindResourceA(module, name.c_str(), RT_BITMAP) != nullptr) {
            return module;
        }
    }
    return library;
}
