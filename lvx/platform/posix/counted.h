// lvx/platform/posix/counted.h
//
// The reference count that every object behind an interface has. It begins with one reference, the maker's.
#pragma once

#include "lvx/platform/structured_storage.h"

namespace lvx::platform {

template <class Interface>
class Counted : public Interface {
public:
    Counted() = default;
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

    ULONG AddRef() final { return ++m_count; }
    ULONG Release() final {
        const ULONG left = --m_count;
        if (left == 0) {
            delete this;
        }
        return left;
    }

protected:
    virtual ~Counted() = default;

private:
    ULONG m_count = 1;
};

struct Releaser {
    template <class Interface>
    void operator()(Interface* object) const {
        object->Release();
    }
};

}  // namespace lvx::platform
