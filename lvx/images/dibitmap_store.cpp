// Bitmaps in a store.
#include <typeinfo>

#include "lvx/images/block.h"
#include "lvx/images/dibitmap.h"
#include "lvx/images/dibitmap_strategy.h"
#include "lvx/store/object_factory.h"
#include "lvx/store/object_store.h"
#include "lvx/store/type_name.h"

namespace LVXUtilities {
namespace {

Storable* create_bitmap(ObjectStore& store) {
    lvx::auto_ptr<Storable> bitmap(new DIBitmap(nullptr, DIBitmap::Copy));
    store.AppendObjectToList(bitmap.get());
    bitmap->GetFrom(store);
    return bitmap.release();
}

const ObjectFactoryInit factory;
const bool registered =
    (ObjectFactory::Register(lvx::store::type_name(typeid(DIBitmap)), create_bitmap), true);

}  // namespace

void DIBitmap::PutTo(ObjectStore& store) const {
    const GlobalLocker<const char> bytes(m_block);
    const std::size_t size = GlobalSize(m_block);
    if (size > lvx::images::largest_block) {
        throw ObjectStore::WriteFailure();
    }
    store << static_cast<long>(size);
    store.Write(bytes.get(), static_cast<unsigned int>(size));
}

void DIBitmap::GetFrom(ObjectStore& store) {
    // Room that a host which sets FixUp counts on behind what was stored.
    constexpr unsigned int fix_up_bytes = 24;
    long size = 0;
    store >> size;
    store.ExpectBytes(size);
    if (m_block != nullptr) {
        GlobalFree(m_block);
        m_block = nullptr;
    }
    const auto length = static_cast<unsigned int>(size);
    m_block = lvx::images::allocate_block(GHND, std::uint64_t{length} + (FixUp ? fix_up_bytes : 0));
    const GlobalLocker<char> bytes(m_block);
    store.Read(bytes.get(), length);
    m_strategy = &Strategy::Select(m_block);
}

}  // namespace LVXUtilities
