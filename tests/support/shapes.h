// Storable classes for tests: a node of any graph, and a leaf with one value of every type.
#pragma once

#include <string>
#include <vector>

#include "lvx/store/object_factory.h"

namespace lvx_test {

/// A node with a number and edges to other nodes, read as deep as they are nested. Nodes count those alive.
class Node : public Storable {
public:
    Node() { ++alive; }
    explicit Node(int number) : Node() { m_number = number; }
    Node(const Node&) = delete;
    Node& operator=(const Node&) = delete;
    ~Node() override { --alive; }

    void PutTo(ObjectStore& store) const override {
        store << m_number << static_cast<int>(m_edges.size());
        for (const Storable* edge : m_edges) {
            if (edge == nullptr) {
                store << '0';
            } else {
                store << *edge;
            }
        }
    }
    void GetFrom(ObjectStore& store) override {
        int count = 0;
        store >> m_number >> count;
        for (int i = 0; i < count; ++i) {
            Storable* edge = nullptr;
            store >> edge;
            m_edges.push_back(edge);
        }
    }

    int m_number = 0;
    std::vector<Storable*> m_edges;
    static inline int alive = 0;
};

/// A class whose name holds two qualifiers once it is nested here.
namespace inner {
class Leaf : public virtual Storable {
public:
    Leaf() { ++alive; }
    Leaf(const Leaf&) = delete;
    Leaf& operator=(const Leaf&) = delete;
    ~Leaf() override { --alive; }

    void PutTo(ObjectStore& store) const override { store << m_flag << m_ratio << m_name << m_letter; }
    void GetFrom(ObjectStore& store) override { store >> m_flag >> m_ratio >> m_name >> m_letter; }

    bool m_flag = false;
    double m_ratio = 0;
    std::string m_name;
    char m_letter = ' ';
    static inline int alive = 0;
};
}  // namespace inner

inline void register_shapes() {
    ObjectFactory::Register("lvx_test::Node", ObjectFactory::CreateStorable<Node>);
    ObjectFactory::Register("lvx_test::inner::Leaf", ObjectFactory::CreateStorable<inner::Leaf>);
}

}  // namespace lvx_test
