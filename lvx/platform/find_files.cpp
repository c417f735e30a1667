#include "lvx/platform/find_files.h"

namespace lvx::platform {

namespace {

constexpr int failure = -1;

}  // namespace

int findfirst(const char* pattern, FindBlock& block, int attributes) {
    block.search = search_names(pattern, attributes);
    return findnext(block);
}

int findnext(FindBlock& block) {
    const char* const found = block.search ? block.search->Next() : nullptr;
    if (found == nullptr) {
        block.search.reset();
        return failure;
    }
    block.name = found;
    return 0;
}

}  // namespace lvx::platform
