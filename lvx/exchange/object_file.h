// lvx/exchange/object_file.h
//
// The temporary files through which objects go to the clipboard and come from it. Private to the clipboard;
// Windows only.
#pragma once

#include <string>

#include "lvx/exchange/owned_block.h"

namespace lvx::exchange {

/// Makes an empty file with a new name, "SWK….tmp", in the folder for temporary files. Its full name; empty
/// if the system refuses, or that folder's name is longer than 199 characters.
std::string make_temporary_file();

/// A file that goes with this object. Whoever has it open has closed it by then.
class TemporaryFile {
public:
    TemporaryFile() : m_name(make_temporary_file()) {}
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;
    ~TemporaryFile() { Remove(); }

    /// Empty if there is no file.
    const std::string& Name() const { return m_name; }
    /// Removes it before the object ends.
    void Remove();

private:
    std::string m_name;
};

/// A block with the length and what the file holds (storable_block.h). Empty if the file cannot be opened, is
/// of 2 GiB or more, or there is no memory. What cannot be read of it is zeros.
OwnedBlock block_of_file(const std::string& name);

/// Makes a temporary file of the stored bytes in `block` and returns its name. Empty if the block is torn or
/// the bytes do not get into the file. A file that was made stays.
std::string file_of_block(HGLOBAL block);

}  // namespace lvx::exchange
