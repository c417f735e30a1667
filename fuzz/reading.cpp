#include "reading.h"

#include <cstring>
#include <new>

#include "bitmap_check.h"
#include "check.h"
#include "lvx/drawing/my_font.h"
#include "lvx/images/dibitmap.h"
#include "lvx/text/error.h"
#include "lvx/text/ownership.h"

namespace lvx_fuzz {
namespace {

using lvx_test::ReadObjects;
using lvx_test::TrackedLeaf;
using lvx_test::TrackedNode;

constexpr int refusals_until_the_end = 4;

template <class T>
T read(ObjectStore& store) {
    T value{};
    store >> value;
    return value;
}

Characters read_characters(ObjectStore& store) {
    char* text = nullptr;
    store >> text;
    const lvx::auto_array<char> owner(text);
    require(text != nullptr, "a C string is never null");
    return {text};
}

Storable* read_object(ObjectStore& store, ReadObjects& objects) {
    Storable* object = nullptr;
    store >> object;
    objects.Keep(object);
    return object;
}

template <class Target>
Storable* read_into(ObjectStore& store, ReadObjects& objects) {
    Storable* const target = new Target;
    objects.Keep(target);
    Storable* object = target;
    store >> ObjectStore::NoCreate >> object;
    require(object == target, "NoCreate reads into the object given");
    return object;
}

Storable* read_into_nothing(ObjectStore& store, ReadObjects& objects) {
    Storable* object = nullptr;
    store >> ObjectStore::NoCreate >> object;
    objects.Keep(object);
    return object;
}

std::string read_line(ObjectStore& store) {
    char line[20];
    std::memset(line, 'x', sizeof line);
    const int length = store.GetTrim(line, sizeof line - 1);
    require(length >= 0 && length < static_cast<int>(sizeof line) - 1, "a line fits its buffer");
    require(line[sizeof line - 1] == 'x', "a line ends within its buffer");
    require(line[length] == '\0', "a line ends with NUL");
    return std::string(line);
}

char read_put_back(ObjectStore& store) {
    const char byte = store.GetChar();
    store.UngetChar(byte);
    const char again = store.GetChar();
    require(byte == again, "what was put back is read again");
    return byte;
}

int expect_bytes(ObjectStore& store) {
    const int length = read<int>(store);
    store.ExpectBytes(length);
    return length;
}

Value read_value(ObjectStore& store, Step step, ReadObjects& objects) {
    switch (step) {
        case Step::Bool:
            return read<bool>(store);
        case Step::Int:
            return read<int>(store);
        case Step::Long:
            return read<long>(store);
        case Step::Float:
            return read<float>(store);
        case Step::Double:
            return read<double>(store);
        case Step::Char:
            return read<char>(store);
        case Step::Characters:
            return read_characters(store);
        case Step::NoCreateString:
            store >> ObjectStore::NoCreate;
            [[fallthrough]];
        case Step::String:
            return read<std::string>(store);
        case Step::Object:
            return read_object(store, objects);
        case Step::IntoNode:
            return read_into<TrackedNode>(store, objects);
        case Step::IntoLeaf:
            return read_into<TrackedLeaf>(store, objects);
        case Step::IntoNothing:
            return read_into_nothing(store, objects);
        case Step::Version:
            store.ReadVersion();
            return store.GetVersion();
        case Step::Line:
            return read_line(store);
        case Step::PutBack:
            return read_put_back(store);
        case Step::ExpectBytes:
            return expect_bytes(store);
        case Step::AsciiOn:
            store >> ObjectStore::Ascii(true);
            return store.ClassName();
        case Step::count:
            break;
    }
    return false;
}

void write_object(ObjectStore& store, const Storable* object) {
    if (object == nullptr) {
        store << '0';
    } else {
        store << *object;
    }
}

// Numbers by their bits, so that one that is none equals itself.
template <class Number>
bool same_bits(Number left, Number right) {
    return std::memcmp(&left, &right, sizeof left) == 0;
}

// The pairs of objects that have to be the same, in the order in which they were met.
class Comparison {
public:
    bool Meet(const Storable* left, const Storable* right) {
        if (left == nullptr || right == nullptr) {
            return left == right;
        }
        const auto [known, is_new] = m_partner.emplace(left, right);
        if (!is_new) {
            return known->second == right;
        }
        m_pairs.emplace_back(left, right);
        return m_met.insert(right).second;
    }

    bool Finish() {
        for (std::size_t i = 0; i < m_pairs.size(); ++i) {
            const auto [left, right] = m_pairs[i];
            if (std::strcmp(left->ClassName(), right->ClassName()) != 0 || !Compare(left, right)) {
                return false;
            }
        }
        return true;
    }

private:
    bool Compare(const Storable* left, const Storable* right) {
        if (const auto* node = dynamic_cast<const TrackedNode*>(left)) {
            return CompareNodes(*node, dynamic_cast<const TrackedNode&>(*right));
        }
        if (const auto* leaf = dynamic_cast<const TrackedLeaf*>(left)) {
            return CompareLeaves(*leaf, dynamic_cast<const TrackedLeaf&>(*right));
        }
        if (const auto* font = dynamic_cast<const myFont*>(left)) {
            return CompareFonts(*font, dynamic_cast<const myFont&>(*right));
        }
        using LVXUtilities::DIBitmap;
        return stored_block(dynamic_cast<const DIBitmap&>(*left)) ==
               stored_block(dynamic_cast<const DIBitmap&>(*right));
    }

    bool CompareNodes(const TrackedNode& left, const TrackedNode& right) {
        bool equal = left.m_number == right.m_number && left.m_edges.size() == right.m_edges.size();
        for (std::size_t i = 0; equal && i < left.m_edges.size(); ++i) {
            equal = Meet(left.m_edges[i], right.m_edges[i]);
        }
        return equal;
    }

    static bool CompareLeaves(const TrackedLeaf& left, const TrackedLeaf& right) {
        return left.m_flag == right.m_flag && same_bits(left.m_ratio, right.m_ratio) &&
               left.m_name == right.m_name && left.m_letter == right.m_letter;
    }

    static bool CompareFonts(myFont left, myFont right) {
        const bool same_size = same_bits(left.Size(), right.Size());
        left.Size(0);
        right.Size(0);
        return same_size && left == right;
    }

    std::map<const Storable*, const Storable*> m_partner;
    std::set<const Storable*> m_met;
    std::vector<std::pair<const Storable*, const Storable*>> m_pairs;
};

bool same_value(const Value& left, const Value& right, Comparison& comparison) {
    if (left.index() != right.index()) {
        return false;
    }
    if (const auto* object = std::get_if<Storable*>(&left)) {
        return comparison.Meet(*object, std::get<Storable*>(right));
    }
    if (const auto* number = std::get_if<float>(&left)) {
        return same_bits(*number, std::get<float>(right));
    }
    if (const auto* number = std::get_if<double>(&left)) {
        return same_bits(*number, std::get<double>(right));
    }
    return left == right;
}

}  // namespace

void register_classes() {
    lvx_test::register_tracked_shapes();
    ObjectFactory::Register("myFont", ObjectFactory::CreateStorable<myFont>);
}

Values read_values(ObjectStore& store, std::string_view program, ReadObjects& objects) {
    Values values;
    int refusals = 0;
    for (const char byte : program) {
        const auto step = static_cast<unsigned char>(byte) % static_cast<unsigned>(Step::count);
        try {
            values.push_back(read_value(store, static_cast<Step>(step), objects));
        } catch (const lvx::runtime_error& error) {
            require(error.what()[0] != '\0', "an error has a text");
            ++refusals;
        } catch (const std::bad_alloc&) {
            ++refusals;
        }
        if (refusals == refusals_until_the_end) {
            break;
        }
    }
    return values;
}

void drop_lost_objects(Values& values, const ReadObjects& objects) {
    const auto drop = [&objects](Storable*& object) {
        if (!objects.IsAlive(object)) {
            object = nullptr;
        }
    };
    for (Value& value : values) {
        if (auto* object = std::get_if<Storable*>(&value)) {
            drop(*object);
        }
    }
    for (lvx_test::Tracked* object : lvx_test::Tracked::Alive()) {
        if (auto* node = dynamic_cast<TrackedNode*>(object)) {
            std::for_each(node->m_edges.begin(), node->m_edges.end(), drop);
        }
    }
}

void write_values(ObjectStore& store, const Values& values, unsigned temporary) {
    unsigned objects = 0;
    for (const Value& value : values) {
        if (const auto* text = std::get_if<Characters>(&value)) {
            store << text->text.c_str();
        } else if (const auto* object = std::get_if<Storable*>(&value)) {
            if (temporary != 0 && ++objects % temporary == 0) {
                store << ObjectStore::TempObject;
            }
            write_object(store, *object);
        } else {
            std::visit(
                [&store](const auto& plain) {
                    using Plain = std::decay_t<decltype(plain)>;
                    if constexpr (!std::is_same_v<Plain, Characters> && !std::is_same_v<Plain, Storable*>) {
                        store << plain;
                    }
                },
                value);
        }
    }
}

std::string program_of(const Values& values) {
    static_assert(static_cast<unsigned>(Step::Object) + 1 == std::variant_size_v<Value>,
                  "the first steps read the values in the order of the variant");
    std::string program;
    for (const Value& value : values) {
        program += static_cast<char>(value.index());
    }
    return program;
}

bool are_equal(const Values& left, const Values& right) {
    if (left.size() != right.size()) {
        return false;
    }
    Comparison comparison;
    for (std::size_t i = 0; i < left.size(); ++i) {
        if (!same_value(left[i], right[i], comparison)) {
            return false;
        }
    }
    return comparison.Finish();
}

}  // namespace lvx_fuzz
