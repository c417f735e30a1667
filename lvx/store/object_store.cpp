#include "lvx/store/object_store.h"

#include "lvx/store/object_map.h"
#include "lvx/store/shortcuts.h"

namespace {

const ObjectFactoryInit factory;

}  // namespace

ObjectStore::NotOpen::NotOpen() : lvx::runtime_error("Object store is not open.") {}
ObjectStore::NotOpen::~NotOpen() = default;

ObjectStore::UnexpectedEOF::UnexpectedEOF() : lvx::runtime_error("Unexpected end of file.") {}
ObjectStore::UnexpectedEOF::~UnexpectedEOF() = default;

ObjectStore::WrongMode::WrongMode()
    : lvx::runtime_error("Object store is open in the wrong mode to perform the operation.") {}
ObjectStore::WrongMode::~WrongMode() = default;

ObjectStore::WriteFailure::WriteFailure() : lvx::runtime_error("Failed to write to object store.") {}
ObjectStore::WriteFailure::~WriteFailure() = default;

ObjectStore::UnexpectedObject::UnexpectedObject(const std::string& found, const char* expected)
    : lvx::runtime_error(std::string("Unexpected object in the store: expected ") + expected + ", found " +
                         found) {}
ObjectStore::UnexpectedObject::UnexpectedObject(char found, const char* expected)
    : UnexpectedObject(std::string(1, found), expected) {}
ObjectStore::UnexpectedObject::~UnexpectedObject() = default;

ObjectStore::ObjectStore() : m_shortcuts(new lvx::store::Shortcuts) {}

ObjectStore::~ObjectStore() = default;

void ObjectStore::CloseStream() {
    m_objectList.reset();
    m_objectMap.reset();
    m_shortcuts->abandoned_begin = m_shortcuts->abandoned_end = 0;
    m_shortcuts->lent.clear();
}

ObjectStore& ObjectStore::operator<<(ObjectStore& (*manipulator)(ObjectStore&)) {
    return manipulator(*this);
}

ObjectStore& ObjectStore::operator<<(const BoolManipulator& manipulator) {
    manipulator.apply(*this, manipulator.on);
    return *this;
}

ObjectStore& ObjectStore::operator>>(ObjectStore& (*manipulator)(ObjectStore&)) {
    return manipulator(*this);
}

ObjectStore& ObjectStore::operator>>(const BoolManipulator& manipulator) {
    return *this << manipulator;
}

ObjectStore& ObjectStore::TempObject(ObjectStore& store) {
    store.m_tempObject = true;
    return store;
}

ObjectStore& ObjectStore::NoCreate(ObjectStore& store) {
    store.m_create = false;
    return store;
}

ObjectStore::BoolManipulator ObjectStore::Ascii(bool on) {
    return {[](ObjectStore& store, bool ascii) { store.SetAscii(ascii); }, on};
}

void ObjectStore::SetAscii(bool on) {
    m_ascii = on;
}

void ObjectStore::ReadVersion() {
    long version = 0;
    *this >> version;
    m_version = version;
}

long ObjectStore::GetVersion() const {
    return m_version;
}

std::string ObjectStore::ClassName() const {
    return m_className;
}

void ObjectStore::AppendObjectToMap(const Storable* object) {
    if (m_objectMap.get() == nullptr) {
        m_objectMap.reset(new lvx::store::ObjectMap);
    }
    m_objectMap->Append(object);
}

void ObjectStore::AppendObjectToList(Storable* object) {
    std::vector<Storable*>* const list = m_objectList.get();
    // What takes memory stands apart, so that the usual case has no registers to save: this is called for
    // every object.
    if (list == nullptr || list->size() == list->capacity()) {
        GrowObjectList(object);
    } else {
        list->push_back(object);
    }
}

[[gnu::noinline]] void ObjectStore::GrowObjectList(Storable* object) {
    if (m_objectList.get() == nullptr) {
        m_objectList.reset(new std::vector<Storable*>);
    }
    m_objectList->push_back(object);
}

void ObjectStore::ExpectBytes(long long length) {
    if (length < 0) {
        throw UnexpectedEOF();
    }
    // Asking the medium costs more than the memory that a small value takes. On a standard stream a value
    // that falls short raises nothing, which stays so for all that is not absurd.
    constexpr long long small_value = 4096;
    constexpr long long absurd_value = 1024 * 1024;
    if (length <= (m_shortcuts->GetDirectReader() != nullptr ? small_value : absurd_value)) {
        return;
    }
    const std::optional<std::uint64_t> remaining = m_shortcuts->Remaining();
    if (remaining && *remaining < static_cast<std::uint64_t>(length)) {
        // As reading would leave it.
        m_shortcuts->SkipToEnd();
        throw UnexpectedEOF();
    }
}

lvx::store::Shortcuts& ObjectStore::GetShortcuts() {
    return *m_shortcuts;
}
