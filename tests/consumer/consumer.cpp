// A host's whole program: an object through a store and back, a pattern out of the framework and a token.
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

bool finds_pattern() {
    unsigned int length = 0;
    return TRegexp("o.t").find("Host", &length, 0) == 1 && length == 3;
}

bool finds_token() {
    Lexer lexer;
    lexer.addPattern("[a-z]+", 7, 0);
    unsigned int length = 0;
    return lexer.getToken("Host", 1, length) == 7 && length == 3;
}

}  // namespace

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
    const int value = finds_pattern() && finds_token() ? static_cast<Host*>(read)->m_value : 0;
    std::printf("%s %d\n", read->ClassName(), value);
    return value == 42 ? 0 : 1;
}
