// A store in a compound document: the input is the document, or a stream that is packed into a good one.
// Every stream that can be found is read by a program of reads.
//
//     byte 0      bit 0: packed   bit 1: FixUp   bit 2: a class derived from the store   bit 3: ascii
//                 bit 4: step back and write again at each piece
//     byte 1      length of the program, then the program, see Step in reading.h
//     next byte   length of a name, then the name
//     the rest    the document, or the stream
#include <algorithm>
#include <cctype>
#include <cstdint>
#include <memory>

#include "check.h"
#include "input.h"
#include "lvx/images/dibitmap.h"
#include "lvx/platform/structured_storage.h"
#include "lvx/store/object_store_storage.h"
#include "memory_limit.h"
#include "reading.h"
#include "scratch_file.h"
#include "support/quiet_gsf.h"

namespace {

using namespace lvx_fuzz;
using lvx_test::ReadObjects;
using LVXUtilities::DIBitmap;
using LVXUtilities::ObjectStoreStorage;

constexpr std::size_t a_megabyte = 1024 * 1024;
constexpr std::size_t most_names = 16;

class HostsStorage : public ObjectStoreStorage {};

std::unique_ptr<ObjectStoreStorage> make_store(bool hosts_own) {
    return hosts_own ? std::make_unique<HostsStorage>() : std::make_unique<ObjectStoreStorage>();
}

struct Releaser {
    template <class Interface>
    void operator()(Interface* interface) const {
        interface->Release();
    }
};

// As the store takes names: a character for each byte that it can widen to. Others are of no use here.
std::string narrow_name(const OLECHAR* name) {
    std::string narrow;
    for (; *name != 0; ++name) {
        narrow += static_cast<char>(*name);
    }
    return narrow;
}

// What the document's directory has, streams and storages.
std::vector<std::string> names_in(const std::string& file) {
    const std::wstring wide(file.begin(), file.end());
    IStorage* opened = nullptr;
    if (FAILED(
            StgOpenStorage(wide.c_str(), nullptr, STGM_READ | STGM_SHARE_DENY_WRITE, nullptr, 0, &opened))) {
        require(opened == nullptr, "no storage on failure");
        return {};
    }
    const std::unique_ptr<IStorage, Releaser> storage(opened);
    IEnumSTATSTG* listed = nullptr;
    if (FAILED(storage->EnumElements(0, nullptr, 0, &listed))) {
        return {};
    }
    const std::unique_ptr<IEnumSTATSTG, Releaser> list(listed);
    std::vector<std::string> names;
    STATSTG element{};
    for (std::size_t count = 0; list->Next(1, &element, nullptr) == S_OK; ++count) {
        require(count < 4096, "the list of names ends");
        if (names.size() < most_names) {
            names.push_back(narrow_name(element.pwcsName));
        }
        CoTaskMemFree(element.pwcsName);
    }
    return names;
}

bool open_stream(ObjectStoreStorage& store, const std::string& name) {
    std::string error;
    const bool open = store.OpenStream(name, error);
    require(open == error.empty(), "an error exactly on failure");
    require(open || error.substr(0, 10) == "HRESULT = ", "the error is a code");
    return open;
}

bool open_storage(ObjectStoreStorage& store, const std::string& file, ObjectStore::OpenMode mode) {
    std::string error;
    const bool open = store.OpenStorage(file, mode, error);
    require(open == error.empty() && open == store.IsOpen(), "an error exactly on failure");
    return open;
}

// Streams one after the other in one store, as they may have been written, or each in a store of its own.
Values read_document(const std::string& file, const std::vector<std::string>& names, std::string_view program,
                     bool hosts_own, ReadObjects& objects) {
    Values values;
    const auto store = make_store(hosts_own);
    if (!open_storage(*store, file, ObjectStore::ForRead)) {
        return values;
    }
    for (const std::string& name : names) {
        if (open_stream(*store, name)) {
            const Values more = read_values(*store, program, objects);
            values.insert(values.end(), more.begin(), more.end());
        }
    }
    return values;
}

std::string upper(std::string name) {
    std::transform(name.begin(), name.end(), name.begin(), [](unsigned char c) {
        return c < 0x80 ? static_cast<char>(std::toupper(c)) : static_cast<char>(c);
    });
    return name;
}

// The name that was taken: that of the input, or a good one if that is refused.
std::string write_packed(const std::string& file, std::string name, std::string_view content,
                         bool step_back) {
    ObjectStoreStorage store;
    require(open_storage(store, file, ObjectStore::ForWrite), "a document is made");
    if (!open_stream(store, name)) {
        name = "Contents";
        require(open_stream(store, name), "a good name is taken");
    }
    while (!content.empty()) {
        const std::string_view piece = content.substr(0, 1 + content.size() / 3);
        store.Write(piece.data(), static_cast<unsigned>(piece.size()));
        if (step_back) {
            store.UngetChar('?');
            store.Write(&piece.back(), 1);
        }
        content.remove_prefix(piece.size());
    }
    store.CloseStream();
    return name;
}

void require_content(const std::string& file, const std::string& name, std::string_view content) {
    ObjectStoreStorage store;
    require(open_storage(store, file, ObjectStore::ForRead), "what was made opens");
    require(open_stream(store, name), "its stream opens");
    std::string found(content.size(), '\0');
    store.Read(found.data(), static_cast<unsigned>(found.size()));
    require(found == content, "the stream has what was written");
    try {
        store.GetChar();
        require(false, "the stream ends where writing did");
    } catch (const ObjectStore::UnexpectedEOF&) {
    }
}

void check_round_trip(const Values& values, bool ascii) {
    const ScratchFile file("");
    {
        ObjectStoreStorage store;
        require(open_storage(store, file.Name(), ObjectStore::ForWrite) && open_stream(store, "Again"),
                "opens");
        store.SetAscii(ascii);
        write_values(store, values);
        store.CloseStream();
    }
    ReadObjects objects;
    const Values again = read_document(file.Name(), {"Again"}, program_of(values), false, objects);
    require(are_equal(values, again), "what was written is read");
}

void run(Input input) {
    const unsigned options = input.Byte();
    const std::string_view program = input.Short(64);
    const std::string name(input.Short(40));
    const std::string_view content = input.Rest();
    const bool packed = (options & 1) != 0;
    const ScratchFile file(packed ? "" : content);
    std::vector<std::string> names = {"values", "Contents", name};
    if (packed) {
        names = {write_packed(file.Name(), name, content, (options & 16) != 0)};
        require_content(file.Name(), names[0], content);
        require_content(file.Name(), upper(names[0]), content);
    } else {
        const std::vector<std::string> found = names_in(file.Name());
        names.insert(names.end(), found.begin(), found.end());
    }
    ReadObjects objects;
    DIBitmap::FixUp = (options & 2) != 0;
    Values values;
    {
        const bool hosts_own = (options & 4) != 0;
        const LargestAllocation limit(hosts_own ? a_megabyte : 2 * a_megabyte + 16 * content.size(),
                                      hosts_own ? LargestAllocation::Fails : LargestAllocation::IsFinding);
        values = read_document(file.Name(), names, program, hosts_own, objects);
    }
    DIBitmap::FixUp = false;
    drop_lost_objects(values, objects);
    check_round_trip(values, (options & 8) != 0);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const bool registered = (lvx_fuzz::register_classes(), lvx_test::keep_gsf_quiet(), true);
    run(Input(data, size));
    require(registered && lvx_test::Tracked::Alive().empty(), "no object is left");
    return 0;
}
