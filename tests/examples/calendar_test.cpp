#include <windows.h>

#include <string>

#include "examples/example_run.h"
#include "lvx/drawing/my_font.h"
#include "lvx/store/object_store_file.h"
#include "owl/clipboard.h"
#include "owl/metafile_pict.h"
#include "tests/owl/printed.h"
#include "tests/owl/surface.h"

namespace {

class Calendar : public lvx_test::ExampleRun {
protected:
    bool RunCalendar(const std::string& year) { return Run("calendar " + m_font + " " + year); }

    std::string m_font = m_folder.File("calendar.font");
};

constexpr owl::TColor weekend(255, 224, 224);

/// The squares of a page that are tinted, as a word for each week, the title's row first. The page is 600 by
/// 300 points; each square is looked at where it has no number.
std::string tinted(const owl_test::RenderedPage& page) {
    std::string text;
    for (int row = 0; row < 7; ++row) {
        for (int column = 0; column < 7; ++column) {
            const auto colour = page.At(column * 600 / 7 + 10, row * 300 / 7 + 34);
            text += colour == weekend ? 'w' : colour == owl::TColor::White ? '.' : '?';
        }
        text += row < 6 ? " " : "";
    }
    return text;
}

bool is_framed(const owl_test::RenderedPage& page, int column, int row) {
    const int x = column * 600 / 7;
    const int y = row * 300 / 7 + 20;
    for (int i = -2; i <= 2; ++i) {
        if (page.At(x + i, y) != owl::TColor::White && page.At(x + i, y) != weekend) {
            return true;
        }
    }
    return false;
}

}  // namespace

TEST_F(Calendar, is_printed_a_month_a_page) {
    const owl_test::FilePrinter printer;
    ASSERT_EQ("", printer.Problem());
    ASSERT_TRUE(RunCalendar("2026")) << m_output;
    EXPECT_EQ("", m_output);
    const owl_test::RenderedPages pages = printer.Pages();
    ASSERT_EQ("", pages.Problem());
    ASSERT_EQ(12u, pages.size());
    // The first of January was a Thursday, of February a Sunday; its 28 days end with a Saturday.
    EXPECT_EQ("....... .....ww .....ww .....ww .....ww .....w. .......", tinted(pages[0]));
    EXPECT_EQ("....... ......w .....ww .....ww .....ww .....w. .......", tinted(pages[1]));
    EXPECT_FALSE(is_framed(pages[0], 2, 1));
    EXPECT_TRUE(is_framed(pages[0], 3, 1));
    EXPECT_TRUE(is_framed(pages[11], 1, 1)) << "the first of December is a Tuesday";
}

TEST_F(Calendar, makes_and_keeps_its_font) {
    const owl_test::FilePrinter printer;
    ASSERT_TRUE(RunCalendar("2026 1")) << m_output;
    const std::string made = lvx_test::read_file(m_font);
    EXPECT_EQ(lvx_test::hex(lvx_test::bytes("'s' 0F 00 00 00 'Times New Roman' 00 00 00 00 00 00 32 40"
                                            "01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00")),
              lvx_test::hex(made));
    ASSERT_TRUE(RunCalendar("2026 1")) << m_output;
    EXPECT_EQ(made, lvx_test::read_file(m_font));
}

TEST_F(Calendar, is_written_in_the_font_of_the_document) {
    const owl_test::FilePrinter printer;
    const auto printed_with = [&](double points) {
        ObjectStoreFile store;
        store.OpenStream(m_font.c_str(), ObjectStore::ForWrite);
        myFont("Arial", points, true, false, false, false).PutTo(store);
        store.CloseStream();
        EXPECT_TRUE(RunCalendar("2026")) << m_output;
        const owl_test::RenderedPages pages = printer.Pages();
        int marked = 0;
        for (int y = 0; y < 40; ++y) {
            for (int x = 0; x < 600; ++x) {
                marked += pages[0].At(x, y) != owl::TColor::White ? 1 : 0;
            }
        }
        return marked;
    };
    const int small = printed_with(8);
    const int large = printed_with(24);
    EXPECT_GT(small, 20);
    EXPECT_GT(large, 4 * small);
}

TEST_F(Calendar, puts_a_month_on_the_clipboard) {
    ASSERT_TRUE(RunCalendar("2026 2")) << m_output;
    ASSERT_TRUE(owl::TClipboard::IsClipboardFormatAvailable(CF_METAFILEPICT));
    const owl::TMetaFilePict picture = owl::TMetaFilePict(owl::TClipboard(nullptr));
    EXPECT_EQ(MM_LOMETRIC, picture.GetMappingMode());
    EXPECT_EQ(owl::TSize(1400, 1000), picture.Size());
    owl_test::Surface surface(800, 600);
    ASSERT_TRUE(picture.PlayOnto(surface.dc, owl::TSize()));
    surface.dc.SetMapMode(MM_LOMETRIC);
    const auto at = [&](int column, int row) {
        POINT point{column * 200 + 20, -row * 1000 / 7 - 110};
        ::LPtoDP(surface.dc, &point, 1);
        return surface.At(point.x, point.y);
    };
    EXPECT_EQ(weekend, at(6, 1)) << "the first, a Sunday";
    EXPECT_EQ(owl::TColor::White, at(5, 1));
    EXPECT_EQ(weekend, at(5, 5)) << "the 28th";
    EXPECT_EQ(owl::TColor::White, at(6, 5));
}

TEST_F(Calendar, tells_a_wrong_call_and_a_damaged_font) {
    for (const char* const arguments : {"", "x", "x 0", "x 2026 13", "x 2026 0", "x 2026 1 1", "x 10000"}) {
        EXPECT_FALSE(Run(std::string("calendar ") + arguments)) << arguments;
        EXPECT_EQ("usage: calendar FONT YEAR [MONTH]\n", m_output);
    }
    lvx_test::write_file(m_font, "s");
    EXPECT_FALSE(RunCalendar("2026 1"));
    EXPECT_EQ("calendar: Unexpected end of file.\n", m_output);
    EXPECT_FALSE(Run("calendar " + m_folder.File("missing/calendar.font") + " 2026 1"));
    EXPECT_NE(std::string::npos, m_output.find("cannot write")) << m_output;
}
