#include "tools/lvxdoc/bitmap_writer.h"

#include <limits>

#include "lvx/store/byte_order.h"
#include "tools/lvxdoc/bitmap_header.h"

namespace lvxdoc {
namespace {

constexpr std::uint32_t file_header_size = 14;
constexpr std::uint16_t bitmap_signature = 0x4d42;
constexpr std::size_t longest_stem = 120;

std::filesystem::path from_utf8(const std::string& name) {
    return std::u8string(name.begin(), name.end());
}

}  // namespace

void BitmapWriter::BeginBitmap(std::uint64_t size) {
    m_name = m_names.Take(m_stem, longest_stem) + ".bmp";
    const std::filesystem::path target = m_folder / from_utf8(m_name);
    std::error_code error;
    const auto type = std::filesystem::symlink_status(target, error).type();
    if (!m_force && type != std::filesystem::file_type::not_found) {
        Refuse("'" + m_name + "' exists already; --force replaces it");
        return;
    }
    m_size = size;
    m_has_header = false;
    m_file = std::make_unique<PendingFile>(target);
}

void BitmapWriter::TakeBitmapBytes(std::string_view bytes) {
    if (m_file == nullptr || (!m_has_header && !WriteFileHeader(bytes))) {
        return;
    }
    m_file->Write(bytes.data(), bytes.size());
}

void BitmapWriter::Refuse(const std::string& why) {
    m_refused.push_back(why);
    m_file.reset();
}

// The first piece has the whole header in it. False if the bitmap is refused.
bool BitmapWriter::WriteFileHeader(std::string_view start) {
    const auto header =
        decode_bitmap_header(reinterpret_cast<const unsigned char*>(start.data()), start.size());
    const auto why = header ? find_implausible(*header, m_size) : "it has no header";
    if (why) {
        Refuse("'" + m_name + "' would be no bitmap: " + *why);
        return false;
    }
    constexpr std::uint64_t most = std::numeric_limits<std::uint32_t>::max();
    if (m_size + file_header_size > most || header->PixelOffset() + file_header_size > most) {
        Refuse("'" + m_name + "' would be too large for a bitmap file");
        return false;
    }
    unsigned char bytes[file_header_size] = {};
    lvx::store::encode(bitmap_signature, bytes);
    lvx::store::encode(static_cast<std::uint32_t>(m_size + file_header_size), bytes + 2);
    lvx::store::encode(static_cast<std::uint32_t>(header->PixelOffset() + file_header_size), bytes + 10);
    m_file->Write(bytes, sizeof bytes);
    m_has_header = true;
    return true;
}

void BitmapWriter::EndBitmap() {
    if (m_file == nullptr) {
        return;
    }
    m_file->Commit(m_force);
    m_file.reset();
    m_written.push_back(m_name);
}

}  // namespace lvxdoc
