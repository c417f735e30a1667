// Packs plain golden documents into a compound document, each as a stream. Has written the golden compound
// documents, on each system those that are named for it (tests/data/golden/README.md).
//
//     lvx_golden_writer OUT NAME...
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "lvx/store/object_store_storage.h"
#include "store/golden.h"
#include "support/bytes.h"

namespace {

bool write(const std::string& out, const std::vector<std::string>& names) {
    std::string error;
    LVXUtilities::ObjectStoreStorage store;
    if (!store.OpenStorage(out, ObjectStore::ForWrite, error)) {
        std::fprintf(stderr, "%s: %s\n", out.c_str(), error.c_str());
        return false;
    }
    for (const std::string& name : names) {
        const std::string content = lvx_test::read_file(lvx_test::golden::path(name + ".store"));
        if (!store.OpenStream(name, error)) {
            std::fprintf(stderr, "%s: %s\n", name.c_str(), error.c_str());
            return false;
        }
        store.Write(content.data(), static_cast<unsigned int>(content.size()));
    }
    store.CloseStream();
    return true;
}

}  // namespace

int main(int count, char** arguments) {
    if (count < 3) {
        std::fputs("usage: lvx_golden_writer OUT NAME...\n", stderr);
        return 2;
    }
    try {
        return write(arguments[1], {arguments + 2, arguments + count}) ? 0 : 1;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}
