#include "lvx/exchange/object_file.h"

#include <windows.h>

#include <io.h>

#include <algorithm>
#include <array>
#include <utility>

#include "lvx/exchange/pieces.h"
#include "lvx/exchange/storable_block.h"

namespace lvx::exchange {
namespace {

/// A file of the system's older calls, closed at the end.
class File {
public:
    File(const std::string& name, int mode) : m_file(::_lopen(name.c_str(), mode)) {}
    File(const File&) = delete;
    File& operator=(const File&) = delete;
    ~File() {
        if (IsOpen()) {
            ::_lclose(m_file);
        }
    }

    bool IsOpen() const { return m_file != HFILE_ERROR; }

    /// The size; the position is at the beginning afterwards. Negative if the size is 2 GiB or more, or the
    /// file has none.
    LONG Size() const {
        const LONG size = ::_llseek(m_file, 0, FILE_END);
        return ::_llseek(m_file, 0, FILE_BEGIN) == 0 ? size : -1;
    }

    /// How many bytes came.
    std::size_t Read(std::span<unsigned char> piece) const {
        return Moved(::_lread(m_file, piece.data(), static_cast<UINT>(piece.size())));
    }

    /// How many bytes went.
    std::size_t Write(std::span<const unsigned char> piece) const {
        return Moved(
            ::_lwrite(m_file, reinterpret_cast<const char*>(piece.data()), static_cast<UINT>(piece.size())));
    }

private:
    static std::size_t Moved(UINT result) { return result == static_cast<UINT>(HFILE_ERROR) ? 0 : result; }

    HFILE m_file;
};

void fill(std::span<unsigned char> block, const File& file) {
    const std::span<unsigned char> place = begin_block(block);
    const std::size_t read =
        transfer_in_pieces(place, [&](std::span<unsigned char> piece) { return file.Read(piece); });
    // Another program is to get the object, and nothing that happens to lie in this one's memory.
    std::ranges::fill(place.subspan(read), static_cast<unsigned char>(0));
}

bool write(std::span<const unsigned char> bytes, const std::string& name) {
    const File file(name, OF_WRITE);
    return file.IsOpen() && transfer_in_pieces(bytes, [&](std::span<const unsigned char> piece) {
                                return file.Write(piece);
                            }) == bytes.size();
}

}  // namespace

std::string make_temporary_file() {
    std::array<char, 200> folder{};
    const DWORD length = ::GetTempPathA(folder.size(), folder.data());
    if (length == 0 || length >= folder.size()) {
        return {};
    }
    std::array<char, MAX_PATH> name{};
    return ::GetTempFileNameA(folder.data(), "SWK", 0, name.data()) != 0 ? name.data() : std::string();
}

void TemporaryFile::Remove() {
    if (!m_name.empty()) {
        ::_unlink(std::exchange(m_name, {}).c_str());
    }
}

OwnedBlock block_of_file(const std::string& name) {
    const File file(name, OF_READ);
    const LONG size = file.IsOpen() ? file.Size() : -1;
    if (size < 0) {
        return {};
    }
    OwnedBlock block(static_cast<std::size_t>(size) + length_size);
    const bool filled = block.Fill([&](std::span<unsigned char> bytes) { fill(bytes, file); });
    return filled ? std::move(block) : OwnedBlock();
}

std::string file_of_block(HGLOBAL block) {
    const LVXUtilities::GlobalLocker<const unsigned char> memory(block);
    const std::size_t size = memory.get() != nullptr ? ::GlobalSize(block) : 0;
    const auto bytes = stored_bytes({memory.get(), size});
    std::string name = bytes ? make_temporary_file() : std::string();
    return !name.empty() && write(*bytes, name) ? name : std::string();
}

}  // namespace lvx::exchange
