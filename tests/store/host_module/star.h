// A host's own class, in a module of its own.
#pragma once

#include "lvx/store/storable.h"

#ifdef LVX_TEST_BUILDING_STAR
#define LVX_TEST_STAR_API LVX_TEST_STAR_EXPORT
#else
#define LVX_TEST_STAR_API LVX_TEST_STAR_IMPORT
#endif

namespace host {

class LVX_TEST_STAR_API Star : public Storable {
public:
    Star();
    ~Star() override;
    void PutTo(ObjectStore& store) const override;
    void GetFrom(ObjectStore& store) override;

    int m_points = 5;
};

/// Whether the class was in the registry when the module's registering unit had started.
LVX_TEST_STAR_API bool was_registered_at_start();

/// Whether another class could be registered before any other initialiser of the module ran.
LVX_TEST_STAR_API bool was_registered_first_of_all();

}  // namespace host
