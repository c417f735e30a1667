// lvx/text/budget.h
//
// How much work is left for something that may come to too much: each part of it spends what it costs, and
// gives up when all is spent.
#pragma once

#include <algorithm>
#include <cstddef>

namespace lvx::text {

class Budget {
public:
    /// With `whole`, the work is a part of a larger one: what is spent here is spent there too, and either
    /// may run out first. Does not own it.
    explicit Budget(std::size_t left, Budget* whole = nullptr) : m_left(left), m_whole(whole) {}

    /// More than is left spends what is left.
    void Spend(std::size_t work) {
        m_left -= std::min(work, m_left);
        if (m_whole != nullptr) {
            m_whole->Spend(work);
        }
    }

    bool IsSpent() const { return m_left == 0 || (m_whole != nullptr && m_whole->IsSpent()); }
    std::size_t Left() const { return m_whole != nullptr ? std::min(m_left, m_whole->Left()) : m_left; }

private:
    std::size_t m_left;
    Budget* m_whole;
};

}  // namespace lvx::text
