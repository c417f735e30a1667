// Objects in a store: their markers, classes and references, and how they come to life again.
#include <algorithm>
#include <cstring>

#include "lvx/platform/stack.h"
#include "lvx/store/object_frame.h"
#include "lvx/store/object_map.h"
#include "lvx/store/object_store.h"
#include "lvx/store/shortcuts.h"

namespace {

using namespace lvx::store;

const ObjectFactoryInit factory;

// Documents hold longer names than the library reads back; see Storable::ClassName.
constexpr int class_name_buffer = 50;

const char* name_of(const Storable* object) {
    return object == nullptr ? "null pointer" : object->ClassName();
}

// What a NoCreate read expects, which is the class of the object to read into.
const char* expected_class(const Storable* target) {
    return target == nullptr ? "an object" : target->ClassName();
}

char next_char(ObjectStore& store, Shortcuts& shortcuts) {
    const unsigned char* const place = shortcuts.Take(1);
    return place != nullptr ? static_cast<char>(*place) : store.GetChar();
}

void refuse_deep_nesting() {
    if (lvx::platform::stack_is_low()) {
        throw ObjectStore::UnexpectedObject(std::string("objects nested too deeply"), "a storable");
    }
}

void put_reference(ObjectStore& store, Shortcuts& shortcuts, char marker, long id) {
    if (unsigned char* const place = shortcuts.Claim(Frame::reference_size)) {
        *place = static_cast<unsigned char>(marker);
        encode_tagged_number(reference_tag, static_cast<std::uint32_t>(id), place + 1);
        return;
    }
    store << marker << reference_tag << id;
}

void put_class_and_body_tag(ObjectStore& store, Shortcuts& shortcuts, long number) {
    if (unsigned char* const place = shortcuts.Claim(Frame::size - 1)) {
        encode_tagged_number(class_number_tag, static_cast<std::uint32_t>(number), place);
        place[tagged_number_size] = static_cast<unsigned char>(body_tag);
        return;
    }
    store << class_number_tag << number << body_tag;
}

}  // namespace

// Watches over a new object while it is read. If that fails, the creator has deleted the object, and what it
// had read; the list keeps their places, so that later ids stay right, but no pointer to them.
class ObjectStore::Reading {
public:
    explicit Reading(ObjectStore& store) : m_store(store), m_begin(Size()) {
        m_store.m_shortcuts->being_read.push_back(m_begin);
    }
    Reading(const Reading&) = delete;
    Reading& operator=(const Reading&) = delete;

    ~Reading() {
        m_store.m_shortcuts->being_read.pop_back();
        if (!m_complete) {
            Abandon();
        }
    }

    void Complete() { m_complete = true; }

private:
    std::size_t Size() const {
        return m_store.m_objectList.get() == nullptr ? 0 : m_store.m_objectList->size();
    }

    // Each level of a deep nest ends here in turn; what an inner one has cleared is not cleared again.
    void Abandon() {
        Shortcuts& shortcuts = *m_store.m_shortcuts;
        const std::size_t size = Size();
        const bool cleared = shortcuts.abandoned_end == size && shortcuts.abandoned_begin >= m_begin;
        const std::size_t end = cleared ? shortcuts.abandoned_begin : size;
        if (m_begin < end) {
            std::fill(m_store.m_objectList->begin() + static_cast<std::ptrdiff_t>(m_begin),
                      m_store.m_objectList->begin() + static_cast<std::ptrdiff_t>(end), nullptr);
        }
        shortcuts.abandoned_begin = m_begin;
        shortcuts.abandoned_end = size;
    }

    ObjectStore& m_store;
    std::size_t m_begin;
    bool m_complete = false;
};

ObjectStore& ObjectStore::operator<<(const Storable& object) {
    if (lvx::platform::stack_is_low()) {
        throw WriteFailure();
    }
    // It stands in front of references too.
    const char marker = m_ascii ? ascii_marker : binary_marker;
    const long id = m_tempObject ? -1 : FindId(object);
    if (id >= 0) {
        put_reference(*this, *m_shortcuts, marker, id);
    } else {
        *this << marker;
        const char* const name = object.ClassName();
        AppendObjectToMap(&object);
        WriteClassAndBodyTag(name);
        object.PutTo(*this);
    }
    // After the members: the first object among them is written in full too, and ends the effect.
    m_tempObject = false;
    return *this;
}

long ObjectStore::FindId(const Storable& object) const {
    return m_objectMap.get() == nullptr ? -1 : m_objectMap->Find(&object);
}

void ObjectStore::WriteClassAndBodyTag(const char* name) {
    const long number = m_shortcuts->FindClass(name, m_classNames);
    if (number >= 0) {
        put_class_and_body_tag(*this, *m_shortcuts, number);
        return;
    }
    *this << class_name_tag;
    Write(name, static_cast<unsigned int>(std::strlen(name)));
    Write("\r\n", 2);
    m_classNames.emplace_back(name);
    *this << body_tag;
}

bool ObjectStore::ReadObjectOrClass(Storable*& object) {
    for (;;) {
        const char tag = next_char(*this, *m_shortcuts);
        switch (tag) {
            case ascii_marker:
            case binary_marker:
                m_ascii = tag == ascii_marker;
                break;
            case null_tag:
                if (!m_create) {
                    throw UnexpectedObject(null_tag, expected_class(object));
                }
                object = nullptr;
                return false;
            case reference_tag:
                object = ReadReference(object);
                return false;
            case class_name_tag:
                ReadClassName();
                return true;
            case class_number_tag:
                ReadClassNumber();
                return true;
            default:
                if (!m_create) {
                    throw UnexpectedObject(tag, "an object or class");
                }
                // No exception: hosts take what they do not know for "nothing stored here".
                object = nullptr;
                return false;
        }
    }
}

bool ObjectStore::IsObject(long id) const {
    return m_objectList.get() != nullptr && id >= 0 && static_cast<std::size_t>(id) < m_objectList->size();
}

Storable* ObjectStore::ReadReference(const Storable* target) {
    if (m_objectList.get() == nullptr) {
        throw UnexpectedObject(std::string("an object"), "an object pointer");
    }
    long id = 0;
    *this >> id;
    if (!IsObject(id)) {
        throw UnexpectedObject(std::string("Reference to nonexistant object."), "");
    }
    Storable* const object = (*m_objectList)[static_cast<std::size_t>(id)];
    if (!m_create) {
        throw UnexpectedObject(std::string(name_of(object)), expected_class(target));
    }
    return object;
}

void ObjectStore::ReadClassName() {
    char name[class_name_buffer] = {};
    GetTrim(name, sizeof name);
    m_className = name;
    m_classNames.push_back(m_className);
    m_shortcuts->last_class = static_cast<long>(m_classNames.size()) - 1;
}

void ObjectStore::ReadClassNumber() {
    long number = 0;
    *this >> number;
    if (!IsClass(number)) {
        throw UnexpectedObject(std::string("Reference to nonexistant class."), "");
    }
    SelectClass(number);
}

bool ObjectStore::IsClass(long number) const {
    return number >= 0 && static_cast<std::size_t>(number) < m_classNames.size();
}

void ObjectStore::SelectClass(long number) {
    if (number != m_shortcuts->last_class) {
        ChangeClass(number);
    }
}

[[gnu::noinline]] void ObjectStore::ChangeClass(long number) {
    m_className = m_classNames[static_cast<std::size_t>(number)];
    m_shortcuts->last_class = number;
}

// The two forms that nearly all objects have are read in one piece; all else, other forms, damage, and what
// does not lie at hand as a whole, is read tag by tag. Nothing is done after a call, so that no registers are
// saved for it.
ObjectStore& ObjectStore::operator>>(Storable*& object) {
    const Frame frame(m_create ? m_shortcuts->Peek(Frame::size) : nullptr);
    if (frame.IsReference() && IsObject(frame.Number())) {
        m_ascii = frame.IsAscii();
        object = (*m_objectList)[static_cast<std::size_t>(frame.Number())];
        m_shortcuts->Skip(Frame::reference_size);
        return *this;
    }
    return frame.IsBody() && IsClass(frame.Number()) ? ReadBody(object) : ReadByTags(object);
}

// Requires: the frame of a body, of a class that is known, lies at hand.
[[gnu::noinline]] ObjectStore& ObjectStore::ReadBody(Storable*& object) {
    const Frame frame(m_shortcuts->Peek(Frame::size));
    m_ascii = frame.IsAscii();
    SelectClass(frame.Number());
    m_shortcuts->Skip(Frame::size);
    object = CreateObject();
    return *this;
}

[[gnu::noinline]] ObjectStore& ObjectStore::ReadByTags(Storable*& object) {
    if (!ReadObjectOrClass(object)) {
        return *this;
    }
    const char body = next_char(*this, *m_shortcuts);
    if (body != body_tag) {
        throw UnexpectedObject(body, "a storable");
    }
    if (m_create) {
        object = CreateObject();
        return *this;
    }
    refuse_deep_nesting();
    m_create = true;
    if (object == nullptr || m_className != object->ClassName()) {
        throw UnexpectedObject(m_className, expected_class(object));
    }
    m_shortcuts->lent.push_back(object);
    Reading reading(*this);
    AppendObjectToList(object);
    // The object stays the caller's when reading it fails, and keeps its place.
    reading.Complete();
    object->GetFrom(*this);
    return *this;
}

Storable* ObjectStore::CreateObject() {
    refuse_deep_nesting();
    const auto number = static_cast<std::size_t>(m_shortcuts->last_class);
    const ObjectFactory::Creator creator = m_shortcuts->FindCreator(number, m_className);
    if (creator == nullptr) {
        throw ObjectFactory::UnknownClass(m_className);
    }
    Reading reading(*this);
    Storable* const object = creator(*this);
    reading.Complete();
    return object;
}

// Not what belongs to an object that is being read, nor that object itself: its creator deletes it, and it
// its members. Nor what the caller brought along.
bool ObjectStore::MayDelete(const Storable* object) const {
    const std::vector<std::size_t>& being_read = m_shortcuts->being_read;
    const std::vector<const Storable*>& lent = m_shortcuts->lent;
    if (object == nullptr || std::find(lent.begin(), lent.end(), object) != lent.end()) {
        return false;
    }
    if (being_read.empty()) {
        return true;
    }
    const std::size_t outermost = std::min(being_read.front(), m_objectList->size());
    const auto begin = m_objectList->begin() + static_cast<std::ptrdiff_t>(outermost);
    return std::find(begin, m_objectList->end(), object) == m_objectList->end();
}

void ObjectStore::RefuseAsString(Storable* object) {
    const std::string found = name_of(object);
    if (MayDelete(object)) {
        // Deleted as documents' readers have always done here; the list must not hand it out again.
        std::replace(m_objectList->begin(), m_objectList->end(), object, static_cast<Storable*>(nullptr));
        delete object;
    }
    throw UnexpectedObject(found, "a String");
}
