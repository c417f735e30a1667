#include "lvx/store/storable.h"

#include <typeinfo>

#include "lvx/store/object_factory.h"
#include "lvx/store/type_name.h"

namespace {

const ObjectFactoryInit factory;

}  // namespace

Storable::~Storable() = default;

const char* Storable::ClassName() const {
    return lvx::store::type_name(typeid(*this));
}
