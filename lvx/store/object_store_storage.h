// lvx/store/object_store_storage.h
//
// A store on one named stream of a compound file, so that one document holds several stores side by side:
//
//     LVXUtilities::ObjectStoreStorage store;
//     std::string error;
//     if (store.OpenStorage("stars.lvx", ObjectStore::ForWrite, error) && store.OpenStream("Sky", error)) {
//         store << 3L << star;
//     }
//     store.CloseStream();
//
// Owns the compound file from OpenStorage to CloseStream or destruction, and keeps other openers away for
// that time. One thread at a time. Bytes go to the stream in blocks; off Windows they reach the disk when the
// storage is closed. docs/compound-document.md has the file, the names and the error codes.
// Does not: open for reading and writing at once, add to an existing document, see inside sub-storages,
// forget objects and class numbers between two streams of one OpenStorage.
#pragma once

#include <string>

#include "lvx/store/object_store.h"

struct IStorage;
struct IStream;

namespace LVXUtilities {

class LVX_EXPORT ObjectStoreStorage : public ObjectStore {
public:
    ObjectStoreStorage();
    /// Closes. What the medium refuses now is lost silently; call CloseStream to be told.
    ~ObjectStoreStorage() override;

    /// Closes what was open and opens the compound file `name`. `ForWrite` replaces an existing file without
    /// question. No stream is open then, so no byte can pass before OpenStream. On failure returns false with
    /// the store closed and "HRESULT = " and the code, such as "HRESULT = 80030002" for a missing file, in
    /// `error`; on success leaves `error` alone. It fails too, with "HRESULT = 80030070", if the file that
    /// was open could not be completed.
    bool OpenStorage(const std::string& name, OpenMode mode, std::string& error);

    /// Moves to the stream `name`: an existing one for reading; for writing a new one, in place of one of the
    /// same name. Names have 1 to 31 characters and are the same in either case. Objects and class numbers
    /// run on from stream to stream: read the streams in the order in which they were written, or write each
    /// with a store of its own.
    ///
    /// On failure returns false with the code in `error`, and no stream is open: also, with 80030070, if the
    /// last bytes did not get into the stream that was open. Throws NotOpen without a storage.
    bool OpenStream(const std::string& name, std::string& error);

    /// Whether a compound file is open, even with no stream in it.
    bool IsOpen() const override;
    /// Completes the file. Throws WriteFailure, closed all the same, if it did not get onto the disk whole.
    void CloseStream() override;
    void Write(const void* data, unsigned int length) override;
    /// Bytes that came before UnexpectedEOF are consumed.
    void Read(void* data, unsigned int length) override;
    char GetChar() override;
    /// Steps back over the last byte, whatever `c` is, also on a store open for writing, where the next Write
    /// replaces that byte. Throws UnexpectedEOF at the beginning of the stream.
    void UngetChar(char c) override;
    /// Throws NotOpen if no stream is open.
    void CheckOpen(OpenMode mode) override;
    /// Reads up to the LF, or to the character that fills the buffer; what follows that one stays in the
    /// stream, the line end too. CR is dropped wherever it stands. Throws UnexpectedEOF if the stream ends
    /// first.
    int GetTrim(char* buffer, int size) override;

private:
    bool ReleaseStream();
    void StepBackReading();
    void StepBackWriting();

    IStorage* m_storage = nullptr;
    IStream* m_stream = nullptr;
    OpenMode m_openMode = ForRead;
};

}  // namespace LVXUtilities
