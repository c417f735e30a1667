// The example host for tests that are its user: it runs in a process of its own and gets keys and mouse; what
// comes of them is read from the status line, from the screen, and from the files that it saves.
#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_storage.h"
#include "support/places.h"
#include "support/screen_picture.h"
#include "support/sketch_program.h"
#include "support/temp_folder.h"

namespace sketch_test {

using user::Press;
using user::ScreenPicture;
using user::SketchProgram;
using user::WaitUntil;

constexpr COLORREF white = RGB(255, 255, 255);
constexpr COLORREF black = RGB(0, 0, 0);

// What a document's stream begins with, read by hand: the version and how many figures there are.
struct Contents {
    long version = 0;
    int figures = -1;
};

inline Contents ReadContents(const std::string& file) {
    LVXUtilities::ObjectStoreStorage store;
    std::string error;
    Contents contents;
    if (!store.OpenStorage(file, ObjectStore::ForRead, error) || !store.OpenStream("Sketch", error))
        return contents;
    store >> contents.version;
    char drawing[21] = "";
    store.Read(drawing, 20);
    if (std::string(drawing) == "Bcsketch::Drawing\r\no")
        store >> contents.figures;
    return contents;
}

class Sketch : public ::testing::Test {
protected:
    void Start(const std::string& document = "") {
        m_sketch = std::make_unique<SketchProgram>(LVX_TEST_PROGRAM_PREFIX "sketch.exe", document);
    }
    void StartInFront(const std::string& document = "") {
        Start(document);
        ASSERT_TRUE(m_sketch->ComeToFront());
        ::MoveWindow(m_sketch->Frame(), 20, 20, 800, 600, TRUE);
    }
    // A document with one picture of 24 bits, 127 by 64, which is shown at (24, 24).
    std::string Packed() {
        const std::string file = m_folder.File("packed.lvx");
        LVXUtilities::ObjectStoreStorage store;
        std::string error;
        EXPECT_TRUE(store.OpenStorage(file, ObjectStore::ForWrite, error) && store.OpenStream("test", error));
        store << 1L
              << LVXUtilities::DIBitmap(lvx_test::own_data() + "/pictures/rgb24.bmp",
                                        LVXUtilities::DIBitmap::DIB);
        store.CloseStream();
        return file;
    }
    bool Shows(COLORREF colour, int x, int y) const {
        const POINT place = m_sketch->At(x, y);
        const RECT pixel{place.x, place.y, place.x + 1, place.y + 1};
        return WaitUntil([&] { return ScreenPicture::Of(pixel).Count(colour) == 1; }, 3000);
    }
    ScreenPicture Picture() const { return user::PictureOfClient(m_sketch->View()); }
    // The picture that is there when nothing changes any more.
    ScreenPicture StillPicture() const {
        ScreenPicture picture = Picture();
        WaitUntil([&] {
            ::Sleep(150);
            const ScreenPicture next = Picture();
            const bool isStill = next == picture;
            picture = next;
            return isStill;
        });
        return picture;
    }
    void DrawARectangle() {
        Press({VK_F3});
        m_sketch->Pull({100, 120}, {220, 200});
        ASSERT_TRUE(m_sketch->ShowsStatus("Rectangle, 120 x 80"));
    }
    // Answers the question about changes.
    void Answer(WORD key) {
        const HWND box = m_sketch->Dialog("Sketch");
        Press({key});
        EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
    }

    const lvx_test::TempFolder m_folder;
    std::unique_ptr<SketchProgram> m_sketch;
};

}  // namespace sketch_test
