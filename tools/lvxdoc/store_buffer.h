// tools/lvxdoc/store_buffer.h
//
// A stream buffer that writes into a store: with it one store's bytes go into another as they are, so that a
// stream of a compound file can be written by a store with a numbering of its own.
#pragma once

#include <streambuf>

#include "lvx/store/object_store.h"

namespace lvxdoc {

class StoreBuffer : public std::streambuf {
public:
    /// `store` is open for writing and outlives the buffer. It keeps nothing back.
    explicit StoreBuffer(ObjectStore& store) : m_store(store) {}

protected:
    int_type overflow(int_type character) override;
    std::streamsize xsputn(const char* bytes, std::streamsize size) override;

private:
    ObjectStore& m_store;
};

}  // namespace lvxdoc
