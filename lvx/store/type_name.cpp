#include "lvx/store/type_name.h"

#include <cxxabi.h>

#include <array>
#include <atomic>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

namespace lvx::store {
namespace {

struct KnownType {
    const std::type_info* type;
    std::string mangled;
    std::string plain;
    const KnownType* next;
};

using Bucket = std::atomic<const KnownType*>;

// Lists that only grow at their head, so that readers need no lock. What hangs in them is never deleted:
// hosts hold on to the names.
std::array<Bucket, 256> buckets;

Bucket& bucket_of(const std::type_info& type) {
    return buckets[(reinterpret_cast<std::uintptr_t>(&type) >> 4) % buckets.size()];
}

// Both the address and the text are compared: a module loaded where another lay before brings other types at
// the same addresses.
const KnownType* find(const KnownType* head, const std::type_info& type) {
    while (head != nullptr && (head->type != &type || std::strcmp(head->mangled.c_str(), type.name()) != 0)) {
        head = head->next;
    }
    return head;
}

std::string plain_name(const char* mangled) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> plain(
        abi::__cxa_demangle(mangled, nullptr, nullptr, &status), &std::free);
    if (status == -1) {
        throw std::bad_alloc();
    }
    return plain != nullptr ? plain.get() : mangled;
}

}  // namespace

const char* type_name(const std::type_info& type) {
    Bucket& bucket = bucket_of(type);
    const KnownType* head = bucket.load(std::memory_order_acquire);
    if (const KnownType* known = find(head, type)) {
        return known->plain.c_str();
    }
    auto added = std::make_unique<KnownType>(KnownType{&type, type.name(), plain_name(type.name()), head});
    // Two threads may add the same type; both texts are equal and either may be found from then on.
    while (!bucket.compare_exchange_weak(added->next, added.get(), std::memory_order_acq_rel)) {
    }
    return added.release()->plain.c_str();
}

}  // namespace lvx::store
