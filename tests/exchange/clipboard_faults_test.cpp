// What the clipboard asks of the system, in which order, and what becomes of it when the system refuses: each
// call in turn fails, and nothing stays open, locked, lost or on the disk.
#include <gmock/gmock.h>

#include <functional>
#include <new>
#include <string>

#include "exchange/on_clipboard.h"
#include "exchange/system_calls.h"
#include "lvx/images/dibitmap.h"
#include "owl/bitmap.h"
#include "owl/dib.h"
#include "support/bytes.h"
#include "support/random_shapes.h"
#include "support/shapes.h"

using lvx_test::SystemCalls;
using LVXUtilities::DIBitmap;
using testing::ElementsAre;
using testing::IsEmpty;

namespace {

/// A block of 31 bytes, and so a file of 27.
const std::string node_7 =
    lvx_test::bytes("1F 00 00 00 'Bclvx_test::Node' 0D 0A 'o' 07 00 00 00 00 00 00 00");

const std::string one_pixel = lvx_test::bytes(
    "28000000 01000000 01000000 0100 2000 00000000 00000000 00000000 00000000 00000000 00000000 01020304");

/// Does something when it ends.
class LastWords : public owl::TBitmap {
public:
    explicit LastWords(std::function<void()> action)
        : TBitmap(2, 2, 1, 1, nullptr), m_action(std::move(action)) {}
    ~LastWords() override { m_action(); }

private:
    std::function<void()> m_action;
};

class ClipboardFaults : public lvx_test::OnClipboard {
protected:
    ClipboardFaults() { lvx_test::register_shapes(); }

    /// What `operation` came to: its result, or that there was no memory.
    static std::string Outcome(const std::function<bool()>& operation) {
        try {
            return operation() ? "true" : "false";
        } catch (const std::bad_alloc&) {
            return "no memory";
        }
    }

    /// Makes each call of `operation` fail in turn: nothing may be left. Returns, for each, its name and what
    /// the operation came to.
    std::vector<std::string> Refused(const std::function<bool()>& operation, bool locksFail = true) {
        std::vector<std::string> outcomes;
        for (int failing = 0; failing < 100; ++failing) {
            const auto [call, outcome] = RefusedOnce(operation, failing, locksFail);
            EXPECT_EQ(nullptr, ::GetOpenClipboardWindow()) << call;
            EXPECT_TRUE(IsFree()) << call;
            if (call.empty()) {
                EXPECT_EQ("true", outcome) << "when nothing fails";
                return outcomes;
            }
            outcomes.push_back(call + ": " + outcome);
        }
        ADD_FAILURE() << "it does not come to its end";
        return outcomes;
    }

    static std::pair<std::string, std::string> RefusedOnce(const std::function<bool()>& operation,
                                                           int failing, bool locksFail) {
        const SystemCalls calls(failing, locksFail);
        const std::string outcome = Outcome(operation);
        EXPECT_EQ(0u, calls.LostBlocks()) << calls.Failed();
        EXPECT_EQ(0, calls.Locks()) << calls.Failed();
        EXPECT_EQ(0, calls.OpenFiles()) << calls.Failed();
        return {calls.Failed(), outcome};
    }

    bool GetNode() {
        Storable* object = nullptr;
        const bool got = clipboard.get(object, true);
        const lvx_test::ShapesOwner owner(object);
        return got;
    }
    template <class Picture>
    bool GetPicture() {
        lvx::auto_ptr<Picture> picture;
        return clipboard.get(picture);
    }

    lvx_test::Node node{7};
};

}  // namespace

// The order

TEST_F(ClipboardFaults, clear_opens_empties_and_closes) {
    const SystemCalls calls;
    EXPECT_TRUE(clipboard.clear());
    EXPECT_THAT(calls.Log(), ElementsAre("OpenClipboard", "EmptyClipboard", "CloseClipboard"));
}

TEST_F(ClipboardFaults, put_of_a_text_does_not_empty_the_clipboard) {
    const SystemCalls calls;
    EXPECT_TRUE(clipboard.put("abc", CF_TEXT));
    EXPECT_THAT(calls.Log(), ElementsAre("OpenClipboard", "GlobalAlloc 2 4", "GlobalLock", "GlobalUnlock",
                                         "SetClipboardData", "CloseClipboard"));
}

TEST_F(ClipboardFaults, put_of_an_object_opens_the_clipboard_when_the_file_is_written) {
    const SystemCalls calls;
    EXPECT_TRUE(clipboard.put(&node));
    EXPECT_THAT(calls.Log(),
                ElementsAre("GetTempPathA 200", "GetTempFileNameA SWK 0", "OpenClipboard", "_lopen 0",
                            "_llseek 0 2", "_llseek 0 0", "GlobalAlloc 2 31", "GlobalLock", "_lread 27",
                            "GlobalUnlock", "_lclose", "SetClipboardData", "_unlink", "CloseClipboard"));
}

TEST_F(ClipboardFaults, put_of_an_object_removes_the_file_and_closes_when_the_clipboard_is_busy) {
    const SystemCalls calls(2);
    EXPECT_FALSE(clipboard.put(&node));
    EXPECT_THAT(calls.Log(), ElementsAre("GetTempPathA 200", "GetTempFileNameA SWK 0", "OpenClipboard",
                                         "_unlink", "CloseClipboard"));
}

TEST_F(ClipboardFaults, put_of_an_object_reads_the_file_in_pieces) {
    lvx_test::inner::Leaf leaf;
    leaf.m_name.assign(0x8000 * 2 + 5 - lvx_test::stored(leaf).size(), 'x');
    const SystemCalls calls;
    EXPECT_TRUE(clipboard.put(&leaf));
    EXPECT_THAT(calls.Log(), testing::IsSupersetOf({"_lread 32768", "_lread 32768", "_lread 5"}));
}

TEST_F(ClipboardFaults, get_of_a_text_changes_nothing) {
    clipboard.put("abc", CF_DSPTEXT);
    const SystemCalls calls;
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_DSPTEXT));
    EXPECT_THAT(calls.Log(), ElementsAre("OpenClipboard", "GetClipboardData", "GlobalLock", "GlobalUnlock",
                                         "CloseClipboard"));
}

TEST_F(ClipboardFaults, get_of_an_object_has_the_clipboard_open_to_its_end_and_leaves_the_file) {
    Put(LVXClipboard::storableFormat(), node_7);
    const SystemCalls calls;
    EXPECT_TRUE(GetNode());
    EXPECT_THAT(calls.Log(), ElementsAre("OpenClipboard", "GetClipboardData", "GlobalLock",
                                         "GetTempPathA 200", "GetTempFileNameA SWK 0", "_lopen 1",
                                         "_lwrite 27", "_lclose", "GlobalUnlock", "CloseClipboard"));
}

TEST_F(ClipboardFaults, get_of_an_object_writes_the_file_in_pieces) {
    lvx_test::inner::Leaf leaf;
    leaf.m_name.assign(0x8000 + 5 - lvx_test::stored(leaf).size(), 'x');
    clipboard.put(&leaf);
    const SystemCalls calls;
    EXPECT_TRUE(GetNode());
    EXPECT_THAT(calls.Log(), testing::IsSupersetOf({"_lwrite 32768", "_lwrite 5"}));
}

TEST_F(ClipboardFaults, get_of_a_picture_ends_the_former_one_before_anything_else) {
    Put(CF_DIB, one_pixel);
    std::vector<std::string> before{"nothing was ended"};
    const SystemCalls calls;
    lvx::auto_ptr<owl::TBitmap> bitmap(new LastWords([&] { before = calls.Log(); }));
    EXPECT_TRUE(clipboard.get(bitmap));
    EXPECT_THAT(before, IsEmpty());
}

TEST_F(ClipboardFaults, format_is_registered_by_its_name_once) {
    const unsigned format = LVXClipboard::storableFormat();
    LVXClipboard::CF_STORABLE = 1;
    const SystemCalls calls;
    const LVXClipboard first(static_cast<HWND>(window));
    const LVXClipboard second(static_cast<HWND>(window));
    EXPECT_THAT(calls.Log(), ElementsAre("RegisterClipboardFormatA LVX Storable Object"));
    EXPECT_EQ(format, LVXClipboard::CF_STORABLE);
}

// Each call in turn

TEST_F(ClipboardFaults, clear_is_false_where_it_is_refused) {
    EXPECT_THAT(Refused([&] { return clipboard.clear(); }), ElementsAre("OpenClipboard: false"));
}

TEST_F(ClipboardFaults, put_of_a_text_is_false_where_it_is_refused) {
    EXPECT_THAT(Refused([&] { return clipboard.put("abc", CF_TEXT); }),
                ElementsAre("OpenClipboard: false", "GlobalAlloc 2 4: false", "GlobalLock: false",
                            "SetClipboardData: false"));
}

TEST_F(ClipboardFaults, put_of_an_object_is_false_where_it_is_refused) {
    EXPECT_THAT(
        Refused([&] {
            const bool put = clipboard.put(&node);
            EXPECT_THAT(files.Names(), IsEmpty());
            return put;
        }),
        ElementsAre("GetTempPathA 200: false", "GetTempFileNameA SWK 0: false", "OpenClipboard: false",
                    "_lopen 0: false", "_llseek 0 2: false", "_llseek 0 0: false", "GlobalAlloc 2 31: false",
                    "GlobalLock: false", "_lread 27: true", "SetClipboardData: false"));
}

TEST_F(ClipboardFaults, put_of_an_object_that_cannot_be_read_again_has_zeros) {
    const SystemCalls calls(8);
    EXPECT_TRUE(clipboard.put(&node));
    EXPECT_EQ("_lread 27", calls.Failed());
    EXPECT_EQ(node_7.substr(0, 4) + std::string(27, '\0'), Block(LVXClipboard::storableFormat()));
}

TEST_F(ClipboardFaults, get_of_a_text_is_false_where_it_is_refused) {
    clipboard.put("abc", CF_DSPTEXT);
    std::string text;
    EXPECT_THAT(Refused([&] { return clipboard.get(text, CF_DSPTEXT); }),
                ElementsAre("OpenClipboard: false", "GetClipboardData: false", "GlobalLock: false"));
}

TEST_F(ClipboardFaults, get_of_an_object_is_false_where_it_is_refused) {
    Put(LVXClipboard::storableFormat(), node_7);
    EXPECT_THAT(Refused([&] { return GetNode(); }),
                ElementsAre("OpenClipboard: false", "GetClipboardData: false", "GlobalLock: false",
                            "GetTempPathA 200: false", "GetTempFileNameA SWK 0: false", "_lopen 1: false",
                            "_lwrite 27: false"));
}

TEST_F(ClipboardFaults, get_of_a_picture_is_false_or_out_of_memory_where_it_is_refused) {
    Put(CF_DIB, one_pixel);
    EXPECT_THAT(
        Refused([&] { return GetPicture<DIBitmap>(); }, false),
        ElementsAre("OpenClipboard: false", "GetClipboardData: false", "GlobalAlloc 2 44: no memory"));
}

TEST_F(ClipboardFaults, get_of_a_dib_or_bitmap_is_false_where_it_is_refused) {
    Put(CF_DIB, one_pixel);
    EXPECT_THAT(Refused([&] { return GetPicture<owl::TDib>(); }),
                ElementsAre("OpenClipboard: false", "GetClipboardData: false", "GlobalLock: false"));
    EXPECT_THAT(Refused([&] { return GetPicture<owl::TBitmap>(); }),
                ElementsAre("OpenClipboard: false", "GetClipboardData: false"));
}

TEST_F(ClipboardFaults, format_that_the_system_refuses_is_0_and_takes_and_gives_no_object) {
    const unsigned format = LVXClipboard::storableFormat();
    Put(format, node_7);
    LVXClipboard::CF_STORABLE = 1;
    {
        const SystemCalls calls(0);
        LVXClipboard other(static_cast<HWND>(window));
        EXPECT_EQ(0u, LVXClipboard::CF_STORABLE);
        EXPECT_FALSE(other.put(&node));
        Storable* object = nullptr;
        EXPECT_FALSE(other.get(object, true));
        EXPECT_EQ(0u, calls.LostBlocks());
    }
    EXPECT_TRUE(IsFree());
    LVXClipboard::CF_STORABLE = format;
    EXPECT_TRUE(GetNode());
}

TEST_F(ClipboardFaults, nothing_is_lost_in_ten_thousand_texts_and_a_thousand_objects) {
    const SystemCalls calls;
    for (int i = 0; i < 10000; ++i) {
        ASSERT_TRUE(clipboard.put("abc", CF_TEXT));
    }
    for (int i = 0; i < 1000; ++i) {
        ASSERT_TRUE(clipboard.put(&node));
        ASSERT_TRUE(GetNode());
        files.Clear();
    }
    EXPECT_EQ(0u, calls.LostBlocks());
    EXPECT_EQ(0, calls.Locks());
    EXPECT_EQ(0, calls.OpenFiles());
}
