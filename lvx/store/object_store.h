// lvx/store/object_store.h
//
// A serial store of typed values and whole objects, open either for writing or for reading. This class has
// the byte format; the kinds of store (object_store_file.h, object_store_stream.h, object_store_storage.h, or
// a host's own) derive from it and move the bytes.
//
//     ObjectStoreFile store;
//     if (store.OpenStream("stars.dat", ObjectStore::ForWrite)) {
//         store << 3L << star << star;  // a version; the object; a reference to it
//         store.CloseStream();
//     }
//
// A store owns neither the objects written nor those read: read objects belong to the caller, each once,
// however many references to it were read. One thread at a time. Does not: write a header, a length or a
// checksum, or keep anything about the order of values. Reader and writer agree on the sequence; the format
// is told in docs/store-format.md.
#pragma once

#include <string>
#include <vector>

#include "lvx/platform/export.h"
#include "lvx/store/storable.h"
#include "lvx/text/error.h"
#include "lvx/text/ownership.h"

class ObjectStore;

namespace lvx::store {
class ObjectMap;
class Shortcuts;
}  // namespace lvx::store

class LVX_EXPORT ObjectStore {
public:
    enum OpenMode { ForRead = 0, ForWrite = 1 };

    /// A transfer was tried while nothing is open.
    class LVX_EXPORT NotOpen : public lvx::runtime_error {
    public:
        NotOpen();
        NotOpen(const NotOpen&) = default;
        ~NotOpen() override;
    };
    /// The data end before the value does.
    class LVX_EXPORT UnexpectedEOF : public lvx::runtime_error {
    public:
        UnexpectedEOF();
        UnexpectedEOF(const UnexpectedEOF&) = default;
        ~UnexpectedEOF() override;
    };
    /// Writing to a store that is open for reading, or the reverse.
    class LVX_EXPORT WrongMode : public lvx::runtime_error {
    public:
        WrongMode();
        WrongMode(const WrongMode&) = default;
        ~WrongMode() override;
    };
    /// The medium did not take the bytes, or the value has no form in a store.
    class LVX_EXPORT WriteFailure : public lvx::runtime_error {
    public:
        WriteFailure();
        WriteFailure(const WriteFailure&) = default;
        ~WriteFailure() override;
    };
    /// Something else stands in the store than what is being read; damaged stores end here.
    class LVX_EXPORT UnexpectedObject : public lvx::runtime_error {
    public:
        /// What was found comes first, what was expected second; the text tells them the other way round.
        UnexpectedObject(const std::string& found, const char* expected);
        UnexpectedObject(char found, const char* expected);
        UnexpectedObject(const UnexpectedObject&) = default;
        ~UnexpectedObject() override;
    };

    /// A manipulator with an argument, as Ascii makes it.
    struct BoolManipulator {
        void (*apply)(ObjectStore&, bool);
        bool on;
    };

    ObjectStore();
    ObjectStore(const ObjectStore&) = delete;
    ObjectStore& operator=(const ObjectStore&) = delete;

    /// Does not call CloseStream: the class that has the medium does so in its own destructor.
    virtual ~ObjectStore();

    // What a kind of store supplies. A class of the host's own sees exactly one call per piece: writing an
    // int is one Write of 4 bytes, a C string one Write of its length and one of its characters.

    /// Whether the medium is attached.
    virtual bool IsOpen() const = 0;
    /// Detaches the medium. A class that overrides it calls ObjectStore::CloseStream last, which forgets the
    /// objects seen. The class names, the version and the three switches stay: a store that is opened again
    /// still knows the class numbers of its first stream.
    virtual void CloseStream();
    /// Requires: open for writing, else throws NotOpen or WrongMode. Throws WriteFailure unless all bytes
    /// went.
    virtual void Write(const void* data, unsigned int length) = 0;
    /// Requires: open for reading. Throws UnexpectedEOF unless `length` bytes came.
    virtual void Read(void* data, unsigned int length) = 0;
    /// Requires: open for reading. The next byte; throws UnexpectedEOF if there is none.
    virtual char GetChar() = 0;
    /// Steps back one byte, so that the next GetChar gives `c` again.
    virtual void UngetChar(char c) = 0;
    /// Throws NotOpen if the medium is absent, else WrongMode if `mode` is not the open direction.
    virtual void CheckOpen(OpenMode mode) = 0;
    /// Reads a line of at most `size` - 1 characters into `buffer`, removes its line end, puts a NUL behind
    /// it and returns its length.
    virtual int GetTrim(char* buffer, int size) = 0;

    // Values. int and long take 4 bytes, little-endian, on every system; writing a long that does not fit
    // throws WriteFailure before anything is written. bool goes as an int, float as a double of 8 bytes.

    ObjectStore& operator<<(bool value);
    ObjectStore& operator<<(int value);
    ObjectStore& operator<<(long value);
    ObjectStore& operator<<(float value);
    ObjectStore& operator<<(double value);
    ObjectStore& operator<<(char value);
    /// The length, then the characters and their NUL unless the length is 0. Null is written as "".
    ObjectStore& operator<<(const char* text);
    /// The tag 's', the length and the characters without a NUL.
    ObjectStore& operator<<(const std::string& text);
    /// The object in full at first sight, a reference to it from then on. An object is known by its address.
    ObjectStore& operator<<(const Storable& object);
    ObjectStore& operator<<(ObjectStore& (*manipulator)(ObjectStore&));
    ObjectStore& operator<<(const BoolManipulator& manipulator);

    ObjectStore& operator>>(bool& value);
    ObjectStore& operator>>(int& value);
    ObjectStore& operator>>(long& value);
    ObjectStore& operator>>(float& value);
    ObjectStore& operator>>(double& value);
    ObjectStore& operator>>(char& value);
    /// Makes a new array, never null, that the caller deletes with array delete. If reading fails, `text` is
    /// left as it was.
    ObjectStore& operator>>(char*& text);
    /// Also reads the strings of older documents, which are objects of the class "VString". The text is cut
    /// at its first NUL.
    ObjectStore& operator>>(std::string& text);
    /// Null, a new object, or one that was read before. The caller owns a new one.
    ObjectStore& operator>>(Storable*& object);
    ObjectStore& operator>>(ObjectStore& (*manipulator)(ObjectStore&));
    ObjectStore& operator>>(const BoolManipulator& manipulator);

    /// Manipulator: the next object is written in full even if it was written before. Only for objects that
    /// nothing refers to afterwards: the reader counts them again, the writer does not.
    static ObjectStore& TempObject(ObjectStore& store);
    /// Manipulator: the next object is read into the one that the pointer holds, which must be of its class.
    static ObjectStore& NoCreate(ObjectStore& store);
    /// Manipulator: has the effect of SetAscii(on).
    static BoolManipulator Ascii(bool on);

    /// Chooses the marker in front of the objects written from now on: 'A' if on, 'B' if not, and nothing
    /// else.
    void SetAscii(bool on);

    /// Reads a long from the present position and keeps it for GetVersion. There is no counterpart that
    /// writes: the host writes its version as a long where its format puts one.
    void ReadVersion();
    /// What ReadVersion last read; 0 before that.
    long GetVersion() const;

    /// The class name most recently read from the store.
    std::string ClassName() const;

    /// The first stage of reading an object. True: its class is known (ClassName) and its body follows.
    /// False: `object` has been set, to null or to an object read before, and nothing more belongs to it.
    bool ReadObjectOrClass(Storable*& object);
    /// Gives `object` the next id. One that has an id keeps it.
    void AppendObjectToMap(const Storable* object);
    /// Gives `object` the next id on the reading side. Creators call it before they read any member.
    void AppendObjectToList(Storable* object);

    /// Throws UnexpectedEOF, with nothing left to read, if the medium is known to hold fewer than `length`
    /// further bytes; does nothing if it holds them, that cannot be told, or `length` is too small to matter
    /// (4 KiB; 1 MiB on a standard stream). To be called with a length out of the store before memory is
    /// taken for it; a negative one always throws.
    void ExpectBytes(long long length);

protected:
    /// Where a kind of store in this library lets the operators reach its buffer directly.
    lvx::store::Shortcuts& GetShortcuts();

    OpenMode m_mode = ForRead;

private:
    class Reading;

    long FindId(const Storable& object) const;
    void WriteClassAndBodyTag(const char* name);
    void ReadClassName();
    void ReadClassNumber();
    bool IsClass(long number) const;
    void SelectClass(long number);
    void ChangeClass(long number);
    ObjectStore& ReadBody(Storable*& object);
    ObjectStore& ReadByTags(Storable*& object);
    Storable* ReadReference(const Storable* target);
    bool IsObject(long id) const;
    Storable* CreateObject();
    bool MayDelete(const Storable* object) const;
    void GrowObjectList(Storable* object);
    [[noreturn]] void RefuseAsString(Storable* object);

    std::vector<std::string> m_classNames;
    lvx::auto_ptr<lvx::store::ObjectMap> m_objectMap;
    lvx::auto_ptr<std::vector<Storable*>> m_objectList;
    std::string m_className;
    bool m_ascii = false;
    bool m_tempObject = false;
    bool m_create = true;
    long m_version = 0;
    lvx::auto_ptr<lvx::store::Shortcuts> m_shortcuts;
};
