// The clipboard between two processes, one of which knows nothing of this library.
#include <gmock/gmock.h>

#include <array>
#include <string>

#include "exchange/on_clipboard.h"
#include "exchange/peers.h"
#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_file.h"
#include "owl/bitmap.h"
#include "owl/dib.h"
#include "owl/memory_dc.h"
#include "owl/surface.h"
#include "support/bytes.h"
#include "support/places.h"
#include "support/random_shapes.h"

using lvx_test::bytes;
using lvx_test::host_peer;
using lvx_test::plain_peer;
using lvx_test::run_peer;
using lvx_test::WaitingPeer;
using LVXUtilities::DIBitmap;

namespace {

const char* const private_format = "LVX Storable Object";

class ClipboardPeers : public lvx_test::OnClipboard {
protected:
    ClipboardPeers() { lvx_test::register_shapes(); }

    /// A file with that content.
    std::string File(const std::string& name, const std::string& content) const {
        lvx_test::write_file(folder.File(name), content);
        return folder.File(name);
    }
    /// What another program finds there.
    std::string SeenElsewhere(const std::string& format) const {
        const std::string file = folder.File("seen");
        const int result = run_peer(plain_peer, {"dump", format, file});
        return result == 0 ? lvx_test::read_file(file) : "exits with " + std::to_string(result);
    }
    /// The number of the node that lies there; other texts for other things.
    std::string NodeNumber() {
        Storable* object = nullptr;
        if (!clipboard.get(object, true)) {
            return "false";
        }
        const lvx_test::ShapesOwner owner(object);
        const auto* const node = dynamic_cast<const lvx_test::Node*>(object);
        return node != nullptr ? std::to_string(node->m_number) : "no node";
    }
    std::string Text(unsigned format = CF_TEXT) {
        std::string text;
        return clipboard.get(text, format) ? text : "false";
    }

    lvx_test::TempFolder folder;
};

const std::string node_7 = bytes("1F 00 00 00 'Bclvx_test::Node' 0D 0A 'o' 07 00 00 00 00 00 00 00");

/// Red and blue above green and white, 24 bits a pixel, the lower row first.
const std::string four_colours = bytes(
    "28000000 02000000 02000000 0100 1800 00000000 00000000 00000000 00000000 00000000 00000000"
    "00FF00 FFFFFF 0000  0000FF FF0000 0000");

std::string letters(const owl::TBitmap& bitmap) {
    owl::TMemoryDC dc;
    dc.SelectObject(bitmap);
    std::string text;
    for (int y = 0; y < bitmap.Height(); ++y) {
        for (int x = 0; x < bitmap.Width(); ++x) {
            text += owl_test::Surface::Letter(dc.GetPixel(owl::TPoint(x, y)));
        }
        text += '\n';
    }
    return text;
}

}  // namespace

// From here to there

TEST_F(ClipboardPeers, text_is_seen_by_another_program) {
    clipboard.put("some text", CF_TEXT);
    EXPECT_EQ(std::string("some text\0", 10), SeenElsewhere(std::to_string(CF_TEXT)));
    EXPECT_EQ(bytes("73006F006D00650020007400650078007400 0000"),
              SeenElsewhere(std::to_string(CF_UNICODETEXT)));
}

TEST_F(ClipboardPeers, object_is_seen_by_another_program_as_its_length_and_a_store) {
    lvx_test::Node node(7);
    clipboard.put(&node);
    EXPECT_EQ(node_7, SeenElsewhere(private_format));
}

TEST_F(ClipboardPeers, several_formats_are_seen_side_by_side) {
    lvx_test::Node node(7);
    clipboard.put(&node);
    clipboard.put("seven", CF_TEXT);
    clipboard.put("7", ::RegisterClipboardFormatA("lvx test format"));
    EXPECT_EQ(std::string("seven\0", 6), SeenElsewhere(std::to_string(CF_TEXT)));
    EXPECT_EQ(node_7, SeenElsewhere(private_format));
    EXPECT_EQ(std::string("7\0", 2), SeenElsewhere("lvx test format"));
    EXPECT_EQ("exits with 1", SeenElsewhere(std::to_string(CF_DIB)));
    clipboard.clear();
    EXPECT_EQ("exits with 1", SeenElsewhere(private_format));
}

TEST_F(ClipboardPeers, object_is_got_by_another_host) {
    const lvx_test::RandomShapes shapes(4711);
    clipboard.put(shapes.Top());
    ASSERT_EQ(0, run_peer(host_peer, {"get", folder.File("got")}));
    EXPECT_EQ(lvx_test::stored(*shapes.Top()), lvx_test::read_file(folder.File("got")));
    clipboard.clear();
    EXPECT_EQ(1, run_peer(host_peer, {"get", folder.File("got")}));
}

// From there to here. The other program has ended when its data are read.

TEST_F(ClipboardPeers, text_is_got_from_a_program_that_is_gone) {
    ASSERT_EQ(0, run_peer(plain_peer, {"put", "1", File("text", std::string("their text\0", 11))}));
    EXPECT_EQ("their text", Text());
    EXPECT_EQ("their text", Text()) << "once more";
}

TEST_F(ClipboardPeers, text_without_an_end_is_got_up_to_the_end_of_its_block) {
    ASSERT_EQ(0, run_peer(plain_peer, {"put", "lvx test format", File("text", "no end")}));
    EXPECT_EQ("no end", Text(::RegisterClipboardFormatA("lvx test format")));
}

TEST_F(ClipboardPeers, text_in_wide_characters_is_got_as_plain_text) {
    ASSERT_EQ(0, run_peer(plain_peer, {"put", "13", File("text", bytes("610062000000"))}));
    EXPECT_EQ("ab", Text());
}

TEST_F(ClipboardPeers, object_is_got_from_a_program_that_is_gone) {
    ASSERT_EQ(0, run_peer(plain_peer, {"put", private_format, File("node", node_7)}));
    EXPECT_EQ("7", NodeNumber());
}

TEST_F(ClipboardPeers, golden_object_is_got_from_a_program_that_is_gone) {
    const std::string golden = lvx_test::own_data() + "/golden/clipboard.block";
    ASSERT_EQ(0, run_peer(plain_peer, {"put", private_format, golden}));
    Storable* object = nullptr;
    ASSERT_TRUE(clipboard.get(object, true));
    const lvx_test::ShapesOwner owner(object);
    EXPECT_EQ(lvx_test::read_file(golden).substr(4), lvx_test::stored(*object));
}

TEST_F(ClipboardPeers, object_is_got_from_another_host) {
    const lvx_test::RandomShapes shapes(17);
    ObjectStoreFile store;
    store.OpenStream(folder.File("shapes").c_str(), ObjectStore::ForWrite);
    store << *shapes.Top();
    store.CloseStream();
    ASSERT_EQ(0, run_peer(host_peer, {"put", folder.File("shapes")}));
    Storable* object = nullptr;
    ASSERT_TRUE(clipboard.get(object, true));
    const lvx_test::ShapesOwner owner(object);
    EXPECT_TRUE(lvx_test::same_shapes(shapes.Top(), object));
}

TEST_F(ClipboardPeers, torn_object_of_another_program_is_false) {
    for (const char* block : {"03", "03 00 00 00", "20 00 00 00 'Bc'", "FF FF FF FF"}) {
        ASSERT_EQ(0, run_peer(plain_peer, {"put", private_format, File("torn", bytes(block))}));
        EXPECT_EQ("false", NodeNumber()) << block;
    }
}

TEST_F(ClipboardPeers, several_formats_are_got_side_by_side) {
    ASSERT_EQ(0, run_peer(plain_peer,
                          {"put", private_format, File("node", node_7), "1",
                           File("text", std::string("seven\0", 6)), "8", File("picture", four_colours)}));
    EXPECT_EQ("7", NodeNumber());
    EXPECT_EQ("seven", Text());
    lvx::auto_ptr<DIBitmap> picture;
    EXPECT_TRUE(clipboard.get(picture));
}

TEST_F(ClipboardPeers, picture_is_got_in_every_form) {
    ASSERT_EQ(0, run_peer(plain_peer, {"put", "8", File("picture", four_colours)}));
    lvx::auto_ptr<DIBitmap> picture;
    ASSERT_TRUE(clipboard.get(picture));
    EXPECT_EQ(owl::TSize(2, 2), picture->GetSize());
    EXPECT_EQ(four_colours.substr(40),
              std::string(reinterpret_cast<const char*>(picture->GetBitsAddress().get()), 16));
    lvx::auto_ptr<owl::TDib> dib;
    ASSERT_TRUE(clipboard.get(dib));
    EXPECT_EQ("RB\nG.\n", letters(owl::TBitmap(*dib)));
    lvx::auto_ptr<owl::TBitmap> bitmap;
    ASSERT_TRUE(clipboard.get(bitmap));
    EXPECT_EQ("RB\nG.\n", letters(*bitmap));
}

TEST_F(ClipboardPeers, bitmap_is_got_in_every_form) {
    ASSERT_EQ(0, run_peer(plain_peer, {"put-bitmap"}));
    lvx::auto_ptr<owl::TBitmap> bitmap;
    ASSERT_TRUE(clipboard.get(bitmap));
    EXPECT_EQ("RG\nB.\n", letters(*bitmap));
    lvx::auto_ptr<owl::TDib> dib;
    ASSERT_TRUE(clipboard.get(dib));
    EXPECT_EQ("RG\nB.\n", letters(owl::TBitmap(*dib)));
    lvx::auto_ptr<DIBitmap> picture;
    ASSERT_TRUE(clipboard.get(picture));
    EXPECT_EQ(owl::TSize(2, 2), picture->GetSize());
}

// What a host puts there by the framework's own means, as there is no put for pictures.
TEST_F(ClipboardPeers, bitmap_beside_an_object_is_seen_by_another_program) {
    lvx_test::Node node(7);
    clipboard.clear();
    clipboard.put(&node);
    {
        const std::array<unsigned char, 8> pixels{0, 0, 255, 0, 255, 0, 0, 0};
        owl::TClipboard opened(window);
        owl::TBitmap(2, 1, 1, 32, pixels.data()).ToClipboard(opened);
    }
    ASSERT_EQ(0, run_peer(plain_peer, {"dump-bitmap", folder.File("seen")}));
    EXPECT_EQ("RB\n", lvx_test::read_file(folder.File("seen")));
    EXPECT_EQ(node_7, SeenElsewhere(private_format));
}

// While another has it open

TEST_F(ClipboardPeers, that_has_it_open_makes_every_operation_false_at_once) {
    clipboard.put("text", CF_TEXT);
    lvx_test::Node node(7);
    WaitingPeer holder(plain_peer, "hold");
    const long time = lvx_test::milliseconds_of([&] {
        EXPECT_FALSE(clipboard.clear());
        EXPECT_FALSE(clipboard.put("other", CF_TEXT));
        EXPECT_FALSE(clipboard.put(std::string("other"), CF_TEXT));
        EXPECT_FALSE(clipboard.put(&node));
        EXPECT_EQ("false", Text());
        EXPECT_EQ("false", NodeNumber());
        lvx::auto_ptr<DIBitmap> picture;
        EXPECT_FALSE(clipboard.get(picture));
        lvx::auto_ptr<owl::TDib> dib;
        EXPECT_FALSE(clipboard.get(dib));
        lvx::auto_ptr<owl::TBitmap> bitmap;
        EXPECT_FALSE(clipboard.get(bitmap));
    });
    EXPECT_GT(2000, time);
    EXPECT_THAT(files.Names(), testing::IsEmpty());
    EXPECT_FALSE(IsFree()) << "it has it open still";
    EXPECT_EQ(0, holder.Finish());
    EXPECT_EQ("text", Text());
}

TEST_F(ClipboardPeers, that_dies_with_it_open_leaves_it_free) {
    clipboard.put("text", CF_TEXT);
    WaitingPeer holder(plain_peer, "hold");
    holder.Kill();
    EXPECT_TRUE(lvx_test::comes_true([&] { return clipboard.clear(); }));
}

// Owners that deliver late

TEST_F(ClipboardPeers, that_promised_text_and_object_delivers_them_when_they_are_got) {
    WaitingPeer owner(plain_peer, "promise",
                      {"1", File("text", std::string("late\0", 5)), private_format, File("node", node_7)});
    EXPECT_EQ("7", NodeNumber());
    EXPECT_EQ("late", Text());
    EXPECT_EQ("7", NodeNumber()) << "once more";
    EXPECT_EQ(0, owner.Finish());
    EXPECT_EQ("late", Text()) << "the owner is gone";
}

TEST_F(ClipboardPeers, that_promised_a_picture_delivers_it_in_every_form) {
    WaitingPeer owner(plain_peer, "promise", {"8", File("picture", four_colours)});
    lvx::auto_ptr<owl::TBitmap> bitmap;
    ASSERT_TRUE(clipboard.get(bitmap));
    EXPECT_EQ("RB\nG.\n", letters(*bitmap));
    lvx::auto_ptr<DIBitmap> picture;
    ASSERT_TRUE(clipboard.get(picture));
    EXPECT_EQ(owl::TSize(2, 2), picture->GetSize());
    EXPECT_EQ(0, owner.Finish());
}

TEST_F(ClipboardPeers, that_promised_delivers_before_it_ends) {
    WaitingPeer owner(plain_peer, "promise",
                      {"1", File("text", std::string("late\0", 5)), private_format, File("node", node_7)});
    EXPECT_EQ(0, owner.Finish());
    EXPECT_EQ("late", Text());
    EXPECT_EQ("7", NodeNumber());
}

TEST_F(ClipboardPeers, that_promised_and_does_not_deliver_makes_it_false) {
    WaitingPeer owner(plain_peer, "promise", {"1", "-", "8", "-", private_format, "-"});
    EXPECT_EQ("false", Text());
    EXPECT_EQ("false", NodeNumber());
    lvx::auto_ptr<DIBitmap> picture;
    EXPECT_FALSE(clipboard.get(picture));
    lvx::auto_ptr<owl::TDib> dib;
    EXPECT_FALSE(clipboard.get(dib));
    lvx::auto_ptr<owl::TBitmap> bitmap;
    EXPECT_FALSE(clipboard.get(bitmap));
    EXPECT_TRUE(IsFree());
    EXPECT_EQ(0, owner.Finish());
}

TEST_F(ClipboardPeers, that_promised_and_died_makes_it_false) {
    WaitingPeer owner(plain_peer, "promise", {"1", "-", "8", "-", private_format, "-"});
    owner.Kill();
    EXPECT_EQ("false", Text());
    EXPECT_EQ("false", NodeNumber());
    lvx::auto_ptr<owl::TBitmap> bitmap;
    EXPECT_FALSE(clipboard.get(bitmap));
    EXPECT_TRUE(clipboard.put("new", CF_TEXT) || clipboard.clear());
}

// Many

TEST_F(ClipboardPeers, thousand_objects_of_any_shape_come_back_from_another_host) {
    ASSERT_TRUE(clipboard.clear());
    WaitingPeer echo(host_peer, "echo");
    for (std::uint32_t number = 0; number < 1000; ++number) {
        const lvx_test::RandomShapes shapes(number + 5000);
        ASSERT_TRUE(clipboard.clear()) << number;
        ASSERT_TRUE(clipboard.put(shapes.Top())) << number;
        ASSERT_TRUE(echo.Round()) << number;
        Storable* object = nullptr;
        ASSERT_NE(static_cast<HWND>(window), ::GetClipboardOwner()) << number;
        ASSERT_TRUE(clipboard.get(object, true)) << number;
        const lvx_test::ShapesOwner owner(object);
        ASSERT_TRUE(lvx_test::same_shapes(shapes.Top(), object)) << number;
        files.Clear();
    }
}
