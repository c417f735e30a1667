#include "lvx/store/object_factory.h"

namespace {

const ObjectFactoryInit factory;

// The text behind the first "::", or all of it.
std::string without_first_qualifier(const std::string& name) {
    const std::size_t qualifier = name.find("::");
    return qualifier == std::string::npos ? name : name.substr(qualifier + 2);
}

}  // namespace

// Neither has a dynamic initialiser, so both are there before the first unit of any module starts.
constinit std::map<std::string, ObjectFactory::Creator, std::less<std::string>>* ObjectFactory::s_functions =
    nullptr;
constinit int ObjectFactoryInit::count = 0;

ObjectFactory::UnknownClass::UnknownClass(const std::string& name)
    : lvx::runtime_error("Class '" + name +
                         "' is not registered with the object factory - cannot create an instance of one.") {}

ObjectFactory::UnknownClass::~UnknownClass() = default;

void ObjectFactory::Register(const std::string& className, Creator creator) {
    if (ObjectFactoryInit::count > 0) {
        s_functions->emplace(without_first_qualifier(className), creator);
    }
}

Storable* ObjectFactory::Create(ObjectStore& store, const std::string& className) {
    const Creator creator = Find(className);
    if (creator == nullptr) {
        throw UnknownClass(className);
    }
    return creator(store);
}

bool ObjectFactory::IsRegistered(const std::string& className) {
    return ObjectFactoryInit::count > 0 && s_functions->count(className) != 0;
}

ObjectFactory::Creator ObjectFactory::Find(const std::string& className) {
    if (ObjectFactoryInit::count == 0) {
        return nullptr;
    }
    const auto found = s_functions->find(without_first_qualifier(className));
    return found == s_functions->end() ? nullptr : found->second;
}

ObjectFactoryInit::ObjectFactoryInit() {
    if (count == 0) {
        ObjectFactory::s_functions =
            new std::map<std::string, ObjectFactory::Creator, std::less<std::string>>;
    }
    ++count;
}

ObjectFactoryInit::~ObjectFactoryInit() {
    if (--count == 0) {
        delete ObjectFactory::s_functions;
    }
}
