#include "lvx/platform/posix/drive_table.h"

namespace lvx::platform {

namespace {

// The folder with one '/' at its end, which every path inside begins with.
std::string inside(const std::string& root) {
    return root.back() == '/' ? root : root + '/';
}

// What of `absolute` lies below `root`; nothing if it lies elsewhere.
std::optional<std::string> below(const std::string& root, const std::string& absolute) {
    if (absolute == root) {
        return std::string();
    }
    const std::string start = inside(root);
    if (!absolute.starts_with(start)) {
        return std::nullopt;
    }
    return absolute.substr(start.size());
}

// Of a letter that is one.
std::size_t index_of(char letter) {
    return static_cast<std::size_t>(letter - 'A');
}

}  // namespace

DriveTable::DriveTable() {
    Map('C', "/");
}

DriveTable& DriveTable::Process() {
    static DriveTable table;
    return table;
}

bool DriveTable::Map(char letter, const std::string& root) {
    const std::optional<char> capital = drive_letter(letter);
    if (!capital || root.empty()) {
        return false;
    }
    const std::lock_guard lock(m_lock);
    m_drives[index_of(*capital)] = {root, {}};
    return true;
}

bool DriveTable::Unmap(char letter) {
    if (!Root(letter)) {
        return false;
    }
    const std::lock_guard lock(m_lock);
    m_drives[index_of(*drive_letter(letter))] = {};
    return true;
}

std::optional<std::string> DriveTable::Root(char letter) const {
    const std::optional<char> capital = drive_letter(letter);
    if (!capital) {
        return std::nullopt;
    }
    const std::lock_guard lock(m_lock);
    const std::string& root = m_drives[index_of(*capital)].root;
    return root.empty() ? std::nullopt : std::optional(root);
}

std::optional<DrivePlace> DriveTable::PlaceOf(const std::string& absolute) const {
    const std::lock_guard lock(m_lock);
    std::optional<DrivePlace> place;
    std::size_t longest = 0;
    char letter = 'A';
    for (const Drive& drive : m_drives) {
        if (drive.root.size() > longest) {
            if (auto path = below(drive.root, absolute)) {
                place = DrivePlace{letter, std::move(*path)};
                longest = drive.root.size();
            }
        }
        ++letter;
    }
    return place;
}

void DriveTable::Remember(const DrivePlace& place) {
    if (Root(place.letter)) {
        const std::lock_guard lock(m_lock);
        m_drives[index_of(*drive_letter(place.letter))].current = place.path;
    }
}

std::string DriveTable::Remembered(char letter) const {
    const std::optional<char> capital = drive_letter(letter);
    if (!capital) {
        return {};
    }
    const std::lock_guard lock(m_lock);
    return m_drives[index_of(*capital)].current;
}

std::optional<char> drive_letter(char character) {
    if (character >= 'a' && character <= 'z') {
        return static_cast<char>(character - 'a' + 'A');
    }
    return character >= 'A' && character <= 'Z' ? std::optional(character) : std::nullopt;
}

}  // namespace lvx::platform
