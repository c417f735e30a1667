#include "lvx/platform/fonts.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <set>

namespace {

using Faces = std::vector<std::string>;

// The families of which some font is a TrueType one, by asking the screen for every font of each.
class ScreenFaces {
public:
    ScreenFaces() {
        LOGFONTA any{};
        any.lfCharSet = DEFAULT_CHARSET;
        const HDC screen = ::GetDC(nullptr);
        ::EnumFontFamiliesExA(screen, &any, &Visit, reinterpret_cast<LPARAM>(this), 0);
        ::ReleaseDC(nullptr, screen);
    }

    std::set<std::string> scalable;
    std::set<std::string> others;

private:
    static int CALLBACK Visit(const LOGFONTA* font, const TEXTMETRICA*, DWORD type, LPARAM self) {
        auto& faces = *reinterpret_cast<ScreenFaces*>(self);
        // Those that stand upright only.
        if (font->lfFaceName[0] != '@') {
            (type == TRUETYPE_FONTTYPE ? faces.scalable : faces.others).insert(font->lfFaceName);
        }
        return 1;
    }
};

}  // namespace

TEST(Fonts, are_the_scalable_ones_of_the_screen) {
    const ScreenFaces screen;
    ASSERT_FALSE(screen.scalable.empty());
    ASSERT_FALSE(screen.others.empty());
    Faces faces;
    lvx::platform::add_scalable_faces(faces);
    std::erase_if(faces, [](const std::string& face) { return face[0] == '@'; });
    EXPECT_EQ(screen.scalable, std::set<std::string>(faces.begin(), faces.end()));
    EXPECT_EQ(screen.scalable.size(), faces.size());
    EXPECT_EQ(0, std::count(faces.begin(), faces.end(), "System"));
}

TEST(Fonts, that_are_in_the_list_are_not_added_again) {
    Faces plain;
    lvx::platform::add_scalable_faces(plain);
    Faces faces = {"b", plain.back(), "a", "a"};
    lvx::platform::add_scalable_faces(faces);
    EXPECT_EQ(plain.size() + 3, faces.size());
    EXPECT_EQ((Faces{"b", plain.back(), "a", "a"}), Faces(faces.begin(), faces.begin() + 4));
}

TEST(Fonts, of_the_system_are_its_stock_font) {
    LOGFONTA stock;
    ::GetObjectA(::GetStockObject(SYSTEM_FONT), sizeof stock, &stock);
    const lvx::platform::SystemFont font = lvx::platform::system_font();
    EXPECT_EQ(stock.lfFaceName, font.face);
    EXPECT_EQ(stock.lfWeight > FW_NORMAL, font.bold);
    EXPECT_GT(font.points, 0);
    EXPECT_FALSE(font.italic || font.underline || font.strikeOut);
}
