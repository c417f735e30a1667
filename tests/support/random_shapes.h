// Graphs of any form of the classes of shapes.h, and of pictures: nodes that refer to each other, to
// themselves, to leaves of several and to nothing. One number makes one graph, on every system.
#pragma once

#include <cstdint>
#include <cstring>
#include <map>
#include <random>
#include <set>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_stream.h"
#include "support/shapes.h"

namespace lvx_test {

/// Everything that hangs on an object, the object itself among it; null is nothing.
inline std::set<Storable*> all_shapes(Storable* top) {
    std::set<Storable*> all;
    std::vector<Storable*> open{top};
    while (!open.empty()) {
        Storable* const object = open.back();
        open.pop_back();
        if (object == nullptr || !all.insert(object).second) {
            continue;
        }
        if (const auto* node = dynamic_cast<const Node*>(object)) {
            open.insert(open.end(), node->m_edges.begin(), node->m_edges.end());
        }
    }
    return all;
}

/// Owns an object and everything that hangs on it.
class ShapesOwner {
public:
    explicit ShapesOwner(Storable* top) : m_all(all_shapes(top)) {}
    ShapesOwner(const ShapesOwner&) = delete;
    ShapesOwner& operator=(const ShapesOwner&) = delete;
    ~ShapesOwner() {
        for (Storable* object : m_all) {
            delete object;
        }
    }

private:
    std::set<Storable*> m_all;
};

/// A graph of up to 40 nodes with leaves and pictures among them.
class RandomShapes {
public:
    explicit RandomShapes(std::uint32_t number) : m_random(number) {
        const std::size_t count = 1 + Below(40);
        for (std::size_t i = 0; i < count; ++i) {
            m_nodes.push_back(new Node(static_cast<int>(m_random())));
            m_objects.push_back(m_nodes.back());
        }
        for (std::size_t i = Below(10); i > 0; --i) {
            m_objects.push_back(NewLeaf());
        }
        for (std::size_t i = Below(3); i > 0; --i) {
            m_objects.push_back(NewPicture());
        }
        for (Node* node : m_nodes) {
            for (std::size_t edges = Below(5); edges > 0; --edges) {
                node->m_edges.push_back(Below(10) == 0 ? nullptr : m_objects[Below(m_objects.size())]);
            }
        }
    }
    RandomShapes(const RandomShapes&) = delete;
    RandomShapes& operator=(const RandomShapes&) = delete;
    ~RandomShapes() {
        for (Storable* object : m_objects) {
            delete object;
        }
    }

    Storable* Top() const { return m_objects.front(); }

private:
    std::size_t Below(std::size_t limit) { return m_random() % limit; }

    Storable* NewLeaf() {
        auto* const leaf = new inner::Leaf;
        leaf->m_flag = Below(2) == 1;
        leaf->m_ratio = static_cast<double>(m_random()) / 7 - 1e8;
        leaf->m_letter = static_cast<char>(m_random());
        for (std::size_t letters = Below(300); letters > 0; --letters) {
            // No NUL: a text ends there when it is read.
            leaf->m_name += static_cast<char>(1 + Below(255));
        }
        return leaf;
    }

    /// Of up to 100 by 100 pixels of 24 bits.
    Storable* NewPicture() {
        const auto width = static_cast<std::int32_t>(1 + Below(100));
        const auto height = static_cast<std::int32_t>(1 + Below(100));
        BITMAPINFOHEADER header{};
        header.biSize = sizeof header;
        header.biWidth = width;
        header.biHeight = height;
        header.biPlanes = 1;
        header.biBitCount = 24;
        const auto row = static_cast<std::size_t>((width * 3 + 3) / 4 * 4);
        const std::size_t size = sizeof header + row * static_cast<std::size_t>(height);
        const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, size);
        auto* const bytes = static_cast<unsigned char*>(GlobalLock(block));
        std::memcpy(bytes, &header, sizeof header);
        for (std::size_t i = sizeof header; i < size; ++i) {
            bytes[i] = static_cast<unsigned char>(m_random());
        }
        GlobalUnlock(block);
        return new LVXUtilities::DIBitmap(block, LVXUtilities::DIBitmap::Adopt);
    }

    std::mt19937 m_random;
    std::vector<Node*> m_nodes;
    std::vector<Storable*> m_objects;
};

/// The bytes of a store that holds `object` alone.
inline std::string stored(const Storable& object) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << object;
    store.CloseStream();
    return stream.str();
}

namespace detail {

/// Walks two graphs side by side. Two objects are the same if they always meet, and their values are equal.
class ShapesComparison {
public:
    bool Compare(Storable* left, Storable* right) {
        if (left == nullptr || right == nullptr) {
            return left == right;
        }
        const bool isNew = m_right.emplace(left, right).second;
        if (m_left.emplace(right, left).second != isNew) {
            return false;
        }
        return isNew ? CompareValues(left, right) : m_right[left] == right;
    }

private:
    bool CompareValues(Storable* left, Storable* right) {
        if (auto* node = dynamic_cast<Node*>(left)) {
            auto* const other = dynamic_cast<Node*>(right);
            return other != nullptr && CompareNodes(*node, *other);
        }
        if (auto* leaf = dynamic_cast<inner::Leaf*>(left)) {
            auto* const other = dynamic_cast<inner::Leaf*>(right);
            return other != nullptr && leaf->m_flag == other->m_flag && leaf->m_ratio == other->m_ratio &&
                   leaf->m_name == other->m_name && leaf->m_letter == other->m_letter;
        }
        return ComparePictures(dynamic_cast<const LVXUtilities::DIBitmap*>(left),
                               dynamic_cast<const LVXUtilities::DIBitmap*>(right));
    }

    bool CompareNodes(const Node& left, const Node& right) {
        bool equal = left.m_number == right.m_number && left.m_edges.size() == right.m_edges.size();
        for (std::size_t i = 0; equal && i < left.m_edges.size(); ++i) {
            equal = Compare(left.m_edges[i], right.m_edges[i]);
        }
        return equal;
    }

    static bool ComparePictures(const LVXUtilities::DIBitmap* left, const LVXUtilities::DIBitmap* right) {
        if (left == nullptr || right == nullptr || left->GetSize() != right->GetSize()) {
            return false;
        }
        const auto size = static_cast<std::size_t>(left->GetStorageWidth() * left->GetHeight());
        return std::memcmp(left->GetBitsAddress().get(), right->GetBitsAddress().get(), size) == 0;
    }

    std::map<Storable*, Storable*> m_right;
    std::map<Storable*, Storable*> m_left;
};

}  // namespace detail

/// Whether both graphs have the same form and the same values.
inline bool same_shapes(Storable* left, Storable* right) {
    return detail::ShapesComparison().Compare(left, right);
}

}  // namespace lvx_test
