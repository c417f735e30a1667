#include "sketch/model/document_file.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "lvx/store/object_factory.h"
#include "lvx/store/object_store_storage.h"
#include "owl/error.h"
#include "sketch/model/drawing.h"
#include "sketch/model/error.h"
#include "sketch/model/picture.h"
#include "sketch/model/reading.h"
#include "sketch/model/storage_error.h"
#include "sketch/model/stream_names.h"

namespace sketch {
namespace {

using LVXUtilities::ObjectStoreStorage;

constexpr const char* stream_name = "Sketch";
constexpr long version = 1;

void OpenStream(ObjectStoreStorage& store, const std::string& file, const std::string& name,
                ObjectStore::OpenMode mode) {
    std::string error;
    if (!store.OpenStorage(file, mode, error) || !store.OpenStream(name, error)) {
        throw DocumentError(StorageErrorText(error));
    }
}

Figures ReadDrawing(const std::string& file) {
    ObjectStoreStorage store;
    OpenStream(store, file, stream_name, ObjectStore::ForRead);
    store.ReadVersion();
    if (store.GetVersion() != version) {
        throw DocumentError("It was written by another version of this program (" +
                            std::to_string(store.GetVersion()) + ").");
    }
    const Reading reading;
    return Reading::Read<Drawing>(store)->Contents();
}

// Lays pictures out in rows, as on a page of an album.
class Album {
public:
    void Add(const Bitmap& bitmap, const std::string& name) {
        const int width = bitmap->GetWidth();
        if (m_x > margin && m_x + width > page_width) {
            m_x = margin;
            m_y += m_rowHeight + margin;
            m_rowHeight = 0;
        }
        const auto picture = std::make_shared<Picture>(bitmap, name, owl::TPoint(m_x, m_y));
        m_x += width + margin;
        m_rowHeight = std::max(m_rowHeight, picture->Bounds().Height());
        m_figures.push_back(picture);
    }
    Figures Take() { return std::move(m_figures); }

private:
    static constexpr int margin = 24;
    static constexpr int page_width = 800;

    Figures m_figures;
    int m_x = margin;
    int m_y = margin;
    int m_rowHeight = 0;
};

Figures ReadPictures(const std::string& file, const std::vector<std::string>& streams) {
    Album album;
    for (const std::string& name : streams) {
        ObjectStoreStorage store;
        OpenStream(store, file, name, ObjectStore::ForRead);
        store.ReadVersion();
        const Reading reading;
        album.Add(Reading::Read<LVXUtilities::DIBitmap>(store), name);
    }
    return album.Take();
}

bool IsOwnStream(const std::string& name) {
    return ::lstrcmpiA(name.c_str(), stream_name) == 0;
}

LoadedDocument Load(const std::string& file) {
    const std::vector<std::string> streams = StreamNames(file);
    if (std::any_of(streams.begin(), streams.end(), IsOwnStream)) {
        return {ReadDrawing(file), true};
    }
    if (streams.empty()) {
        throw DocumentError("There is nothing in it.");
    }
    return {ReadPictures(file, streams), false};
}

void Write(const std::string& file, const Figures& figures) {
    ObjectStoreStorage store;
    OpenStream(store, file, stream_name, ObjectStore::ForWrite);
    const Drawing drawing(figures);
    store << version << drawing;
    store.CloseStream();
}

// Takes a file away unless it was told not to.
class PendingFile {
public:
    explicit PendingFile(std::string name) : m_name(std::move(name)) {}
    ~PendingFile() { ::DeleteFileA(m_name.c_str()); }
    PendingFile(const PendingFile&) = delete;
    PendingFile& operator=(const PendingFile&) = delete;

    const std::string& Name() const { return m_name; }
    void MoveTo(const std::string& file) const {
        if (::MoveFileExA(m_name.c_str(), file.c_str(), MOVEFILE_REPLACE_EXISTING) == FALSE) {
            throw DocumentError("The file cannot be replaced. (error " + std::to_string(::GetLastError()) +
                                ")");
        }
    }

private:
    std::string m_name;
};

}  // namespace

LoadedDocument LoadDocument(const std::string& file) {
    try {
        return Load(file);
    } catch (const DocumentError&) {
        throw;
    } catch (const std::runtime_error& error) {  // of the store, the factory or a device
        throw DocumentError(error.what());
    }
}

void SaveDocument(const std::string& file, const Figures& figures) {
    const PendingFile pending(file + ".new");
    try {
        Write(pending.Name(), figures);
    } catch (const ObjectStore::WriteFailure& error) {
        throw DocumentError(error.what());
    }
    pending.MoveTo(file);
}

}  // namespace sketch
