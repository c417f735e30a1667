// lvx/platform/posix/drive_table.h
//
// The drives of the process. Any thread may use it: whoever has several questions asks them of one copy, so
// that all the answers are of the same moment.
#pragma once

#include <mutex>
#include <string>

#include "lvx/platform/posix/drive_set.h"

namespace lvx::platform {

class DriveTable {
public:
    /// The table of the process.
    static DriveTable& Process();

    /// The drives as they are now.
    DriveSet Now() const;

    /// See DriveSet.
    bool Map(char letter, const std::string& root);
    bool Unmap(char letter);

    /// Sets the current directory of a drive, as it was found while the letter stood for `root`. Does nothing
    /// if it stands for another folder by now.
    void Remember(const DrivePlace& place, const std::string& root);

private:
    mutable std::mutex m_lock;
    DriveSet m_drives;
};

}  // namespace lvx::platform
