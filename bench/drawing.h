// bench/drawing.h
//
// The graph that the store's benchmarks save and load: 200,000 small objects, each referenced twice, as a
// drawing refers to its shapes by depth and by layer. Every contender has objects of its own kind with these
// values.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <random>
#include <unordered_map>
#include <utility>
#include <vector>

namespace lvx_bench {

constexpr std::size_t object_count = 200'000;

struct Values {
    double x = 0;
    double y = 0;
    int colour = 0;
    int layer = 0;
};

inline Values values_of(std::size_t index) {
    const auto number = static_cast<int>(index);
    return {number * 0.5, number * -0.25, number % 4096, number % 17};
}

/// The order of the second references: any order but that of the first.
inline std::vector<std::size_t> second_order() {
    std::vector<std::size_t> order(object_count);
    for (std::size_t i = 0; i < order.size(); ++i) {
        order[i] = i;
    }
    std::mt19937 random(1);
    for (std::size_t i = order.size(); i > 1; --i) {
        std::swap(order[i - 1], order[random() % i]);
    }
    return order;
}

/// Two lists of pointers to the same objects. `Pointer` is what a contender refers to its objects by.
template <class Pointer>
struct Drawing {
    std::vector<Pointer> by_depth;
    std::vector<Pointer> by_layer;
};

/// A drawing of objects that `make` returns for their values.
template <class Pointer, class Make>
Drawing<Pointer> make_drawing(Make make) {
    Drawing<Pointer> drawing;
    drawing.by_depth.reserve(object_count);
    drawing.by_layer.reserve(object_count);
    for (std::size_t i = 0; i < object_count; ++i) {
        drawing.by_depth.push_back(make(values_of(i)));
    }
    for (const std::size_t i : second_order()) {
        drawing.by_layer.push_back(drawing.by_depth[i]);
    }
    return drawing;
}

inline void mix(std::uint64_t& sum, std::uint64_t value) {
    sum = (sum ^ value) * 0x9E3779B97F4A7C15u;
    sum ^= sum >> 29;
}

/// A number made from the values of all objects and from which of them the second list names, in order. An
/// object that was duplicated instead of shared changes it. `dot_of` gives the object with the values for a
/// pointer.
template <class Pointer, class DotOf>
std::uint64_t fingerprint(const Drawing<Pointer>& drawing, DotOf dot_of) {
    std::uint64_t sum = drawing.by_depth.size();
    std::unordered_map<const void*, std::size_t> places;
    for (const Pointer& pointer : drawing.by_depth) {
        const Values& values = dot_of(pointer)->values;
        places.emplace(dot_of(pointer), places.size());
        mix(sum, std::bit_cast<std::uint64_t>(values.x));
        mix(sum, std::bit_cast<std::uint64_t>(values.y));
        mix(sum, static_cast<std::uint64_t>(values.colour));
        mix(sum, static_cast<std::uint64_t>(values.layer));
    }
    for (const Pointer& pointer : drawing.by_layer) {
        const auto place = places.find(dot_of(pointer));
        mix(sum, place == places.end() ? object_count : place->second);
    }
    return sum;
}

/// Deletes the objects of a drawing of plain pointers, each once.
template <class Object>
void delete_objects(Drawing<Object*>& drawing) {
    for (Object* const object : drawing.by_depth) {
        delete object;
    }
    drawing = {};
}

}  // namespace lvx_bench
