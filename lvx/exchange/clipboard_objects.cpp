// Objects on the clipboard: through a temporary file to and from the private format.
#include <fstream>

#include "lvx/exchange/clipboard.h"
#include "lvx/exchange/hand_over.h"
#include "lvx/exchange/object_file.h"
#include "lvx/store/object_store_stream.h"
#include "owl/clipboard.h"

namespace {

using namespace lvx::exchange;

void write_object(const Storable& object, const std::string& name) {
    std::ofstream file(name, std::ios_base::binary);
    ObjectStoreStream store;
    store.OpenStream(&file);
    store << object;
    store.CloseStream();
}

void read_object(Storable*& object, bool create, const std::string& name) {
    std::ifstream file(name, std::ios_base::binary);
    ObjectStoreStream store;
    store.OpenStream(&file);
    if (!create) {
        store >> ObjectStore::NoCreate;
    }
    store >> object;
    store.CloseStream();
}

}  // namespace

bool LVXClipboard::put(Storable* object) {
    if (object == nullptr) {
        return false;
    }
    TemporaryFile file;
    if (file.Name().empty()) {
        return false;
    }
    write_object(*object, file.Name());
    const bool done =
        ::OpenClipboard(m_window) != FALSE && hand_over(CF_STORABLE, block_of_file(file.Name()));
    file.Remove();
    // Opened or not: hosts that had it open themselves count on finding it closed.
    ::CloseClipboard();
    return done;
}

bool LVXClipboard::get(Storable*& object, bool create) {
    const owl::TClipboard clipboard(m_window, false);
    const HANDLE block = clipboard.GetClipboardData(CF_STORABLE);
    const std::string file = block != nullptr ? file_of_block(block) : std::string();
    if (file.empty()) {
        return false;
    }
    read_object(object, create, file);
    return true;
}
