#include "tools/lvxdoc/picture_packer.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>
#include <ostream>

#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"
#include "tools/lvxdoc/bitmap_header.h"
#include "tools/lvxdoc/byte_source.h"
#include "tools/lvxdoc/compound_file.h"
#include "tools/lvxdoc/errors.h"
#include "tools/lvxdoc/pending_file.h"
#include "tools/lvxdoc/platform/system.h"
#include "tools/lvxdoc/safe_name.h"
#include "tools/lvxdoc/store_buffer.h"
#include "tools/lvxdoc/walk_part.h"

namespace lvxdoc {
namespace {

using LVXUtilities::DIBitmap;
using LVXUtilities::ObjectStoreStorage;

constexpr std::size_t longest_stream_name = 31;

std::uint64_t steps_of(const std::string& file) {
    std::error_code error;
    const auto size = std::filesystem::file_size(platform::native_path(file), error);
    return error ? 0 : size;
}

std::unique_ptr<DIBitmap> load(const std::string& file) {
    try {
        return std::make_unique<DIBitmap>(file, DIBitmap::AnyFormat);
    } catch (const char* why) {
        throw Failure("cannot read the picture '" + file + "': " + why);
    } catch (const std::bad_alloc&) {
        throw Failure("cannot read the picture '" + file + "': there is not enough memory for it");
    }
}

void put_picture(ObjectStoreStorage& document, const DIBitmap& picture) {
    StoreBuffer buffer(document);
    std::ostream stream(&buffer);
    ObjectStoreStream store;
    store.OpenStream(&stream);
    store << packed_version << picture;
    store.CloseStream();
}

PackedPicture pack_picture(ObjectStoreStorage& document, const std::string& file, const std::string& stream) {
    const auto picture = load(file);
    std::string error;
    if (!document.OpenStream(stream, error)) {
        throw Failure("cannot make the stream '" + stream + "': " + error);
    }
    put_picture(document, *picture);
    return {file, stream, picture->GetWidth(), std::abs(picture->GetHeight()), picture->GetBitsPerPixel(),
            {}};
}

// Counts the bitmaps of a stream and looks at their headers.
class HeaderWatch : public EventSink {
public:
    void Take(const Event&) override {}
    void BeginBitmap(std::uint64_t size) override {
        m_size = size;
        m_at_start = true;
    }
    // The first piece has the whole header in it.
    void TakeBitmapBytes(std::string_view bytes) override {
        if (m_at_start) {
            flaw = find_flaw(bytes, m_size);
            m_at_start = false;
        }
    }
    void EndBitmap() override { ++bitmaps; }

    std::size_t bitmaps = 0;
    std::string flaw;

private:
    static std::string find_flaw(std::string_view start, std::uint64_t size) {
        const auto header =
            decode_bitmap_header(reinterpret_cast<const unsigned char*>(start.data()), start.size());
        return header ? find_implausible(*header, size).value_or("") : "it has no room for a header";
    }

    std::uint64_t m_size = 0;
    bool m_at_start = false;
};

void read_back(const Document& document, PackedPicture& picture) {
    const Schema schema;
    StringOutput nowhere;
    ProgressBar no_bar(nowhere, false, 0);
    Numbering numbering;
    HeaderWatch watch;
    walk_part(document, document.Find(picture.stream), schema, false, numbering, watch, no_bar);
    if (watch.bitmaps != 1) {
        throw Failure("what was written does not read back whole");
    }
    picture.flaw = watch.flaw;
}

// A disk may lose without a word what it took; the document is walked before anybody relies on it.
void read_back(const std::string& place, std::vector<PackedPicture>& pictures, ProgressBar& bar) {
    try {
        const Document document(place);
        for (PackedPicture& picture : pictures) {
            read_back(document, picture);
            bar.Advance(steps_of(picture.file));
        }
    } catch (const Damage& damage) {
        throw Failure("what was written does not read back: " + tell_damage(damage));
    }
}

std::vector<PackedPicture> fill(ObjectStoreStorage& document, const std::string& place,
                                const std::vector<std::string>& pictures, ProgressBar& bar) {
    std::string error;
    if (!document.OpenStorage(place, ObjectStore::ForWrite, error)) {
        throw Failure(error);
    }
    std::vector<PackedPicture> packed;
    packed.reserve(pictures.size());
    UniqueNames names;
    for (const std::string& file : pictures) {
        packed.push_back(
            pack_picture(document, file, names.Take(stream_name_for(file), longest_stream_name)));
        bar.Advance(steps_of(file));
    }
    document.CloseStream();
    return packed;
}

// A picture named first by mistake is not to be lost.
void check_target(const std::string& name, bool force) {
    const std::filesystem::path target = platform::native_path(name);
    std::error_code error;
    const auto type = std::filesystem::status(target, error).type();
    if (type == std::filesystem::file_type::not_found) {
        return;
    }
    if (type != std::filesystem::file_type::regular) {
        throw Failure("cannot write '" + name + "': it exists and is not a file");
    }
    if (!force && !CompoundFile::Recognise(*open_file(name))) {
        throw Failure("'" + name + "' exists and is no document; --force replaces it");
    }
}

}  // namespace

void check_picture(const std::string& file) {
    const auto source = open_file(file);
    unsigned char start[3] = {};
    source->ReadAt(0, start, static_cast<std::size_t>(std::min<std::uint64_t>(sizeof start, source->Size())));
    const bool is_bitmap = start[0] == 'B' && start[1] == 'M';
    const bool is_jpeg = start[0] == 0xff && start[1] == 0xd8 && start[2] == 0xff;
    if (!is_bitmap && !is_jpeg) {
        throw Failure("cannot read the picture '" + file + "': it is neither a bitmap nor a JPEG file");
    }
}

std::vector<PackedPicture> pack_pictures(const std::string& name, const std::vector<std::string>& pictures,
                                         bool force, ProgressBar* bar) {
    StringOutput nowhere;
    ProgressBar no_bar(nowhere, false, 0);
    ProgressBar& shown = bar != nullptr ? *bar : no_bar;
    for (const std::string& file : pictures) {
        check_picture(file);
    }
    check_target(name, force);
    PendingFile pending(platform::native_path(name));
    pending.Close();
    const std::string place = platform::narrow_name(pending.Place());
    ObjectStoreStorage document;
    pending.OnProcessEnd([&document] { document.CloseStream(); });
    try {
        auto packed = fill(document, place, pictures, shown);
        read_back(place, packed, shown);
        pending.Commit(true);
        return packed;
    } catch (const Failure&) {
        throw;
    } catch (const lvx::runtime_error& error) {
        throw Failure("cannot write '" + name + "': " + error.what());
    }
}

std::uint64_t packing_steps(const std::vector<std::string>& pictures) {
    std::uint64_t steps = 0;
    for (const std::string& file : pictures) {
        // Once for writing and once for reading back.
        steps += 2 * steps_of(file);
    }
    return steps;
}

}  // namespace lvxdoc
