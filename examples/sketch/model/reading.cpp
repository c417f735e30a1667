#include "sketch/model/reading.h"

#include <string>

#include "sketch/model/error.h"

namespace sketch {

Reading* Reading::s_current = nullptr;

Reading::Reading() {
    s_current = this;
}

Reading::~Reading() {
    s_current = nullptr;
}

Reading& Reading::Current() {
    if (s_current == nullptr) {
        throw DocumentError("Figures can be read as parts of a document only.");
    }
    return *s_current;
}

void Reading::Keep(const std::shared_ptr<Storable>& object) {
    Current().m_objects[object.get()] = object;
}

Storable* Reading::ReadAny(ObjectStore& store) {
    Storable* object = nullptr;
    store >> object;
    return object;
}

std::shared_ptr<Storable> Reading::Own(Storable* object) {
    if (object == nullptr) {
        throw DocumentError("Something is missing in it.");
    }
    // One that is not known was made by another class's creator: it is handed over here.
    std::shared_ptr<Storable>& kept = Current().m_objects[object];
    if (kept == nullptr) {
        kept.reset(object);
    }
    return kept;
}

void Reading::RefuseClass(const Storable& object) {
    throw DocumentError(std::string("There is an object of the class ") + object.ClassName() +
                        " where it does not belong.");
}

}  // namespace sketch
