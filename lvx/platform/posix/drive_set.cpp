#include "lvx/platform/posix/drive_set.h"

#include <utility>

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

}  // namespace

DriveSet::DriveSet() {
    Map('C', "/");
}

bool DriveSet::Map(char letter, const std::string& root) {
    Drive* const drive = Find(letter);
    if (drive == nullptr || root.empty()) {
        return false;
    }
    *drive = {root, {}};
    return true;
}

bool DriveSet::Unmap(char letter) {
    Drive* const drive = Find(letter);
    if (drive == nullptr || drive->root.empty()) {
        return false;
    }
    *drive = {};
    return true;
}

std::optional<std::string> DriveSet::Root(char letter) const {
    const Drive* const drive = Find(letter);
    return drive == nullptr || drive->root.empty() ? std::nullopt : std::optional(drive->root);
}

std::optional<DrivePlace> DriveSet::PlaceOf(const std::string& absolute) const {
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

void DriveSet::Remember(const DrivePlace& place) {
    Drive* const drive = Find(place.letter);
    if (drive != nullptr && !drive->root.empty()) {
        drive->current = place.path;
    }
}

std::string DriveSet::Remembered(char letter) const {
    const Drive* const drive = Find(letter);
    return drive == nullptr ? std::string() : drive->current;
}

const DriveSet::Drive* DriveSet::Find(char letter) const {
    const std::optional<char> capital = drive_letter(letter);
    return capital ? &m_drives[static_cast<std::size_t>(*capital - 'A')] : nullptr;
}

DriveSet::Drive* DriveSet::Find(char letter) {
    return const_cast<Drive*>(std::as_const(*this).Find(letter));
}

std::optional<char> drive_letter(char character) {
    if (character >= 'a' && character <= 'z') {
        return static_cast<char>(character - 'a' + 'A');
    }
    return character >= 'A' && character <= 'Z' ? std::optional(character) : std::nullopt;
}

}  // namespace lvx::platform
