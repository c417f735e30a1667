// A store in memory: the fuzzer chooses what kind of store it is, what is read from it, and its bytes. What
// came out of it is written again, has to be the same bytes on each kind of store, and is read again.
//
//     byte 0      bits 0 and 1: a standard stream, a host's own store, a file, a class derived from a stream
//                 bit 2: FixUp   bit 3: write in ascii mode   bits 4 to 7: see TempObject in reading.h
//     byte 1      length of the program, then the program, see Step in reading.h
//     the rest    the store
#include <cstdint>
#include <memory>
#include <sstream>

#include "check.h"
#include "input.h"
#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_stream.h"
#include "memory_limit.h"
#include "reading.h"
#include "scratch_file.h"
#include "support/recording_store.h"

namespace {

using namespace lvx_fuzz;
using lvx_test::ReadObjects;
using lvx_test::RecordingStore;
using LVXUtilities::DIBitmap;

class HostsStream : public ObjectStoreStream {};

constexpr std::size_t a_megabyte = 1024 * 1024;

// What this document may make a store allocate at once that knows its length. Standard streams take texts of
// up to a megabyte on trust.
std::size_t memory_for(std::string_view document) {
    return 2 * a_megabyte + 16 * document.size();
}

Values read_stream(ObjectStoreStream& store, std::string_view document, std::string_view program,
                   ReadObjects& objects) {
    std::istringstream stream{std::string(document)};
    store.OpenStream(&stream);
    return read_values(store, program, objects);
}

Values read_file(std::string_view document, std::string_view program, ReadObjects& objects) {
    const ScratchFile file(document);
    ObjectStoreFile store;
    require(store.OpenStream(file.Name().c_str(), ObjectStore::ForRead), "a file opens");
    return read_values(store, program, objects);
}

Values read_by(unsigned kind, std::string_view document, std::string_view program, ReadObjects& objects) {
    ObjectStoreStream stream;
    HostsStream hosts_stream;
    RecordingStore recording{std::string(document)};
    // A host's own store may deliver more than anyone knows, so that all memory may go.
    const LargestAllocation exhausted(a_megabyte, LargestAllocation::Fails);
    switch (kind % 4) {
        case 0: {
            const LargestAllocation limit(memory_for(document), LargestAllocation::IsFinding);
            return read_stream(stream, document, program, objects);
        }
        case 1:
            return read_values(recording, program, objects);
        case 2: {
            const LargestAllocation limit(memory_for(document), LargestAllocation::IsFinding);
            return read_file(document, program, objects);
        }
        default:
            return read_stream(hosts_stream, document, program, objects);
    }
}

std::string write_stream(const Values& values, bool ascii) {
    std::ostringstream stream;
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << ObjectStore::Ascii(ascii);
    write_values(store, values);
    store.CloseStream();
    return stream.str();
}

std::string write_file(const Values& values, bool ascii) {
    const ScratchFile file("");
    ObjectStoreFile store;
    require(store.OpenStream(file.Name().c_str(), ObjectStore::ForWrite), "a file opens for writing");
    store.SetAscii(ascii);
    write_values(store, values);
    store.CloseStream();
    return file.Content();
}

// What is written comes back the same, from every kind of store.
void check_round_trip(const Values& values, bool ascii) {
    const std::string document = write_stream(values, ascii);
    require(document == write_file(values, ascii), "a file has the bytes of a stream");
    RecordingStore recording;
    recording.SetAscii(ascii);
    write_values(recording, values);
    require(document == recording.Data(), "a host's store has the bytes of a stream");
    const std::string program = program_of(values);
    for (unsigned kind = 0; kind < 4; ++kind) {
        ReadObjects objects;
        require(are_equal(values, read_by(kind, document, program, objects)), "what was written is read");
    }
}

// Numbers run apart then, as they are known to do; it has to end well nevertheless.
void read_after_temporary_objects(const Values& values, unsigned every) {
    RecordingStore recording;
    try {
        write_values(recording, values, every);
    } catch (const ObjectStore::WriteFailure&) {
        // A cycle written in full has no end.
    }
    ReadObjects objects;
    ObjectStoreStream store;
    read_stream(store, recording.Data(), program_of(values), objects);
}

void run(Input input) {
    const unsigned options = input.Byte();
    const std::string_view program = input.Short(64);
    ReadObjects objects;
    DIBitmap::FixUp = (options & 4) != 0;
    Values values = read_by(options, input.Rest(), program, objects);
    DIBitmap::FixUp = false;
    drop_lost_objects(values, objects);
    check_round_trip(values, (options & 8) != 0);
    read_after_temporary_objects(values, options >> 4);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool registered = (lvx_fuzz::register_classes(), true);
    run(Input(data, size));
    require(registered && lvx_test::Tracked::Alive().empty(), "no object is left");
    return 0;
}
