// One mistake of a host per case; scripts/check-consumer compiles the file with each CASE and expects an
// error, and with case 0 expects none.
#include <lvx/lvx.h>

class Half : public Storable {
    void PutTo(ObjectStore&) const override {}
};

void mistakes() {
#if CASE == 1
    Half object;  // GetFrom is missing
#elif CASE == 2
    const lvx::auto_ptr<int> owner(new int);
    lvx::auto_ptr<int> thief(owner);  // nothing is taken out of a constant owner
#elif CASE == 3
    lvx::auto_ptr<int> owner = new int;  // ownership begins on purpose only
#elif CASE == 4
    ObjectStoreFile store;
    ObjectStoreFile copy(store);  // two owners of one file
#elif CASE == 5
    ObjectStore store;  // it has no medium
#elif CASE == 6
    lvx::autovector<int> elements;
    lvx::autovector<int> copy(elements);  // two owners of each element
#elif CASE == 7
    Lexer lexer;
    Lexer copy(lexer);  // two owners of each pattern
#elif CASE == 8
    throw lvx::runtime_error("by value, not by literal", 1);
#elif CASE == 9
    LVXAtom atom(std::string("topic"));
    if (!atom) {  // gives the atom up, and asks nothing
    }
#elif CASE == 10
    TRegexp expression("a");
    TRegexp copy(expression);  // two owners of one program
#elif CASE == 11
    TRegexp expression = "a";  // a text is compiled on purpose only
#endif
}
