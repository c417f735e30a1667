#include "lvx/text/memory_reserve.h"

#include <cstdlib>

namespace lvx {

void* MemoryReserve::m_block = nullptr;

MemoryReserve::MemoryReserve() {
    if (!m_block) {
        m_block = std::malloc(size);
    }
}

MemoryReserve::~MemoryReserve() {
    std::free(m_block);
    m_block = nullptr;
}

void* MemoryReserve::block() {
    return m_block;
}

namespace {

const MemoryReserve reserve;

}  // namespace

}  // namespace lvx
