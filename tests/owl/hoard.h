// Takes the objects of drawing away that the system has, so that whoever asks for one is refused.
#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

namespace owl_test {

/// All the objects that the system still has, but for some.
class Hoard {
public:
    explicit Hoard(std::size_t left) {
        TakeAll();
        for (std::size_t i = 0; i < left && !m_pens.empty(); ++i)
            GiveOne();
    }
    ~Hoard() {
        while (!m_pens.empty())
            GiveOne();
    }
    Hoard(const Hoard&) = delete;
    Hoard& operator=(const Hoard&) = delete;

    /// Takes what is left and tells how many that were.
    std::size_t TakeAll() {
        const std::size_t before = m_pens.size();
        while (const HPEN pen = ::CreatePen(PS_SOLID, 1, 0))
            m_pens.push_back(pen);
        return m_pens.size() - before;
    }

private:
    void GiveOne() {
        ::DeleteObject(m_pens.back());
        m_pens.pop_back();
    }

    std::vector<HPEN> m_pens;
};

}  // namespace owl_test
