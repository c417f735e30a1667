// A host's whole program: an object through a store and back, and a pattern out of the framework.
#include <lvx/lvx.h>
#include <owl/regexp.h>

#include <cstdio>
#include <sstream>

class Host : public Storable {
public:
    void PutTo(ObjectStore& store) const override { store << m_value; }
    void GetFrom(ObjectStore& store) override { store >> m_value; }

    int m_value = 0;
};

namespace {

const ObjectFactoryInit factory;
const bool registered = (ObjectFactory::Register("Host", ObjectFactory::CreateStorable<Host>), true);

}  // namespace

bool finds_pattern() {
    unsigned int length = 0;
    return TRegexp("o.t").find("Host", &length, 0) == 1 && length == 3;
}

int main() {
    std::stringstream bytes;
    ObjectStoreStream store;
    Host object;
    object.m_value = 42;
    store.OpenStream(static_cast<std::ostream*>(&bytes));
    store << object;
    store.OpenStream(static_cast<std::istream*>(&bytes));
    ObjectStoreStream reader;
    reader.OpenStream(static_cast<std::istream*>(&bytes));
    Storable* read = nullptr;
    reader >> read;
    const lvx::auto_ptr<Storable> owner(read);
    const int value = finds_pattern() ? static_cast<Host*>(read)->m_value : 0;
    std::printf("%s %d\n", read->ClassName(), value);
    return value == 42 ? 0 : 1;
}
