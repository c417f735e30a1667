// lvx/store/shortcuts.h
//
// What a store keeps beside its members to be fast and safe: the block buffer that the typed operators may
// reach into, the creators and numbers of the classes met so far, and the state of reading that went wrong.
//
// A host's own class, also one derived from a store of this library, sees every Write, Read and GetChar; only
// the library's own classes themselves are reached past their virtual operations.
#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <vector>

#include "lvx/store/block_buffer.h"
#include "lvx/store/object_factory.h"
#include "lvx/store/stream_area.h"

namespace lvx::store {

class Shortcuts {
public:
    /// Attaches a buffer over `medium`, which lives as long as it is attached. `own_class` says that the
    /// store is of the library's own class and not of one derived from it.
    void AttachWriter(std::unique_ptr<Medium> medium, bool own_class);
    void AttachReader(std::unique_ptr<Medium> medium, bool own_class);
    /// A standard stream in place of a buffer of our own; for stores of the library's own class only. Streams
    /// over a buffer of a host's class are not reached past their operations either.
    void AttachStream(std::ostream& stream) {
        m_output = StreamArea::IsStandard(stream.rdbuf()) ? &stream : nullptr;
        m_stream_buffer = stream.rdbuf();
    }
    void AttachStream(std::istream& stream) {
        m_input = StreamArea::IsStandard(stream.rdbuf()) ? &stream : nullptr;
        m_stream_buffer = stream.rdbuf();
    }
    /// The length of a medium without a block buffer.
    void AttachMeasure(std::unique_ptr<Measurable> measure);
    /// Hands the last block over and forgets the medium. False if that failed and nobody has been told yet.
    bool Detach();

    /// The attached buffer, or null.
    BlockWriter* GetWriter() const { return m_writer.get(); }
    BlockReader* GetReader() const { return m_reader.get(); }
    /// The same, but null unless the operators may reach into it.
    BlockReader* GetDirectReader() const { return m_direct_reader; }

    /// Room for `size` bytes, which count as written. Null if the operators may not reach past Write, or the
    /// medium has not that much room at hand: Write does what is to be done then.
    unsigned char* Claim(std::size_t size) {
        if (m_direct_writer != nullptr) {
            return m_direct_writer->Claim(size);
        }
        return m_output != nullptr && m_output->rdbuf() == m_stream_buffer
                   ? StreamArea::Claim(*m_output, size)
                   : nullptr;
    }
    /// The next `size` bytes without consuming them, or null, likewise.
    const unsigned char* Peek(std::size_t size) const {
        if (m_direct_reader != nullptr) {
            return m_direct_reader->Peek(size);
        }
        return m_input != nullptr && m_input->rdbuf() == m_stream_buffer ? StreamArea::Peek(*m_input, size)
                                                                         : nullptr;
    }
    /// Consumes `size` bytes. Requires: Peek gave them.
    void Skip(std::size_t size) {
        if (m_direct_reader != nullptr) {
            m_direct_reader->Skip(size);
        } else {
            StreamArea::Skip(*m_input, size);
        }
    }
    /// The next `size` bytes, consumed, or null, likewise.
    const unsigned char* Take(std::size_t size) {
        const unsigned char* const place = Peek(size);
        if (place != nullptr) {
            Skip(size);
        }
        return place;
    }

    /// The bytes that the medium can still deliver, as far as that is known.
    std::optional<std::uint64_t> Remaining() const;
    /// Consumes all that is left, where Remaining tells how much that is.
    void SkipToEnd();
    /// Whether the store is of a class of the library itself and open for reading.
    bool IsOwnReader() const { return m_direct_reader != nullptr || m_measure != nullptr; }

    /// The place of `name` in `class_names`, or -1.
    long FindClass(const char* name, const std::vector<std::string>& class_names);
    /// The creator of the class numbered `number`, or null if it is not registered.
    ObjectFactory::Creator FindCreator(std::size_t number, const std::string& name) {
        // The factory keeps the first creator of a name, so what was found stays true.
        if (number < m_creators.size() && m_creators[number] != nullptr) {
            return m_creators[number];
        }
        return AskFactory(number, name);
    }

    /// A read that ended early without an exception, as those of ObjectStoreStream do: the value is zero
    /// then.
    bool fell_short = false;
    /// The number of the class whose name was read last, or -1 when that is not known.
    long last_class = -1;
    /// Entries of the object list from here to `abandoned_end` belong to objects that failed and are null.
    std::size_t abandoned_begin = 0;
    std::size_t abandoned_end = 0;
    /// The places in the object list of the objects whose members are being read, the outermost first.
    std::vector<std::size_t> being_read;
    /// Objects of the caller that were read into.
    std::vector<const Storable*> lent;

private:
    ObjectFactory::Creator AskFactory(std::size_t number, const std::string& name);

    struct KnownName {
        const char* name = nullptr;
        std::size_t number = 0;
    };

    std::unique_ptr<Measurable> m_measure;
    std::unique_ptr<Medium> m_medium;
    std::unique_ptr<BlockWriter> m_writer;
    std::unique_ptr<BlockReader> m_reader;
    BlockWriter* m_direct_writer = nullptr;
    BlockReader* m_direct_reader = nullptr;
    std::ostream* m_output = nullptr;
    std::istream* m_input = nullptr;
    // What the stream had when it was attached; its owner may give it another one.
    const std::streambuf* m_stream_buffer = nullptr;
    // By the address of the name, which is the same at each call for all but a few classes.
    std::array<KnownName, 32> m_known_names;
    std::vector<ObjectFactory::Creator> m_creators;
};

}  // namespace lvx::store
