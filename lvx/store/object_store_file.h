// lvx/store/object_store_file.h
//
// A store on a disk file. Owns the file from OpenStream to CloseStream or destruction. One thread at a time.
// Bytes go to the file in blocks; all of them are there after CloseStream.
// Does not: lock the file, keep a backup of what it overwrites, tell why an open failed.
#pragma once

#include <cstdio>

#include "lvx/store/object_store.h"

class LVX_EXPORT ObjectStoreFile : public ObjectStore {
public:
    ObjectStoreFile();
    /// Closes. What the device refuses now is lost silently; call CloseStream to be told.
    ~ObjectStoreFile() override;

    /// Opens `name`, closing what was open. `ForWrite` replaces an existing file without question. False if
    /// it cannot be opened, or `name` is a directory or null; the store is then closed, and the next transfer
    /// throws NotOpen. Throws WriteFailure, and opens nothing, if the last bytes of the file that was open
    /// did not get onto the device.
    bool OpenStream(const char* name, OpenMode mode);

    bool IsOpen() const override;
    /// Writes out and closes the file. Throws WriteFailure, closed all the same, if the last bytes did not
    /// get onto the device and no Write has told so.
    void CloseStream() override;
    void Write(const void* data, unsigned int length) override;
    /// Reading nothing succeeds, at the end too.
    void Read(void* data, unsigned int length) override;
    char GetChar() override;
    /// As ungetc does: one byte can always be put back, further ones as far as there is room.
    void UngetChar(char c) override;
    void CheckOpen(OpenMode mode) override;
    /// Reads as fgets does: the CR and LF count against `size` until they are removed. Throws UnexpectedEOF
    /// if nothing is left.
    int GetTrim(char* buffer, int size) override;

private:
    std::FILE* m_file = nullptr;
};
