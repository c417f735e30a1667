// lvx/store/object_store_stream.h
//
// A store on a standard stream that the caller owns and keeps alive while it is attached. Every piece goes to
// the stream at once, so the caller may use the stream itself between two pieces. One thread at a time.
// Does not: open, flush or close the stream, or reset its state. A read that the data end within raises
// nothing: numbers are then zero and texts as far as they came, and the next GetChar throws UnexpectedEOF.
#pragma once

#include <iosfwd>

#include "lvx/store/object_store.h"

class LVX_EXPORT ObjectStoreStream : public ObjectStore {
public:
    ObjectStoreStream();
    ~ObjectStoreStream() override;

    /// Attaches the stream for writing, detaching what was attached. False, and closed, if it is null. The
    /// stream has to be a binary one.
    bool OpenStream(std::ostream* stream);
    /// Likewise for reading.
    bool OpenStream(std::istream* stream);

    bool IsOpen() const override;
    void CloseStream() override;
    /// Throws WriteFailure if the stream is bad afterwards.
    void Write(const void* data, unsigned int length) override;
    /// Throws UnexpectedEOF only if the stream is bad afterwards, which the end of the data is not.
    void Read(void* data, unsigned int length) override;
    char GetChar() override;
    void UngetChar(char c) override;
    void CheckOpen(OpenMode mode) override;
    /// Reads as std::istream::getline does: a line may be one character longer than on a file. The last line
    /// loses its last character if no line end follows.
    int GetTrim(char* buffer, int size) override;

private:
    std::ostream* m_output = nullptr;
    std::istream* m_input = nullptr;
};
