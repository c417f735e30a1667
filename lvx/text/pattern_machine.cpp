#include "lvx/text/pattern_machine.h"

namespace lvx::text {

bool PatternMachine::Add(const PatternTree& tree) {
    const Place end = AddStep({Step::End, 0, 0, 0, 0});
    const Place start = AddNode(tree, tree.root, end);
    m_starts.push_back(start);
    return !IsFull();
}

PatternMachine::Place PatternMachine::AddStep(const Step& step) {
    m_budget.Spend(1);
    m_steps.push_back(step);
    m_steps.back().pattern = static_cast<std::uint32_t>(m_starts.size());
    return static_cast<Place>(m_steps.size() - 1);
}

std::uint32_t PatternMachine::AddSet(const ByteSet& set) {
    const auto [found, is_new] = m_set_places.try_emplace(set, static_cast<std::uint32_t>(m_sets.size()));
    if (is_new) {
        m_sets.push_back(set);
        m_budget.Spend(price_of_set);
    }
    return found->second;
}

// Adds what matches the node and goes to `next`; from the end to the start, so that `next` is always known.
PatternMachine::Place PatternMachine::AddNode(const PatternTree& tree, std::size_t place, Place next) {
    const PatternNode& node = tree.nodes[place];
    // Empty repetitions take time and no steps.
    m_budget.Spend(1);
    if (IsFull()) {
        return next;
    }
    switch (node.kind) {
        case PatternNode::Bytes:
            return AddStep({Step::Take, AddSet(node.bytes), next, 0, 0});
        case PatternNode::Sequence:
            for (auto part = node.parts.rbegin(); part != node.parts.rend(); ++part) {
                next = AddNode(tree, *part, next);
            }
            return next;
        case PatternNode::Choice: {
            Place all = AddNode(tree, node.parts.back(), next);
            for (auto part = node.parts.rbegin() + 1; part != node.parts.rend(); ++part) {
                all = AddStep({Step::Fork, 0, AddNode(tree, *part, next), all, 0});
            }
            return all;
        }
        case PatternNode::Repeat:
            return AddRepeat(tree, node, next);
    }
    return next;
}

PatternMachine::Place PatternMachine::AddRepeat(const PatternTree& tree, const PatternNode& node,
                                                Place next) {
    const std::size_t part = node.parts.front();
    const Place behind = next;
    if (node.most == PatternNode::unlimited) {
        next = AddStep({Step::Fork, 0, 0, behind, 0});
        const Place loop = AddNode(tree, part, next);
        m_steps[next].next = loop;
    } else {
        for (unsigned int i = node.least; i < node.most; ++i) {
            next = AddStep({Step::Fork, 0, AddNode(tree, part, next), behind, 0});
        }
    }
    for (unsigned int i = 0; i < node.least; ++i) {
        next = AddNode(tree, part, next);
    }
    return next;
}

}  // namespace lvx::text
