// A program of reads out of a store, what it brought, and writing and comparing that.
#pragma once

#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "support/tracked_shapes.h"

namespace lvx_fuzz {

/// One byte of a program, taken modulo the number of steps.
enum class Step : unsigned char {
    Bool,
    Int,
    Long,
    Float,
    Double,
    Char,
    Characters,
    String,
    Object,
    IntoNode,
    IntoLeaf,
    NoCreateString,
    IntoNothing,
    Version,
    Line,
    PutBack,
    ExpectBytes,
    AsciiOn,
    count
};

/// A C string that was read, to be told from a std::string.
struct Characters {
    std::string text;
    bool operator==(const Characters&) const = default;
};

using Value = std::variant<bool, int, long, float, double, char, Characters, std::string, Storable*>;
using Values = std::vector<Value>;

/// Registers the classes that documents have objects of, beside those that the library registers itself.
void register_classes();

/// Reads what `program` says until the store has refused a few times. Objects go to `objects`.
Values read_values(ObjectStore& store, std::string_view program, lvx_test::ReadObjects& objects);

/// Puts null in place of the objects that are gone, also where others refer to them.
void drop_lost_objects(Values& values, const lvx_test::ReadObjects& objects);

/// Writes the values in order. Every `temporary`-th object with TempObject, none if that is 0.
void write_values(ObjectStore& store, const Values& values, unsigned temporary = 0);

/// The program that reads `values` again.
std::string program_of(const Values& values);

/// Whether both are the same, objects by all that hangs on them, and referred to in the same pattern.
bool are_equal(const Values& left, const Values& right);

}  // namespace lvx_fuzz
