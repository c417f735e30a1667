#include "lvx/platform/posix/drive_table.h"

namespace lvx::platform {

DriveTable& DriveTable::Process() {
    static DriveTable table;
    return table;
}

DriveSet DriveTable::Now() const {
    const std::lock_guard lock(m_lock);
    return m_drives;
}

bool DriveTable::Map(char letter, const std::string& root) {
    const std::lock_guard lock(m_lock);
    return m_drives.Map(letter, root);
}

bool DriveTable::Unmap(char letter) {
    const std::lock_guard lock(m_lock);
    return m_drives.Unmap(letter);
}

void DriveTable::Remember(const DrivePlace& place, const std::string& root) {
    const std::lock_guard lock(m_lock);
    if (m_drives.Root(place.letter) == root) {
        m_drives.Remember(place);
    }
}

}  // namespace lvx::platform
