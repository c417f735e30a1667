#include "owl/print_dc.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "letter_picture.h"
#include "owl/error.h"
#include "surface.h"
#include "test_printer.h"

namespace {

using owl::TIC;
using owl::TPrintDC;

TEST(PrintDc, of_no_such_printer_throws_with_the_call) {
    try {
        const TPrintDC dc("winspool", "no such printer of ours", nullptr, nullptr);
        FAIL() << "nothing was thrown";
    } catch (const owl::TXGdi& error) {
        EXPECT_EQ(0u, std::string(error.what()).find("CreateDC: ")) << error.what();
    }
    EXPECT_THROW(TIC("winspool", "no such printer of ours", nullptr, nullptr), owl::TXGdi);
    EXPECT_THROW(TPrintDC(nullptr, owl::AutoDelete), owl::TXGdi);
}

TEST(PrintDc, of_a_device_tells_what_it_can) {
    const TPrintDC dc("DISPLAY", nullptr, nullptr, nullptr);
    EXPECT_EQ(DT_RASDISPLAY, dc.GetDeviceCaps(TECHNOLOGY));
    const TIC information("DISPLAY", nullptr, nullptr, nullptr);
    EXPECT_EQ(dc.GetDeviceCaps(LOGPIXELSY), information.GetDeviceCaps(LOGPIXELSY));
}

TEST(PrintDc, on_a_context_owns_or_borrows_it) {
    const HDC handle = ::CreateCompatibleDC(nullptr);
    { const TPrintDC dc(handle, owl::NoAutoDelete); }
    EXPECT_EQ(DWORD{OBJ_MEMDC}, ::GetObjectType(handle));
    { const TPrintDC dc(handle, owl::AutoDelete); }
    EXPECT_EQ(0u, ::GetObjectType(handle));
}

/// A file name, unused, whose file is gone when the test ends.
class OutputFile {
public:
    OutputFile() {
        char folder[MAX_PATH];
        ::GetTempPathA(sizeof folder, folder);
        ::GetTempFileNameA(folder, "lvx", 0, m_name);
    }
    ~OutputFile() { ::DeleteFileA(m_name); }
    OutputFile(const OutputFile&) = delete;
    OutputFile& operator=(const OutputFile&) = delete;
    const char* Name() const { return m_name; }
    std::string Contents() const {
        std::ifstream file(m_name, std::ios::binary);
        return std::string(std::istreambuf_iterator<char>(file), {});
    }

private:
    char m_name[MAX_PATH];
};

int Pages(const std::string& postscript) {
    int pages = 0;
    for (std::size_t at = postscript.find("%%Page:"); at != std::string::npos;
         at = postscript.find("%%Page:", at + 1))
        ++pages;
    return pages;
}

TEST(PrintDc, prints_pages_to_a_file) {
    const owl_test::TestPrinter printer;
    ASSERT_EQ("", printer.Problem());
    const OutputFile file;
    {
        TPrintDC dc("winspool", owl_test::TestPrinter::name, nullptr, nullptr);
        EXPECT_EQ(DT_RASPRINTER, dc.GetDeviceCaps(TECHNOLOGY));
        EXPECT_EQ(300, dc.GetDeviceCaps(LOGPIXELSY));
        EXPECT_GT(dc.StartDoc("Two pages", file.Name()), 0);
        for (int page = 0; page < 2; ++page) {
            EXPECT_GT(dc.StartPage(), 0);
            EXPECT_TRUE(dc.Rectangle(100, 100, 300, 200));
            EXPECT_GT(dc.EndPage(), 0);
        }
        EXPECT_GT(dc.EndDoc(), 0);
    }
    const std::string postscript = file.Contents();
    EXPECT_EQ(0u, postscript.find("%!PS")) << postscript.substr(0, 100);
    EXPECT_NE(std::string::npos, postscript.find("Two pages"));
    EXPECT_EQ(2, Pages(postscript));
}

BOOL CALLBACK GoOn(HDC, int) {
    return TRUE;
}

BOOL CALLBACK Refuse(HDC, int) {
    return FALSE;
}

// Not every driver can; one that cannot goes on.
TEST(PrintDc, gives_a_document_up_so_that_it_cannot_be_ended) {
    const owl_test::TestPrinter printer;
    ASSERT_EQ("", printer.Problem());
    const OutputFile file;
    TPrintDC dc("winspool", owl_test::TestPrinter::name, nullptr, nullptr);
    EXPECT_GT(dc.SetAbortProc(GoOn), 0);
    EXPECT_GT(dc.StartDoc("Given up", file.Name()), 0);
    EXPECT_GT(dc.StartPage(), 0);
    const bool givenUp = dc.AbortDoc() > 0;
    EXPECT_EQ(!givenUp, dc.EndDoc() > 0);
}

TEST(PrintDc, asks_whether_to_go_on) {
    const owl_test::TestPrinter printer;
    ASSERT_EQ("", printer.Problem());
    const OutputFile file;
    TPrintDC dc("winspool", owl_test::TestPrinter::name, nullptr, nullptr);
    EXPECT_GT(dc.SetAbortProc(Refuse), 0);
    const bool done =
        dc.StartDoc("Refused", file.Name()) > 0 && dc.StartPage() > 0 && dc.EndPage() > 0 && dc.EndDoc() > 0;
    EXPECT_FALSE(done);
}

// The picture is turned into strips at the resolution of the printer.
TEST(PrintDc, prints_a_turned_picture) {
    const owl_test::TestPrinter printer;
    ASSERT_EQ("", printer.Problem());
    const OutputFile file;
    const owl_test::LetterPicture picture({"RG", "BY"}, 24);
    {
        TPrintDC dc("winspool", owl_test::TestPrinter::name, nullptr, nullptr);
        ASSERT_GT(dc.StartDoc("Turned", file.Name()), 0);
        ASSERT_GT(dc.StartPage(), 0);
        dc.SetGraphicsMode(GM_ADVANCED);
        dc.SetWorldTransform({0.8f, 0.6f, -0.6f, 0.8f, 1000, 600});
        EXPECT_TRUE(dc.StretchDIBits({-400, -400, 400, 400}, {0, 0, 2, 2}, picture.Bits(), picture.Info()));
        EXPECT_GT(dc.EndPage(), 0);
        EXPECT_GT(dc.EndDoc(), 0);
    }
    const std::string postscript = file.Contents();
    EXPECT_NE(std::string::npos, postscript.find("image")) << postscript.size();
    EXPECT_NE(std::string::npos, postscript.find("clip")) << postscript.size();
}

TEST(PrintDc, informs_about_a_printer) {
    const owl_test::TestPrinter printer;
    ASSERT_EQ("", printer.Problem());
    const TIC information("winspool", owl_test::TestPrinter::name, nullptr, nullptr);
    EXPECT_EQ(DT_RASPRINTER, information.GetDeviceCaps(TECHNOLOGY));
    EXPECT_EQ(600 * 300 / 72, information.GetDeviceCaps(PHYSICALWIDTH));
    EXPECT_EQ(300 * 300 / 72, information.GetDeviceCaps(PHYSICALHEIGHT));
}

TEST(PrintDc, leaves_nothing_behind) {
    const int before = owl_test::RoomForGdiObjects();
    for (int i = 0; i < 1000; ++i) {
        const TPrintDC dc("DISPLAY", nullptr, nullptr, nullptr);
        const TIC information("DISPLAY", nullptr, nullptr, nullptr);
    }
    EXPECT_EQ(before, owl_test::RoomForGdiObjects());
}

}  // namespace
