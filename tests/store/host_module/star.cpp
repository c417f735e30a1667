#include "store/host_module/star.h"

#include "lvx/store/object_factory.h"

namespace host {
namespace {

// Registers in its constructor, behind a guard of its own, as a start-up function does.
struct Registration {
    Registration(const char* name, ObjectFactory::Creator creator) {
        ObjectFactory::Register(name, creator);
        m_done = ObjectFactory::IsRegistered(name + sizeof "host::" - 1);
    }

    ObjectFactoryInit m_factory;
    bool m_done = false;
};

const Registration star("host::Star", ObjectFactory::CreateStorable<Star>);

// Runs before every initialiser of this module that has no priority.
__attribute__((init_priority(101)))
const Registration early("host::EarlyStar", ObjectFactory::CreateStorable<Star>);

}  // namespace

Star::Star() = default;
Star::~Star() = default;

void Star::PutTo(ObjectStore& store) const {
    store << m_points;
}

void Star::GetFrom(ObjectStore& store) {
    store >> m_points;
    if (m_points < 2) {
        throw ObjectStore::UnexpectedObject(std::to_string(m_points), "a star's points");
    }
}

bool was_registered_at_start() {
    return star.m_done;
}

bool was_registered_first_of_all() {
    return early.m_done;
}

}  // namespace host
