// A class of a host's own, stored and read back: a pair of stars that refer to each other.
//
// usage: stars FILE     writes FILE, reads it again and says what came back
#include <iostream>
#include <memory>
#include <string>

#include "lvx/store/object_factory.h"
#include "lvx/store/object_store_file.h"

class Star : public Storable {
public:
    Star() = default;
    Star(std::string name, double brightness) : m_name(std::move(name)), m_brightness(brightness) {}

    void PutTo(ObjectStore& store) const override {
        store << m_name << m_brightness;
        if (m_companion != nullptr) {
            store << *m_companion;
        } else {
            store << '0';  // an object that is not there
        }
    }

    void GetFrom(ObjectStore& store) override {
        store >> m_name;
        if (store.GetVersion() >= 2) {
            store >> m_brightness;  // came with version 2
        }
        Storable* companion = nullptr;
        store >> companion;
        m_companion = dynamic_cast<Star*>(companion);
    }

    std::string m_name;
    double m_brightness = 0;
    Star* m_companion = nullptr;  // not owned
};

namespace {

const ObjectFactoryInit factory;
const bool registered = (ObjectFactory::Register("Star", ObjectFactory::CreateStorable<Star>), true);

void save(const char* name) {
    Star sirius("Sirius", -1.46);
    Star pup("Sirius B", 8.44);
    sirius.m_companion = &pup;
    pup.m_companion = &sirius;

    ObjectStoreFile store;
    if (!store.OpenStream(name, ObjectStore::ForWrite)) {
        throw lvx::runtime_error(std::string("cannot write ") + name);
    }
    store << 2L << sirius;
    store.CloseStream();
}

void load(const char* name) {
    ObjectStoreFile store;
    if (!store.OpenStream(name, ObjectStore::ForRead)) {
        throw lvx::runtime_error(std::string("cannot read ") + name);
    }
    store.ReadVersion();
    Storable* object = nullptr;
    store >> object;
    const std::unique_ptr<Storable> owner(object);
    const auto* const star = dynamic_cast<const Star*>(object);
    if (star == nullptr || star->m_companion == nullptr || star->m_companion == star) {
        throw lvx::runtime_error("this is no pair of stars");
    }
    const std::unique_ptr<Star> companion(star->m_companion);
    std::cout << star->m_name << " (" << star->m_brightness << ") goes with " << companion->m_name << " ("
              << companion->m_brightness << ")\n"
              << "and back: " << std::boolalpha << (companion->m_companion == star) << '\n';
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: stars FILE\n";
        return 2;
    }
    try {
        save(argv[1]);
        load(argv[1]);
    } catch (const std::exception& error) {
        std::cerr << "stars: " << argv[1] << ": " << error.what() << '\n';
        return 1;
    }
    return 0;
}
