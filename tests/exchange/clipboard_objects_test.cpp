#include <gmock/gmock.h>

#include <memory>
#include <string>

#include "exchange/on_clipboard.h"
#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store.h"
#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/places.h"
#include "support/random_shapes.h"
#include "support/shapes.h"

using lvx_test::bytes;
using lvx_test::Node;
using lvx_test::inner::Leaf;
using LVXUtilities::DIBitmap;
using testing::ElementsAre;
using testing::EndsWith;
using testing::IsEmpty;
using testing::StartsWith;

namespace {

class ObjectsOnClipboard : public lvx_test::OnClipboard {
protected:
    ObjectsOnClipboard() { lvx_test::register_shapes(); }

    unsigned Format() const { return LVXClipboard::storableFormat(); }
    /// What the clipboard has behind the length, which has to be right.
    std::string Stored() const {
        const std::string block = Block(Format());
        EXPECT_EQ(bytes_of(block.size()), block.substr(0, 4));
        return block.size() < 4 ? block : block.substr(4);
    }
    static std::string bytes_of(std::size_t size) {
        std::string result;
        for (int shift = 0; shift < 32; shift += 8) {
            result += static_cast<char>(size >> shift);
        }
        return result;
    }
    /// Puts a store's bytes there with their length.
    void PutStored(const std::string& store) const { Put(Format(), bytes_of(store.size() + 4) + store); }
    /// What `get` with `create` says; the object is dropped.
    std::string Got() {
        Storable* object = &untouched;
        try {
            if (!clipboard.get(object, true)) {
                return object == &untouched ? "false" : "false, and changed";
            }
            const lvx_test::ShapesOwner owner(object);
            return object == nullptr ? "null" : object->ClassName();
        } catch (const lvx::runtime_error& error) {
            return object == &untouched ? error.what() : "thrown, and changed";
        }
    }

    Node untouched;
};

/// Refuses to be stored, or to be read, behind its first number.
class Unwilling : public Storable {
public:
    void PutTo(ObjectStore& store) const override {
        store << 1;
        throw std::logic_error("not to be stored");
    }
    void GetFrom(ObjectStore&) override { throw std::logic_error("not to be read"); }
    const char* ClassName() const override { return "Unwilling"; }
};

/// Looks, while it is stored or read, at what is open and what lies there.
class Watcher : public Storable {
public:
    void PutTo(ObjectStore&) const override { Look(); }
    void GetFrom(ObjectStore&) override { Look(); }
    const char* ClassName() const override { return "Watcher"; }

    static inline const lvx_test::TemporaryFiles* s_files = nullptr;
    static inline std::vector<std::string> s_seen;

private:
    static void Look() {
        const owl_test::MessageWindow other;
        const bool isFree = owl::TClipboard(other, false).IsOpen();
        s_seen.push_back(std::string(isFree ? "free" : "open") + ", " +
                         std::to_string(s_files->Names().size()) + " files");
    }
};

}  // namespace

TEST_F(ObjectsOnClipboard, object_comes_back_equal) {
    Leaf leaf;
    leaf.m_name = "birch";
    leaf.m_ratio = 0.1;
    leaf.m_letter = 'B';
    EXPECT_TRUE(clipboard.put(&leaf));
    EXPECT_TRUE(IsFree());
    Storable* object = nullptr;
    ASSERT_TRUE(clipboard.get(object, true));
    EXPECT_TRUE(IsFree());
    const std::unique_ptr<Leaf> found(dynamic_cast<Leaf*>(object));
    ASSERT_NE(nullptr, found);
    EXPECT_NE(&leaf, found.get());
    EXPECT_EQ("birch", found->m_name);
    EXPECT_EQ(0.1, found->m_ratio);
    EXPECT_EQ('B', found->m_letter);
}

TEST_F(ObjectsOnClipboard, object_lies_there_as_its_length_and_a_store) {
    Leaf leaf;
    leaf.m_name = "ab";
    EXPECT_TRUE(clipboard.put(&leaf));
    EXPECT_EQ(bytes("32 00 00 00 'Bclvx_test::inner::Leaf' 0D 0A 'o'"
                    "00 00 00 00  00 00 00 00 00 00 00 00  's' 02 00 00 00 'ab'  ' '"),
              Block(Format()));
}

TEST_F(ObjectsOnClipboard, object_lies_there_as_in_the_golden_file) {
    Node first(7);
    Node second(8);
    first.m_edges = {&second, &second};
    second.m_edges = {&first};
    EXPECT_TRUE(clipboard.put(&first));
    EXPECT_EQ(lvx_test::read_file(lvx_test::own_data() + "/golden/clipboard.block"), Block(Format()));
}

TEST_F(ObjectsOnClipboard, object_is_got_again_and_again) {
    Node node(5);
    clipboard.put(&node);
    EXPECT_EQ("lvx_test::Node", Got());
    EXPECT_EQ("lvx_test::Node", Got());
}

TEST_F(ObjectsOnClipboard, object_is_that_of_the_last_put) {
    Node node(5);
    Leaf leaf;
    clipboard.put(&node);
    clipboard.put(&leaf);
    EXPECT_EQ("lvx_test::inner::Leaf", Got());
}

TEST_F(ObjectsOnClipboard, object_lies_beside_text_and_picture) {
    Node node(5);
    EXPECT_TRUE(clipboard.put("a node", CF_TEXT));
    EXPECT_TRUE(clipboard.put(&node));
    EXPECT_TRUE(clipboard.put("own", ::RegisterClipboardFormatA("lvx test format")));
    std::string text;
    EXPECT_TRUE(clipboard.get(text, CF_TEXT));
    EXPECT_EQ("a node", text);
    EXPECT_EQ("lvx_test::Node", Got());
}

TEST_F(ObjectsOnClipboard, picture_travels_as_an_object) {
    const std::string block = bytes("28000000 01000000 01000000 0100 2000" + std::string(48, '0')) + "bgrx";
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, block.size());
    std::memcpy(::GlobalLock(memory), block.data(), block.size());
    ::GlobalUnlock(memory);
    DIBitmap picture(memory, DIBitmap::Adopt);
    EXPECT_TRUE(clipboard.put(&picture));
    Storable* object = nullptr;
    ASSERT_TRUE(clipboard.get(object, true));
    const std::unique_ptr<DIBitmap> found(dynamic_cast<DIBitmap*>(object));
    ASSERT_NE(nullptr, found);
    EXPECT_EQ(owl::TSize(1, 1), found->GetSize());
    EXPECT_EQ(block, std::string(reinterpret_cast<const char*>(found->GetBitsAddress().get()) - 40, 44));
}

TEST_F(ObjectsOnClipboard, object_that_is_not_there_is_false_and_nothing_changes) {
    EXPECT_EQ("false", Got());
    EXPECT_THAT(files.Names(), IsEmpty());
    clipboard.put("text", CF_TEXT);
    EXPECT_EQ("false", Got());
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, object_that_is_null_is_put_nowhere) {
    Node node(5);
    clipboard.put(&node);
    EXPECT_FALSE(clipboard.put(nullptr));
    EXPECT_EQ("lvx_test::Node", Got());
}

// Into an object that exists

TEST_F(ObjectsOnClipboard, object_is_read_into_the_one_that_is_given) {
    Leaf leaf;
    leaf.m_name = "birch";
    clipboard.put(&leaf);
    Leaf target;
    target.m_name = "before";
    Storable* object = &target;
    EXPECT_TRUE(clipboard.get(object, false));
    EXPECT_EQ(&target, object);
    EXPECT_EQ("birch", target.m_name);
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, object_of_another_class_than_the_given_one_is_thrown) {
    Leaf leaf;
    clipboard.put(&leaf);
    Node target(3);
    Storable* object = &target;
    EXPECT_THROW_TEXT(clipboard.get(object, false), ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected lvx_test::Node, found "
                      "lvx_test::inner::Leaf");
    EXPECT_EQ(&target, object);
    EXPECT_EQ(3, target.m_number);
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, object_without_one_given_to_be_read_into_is_thrown) {
    Leaf leaf;
    clipboard.put(&leaf);
    Storable* object = nullptr;
    EXPECT_THROW(clipboard.get(object, false), ObjectStore::UnexpectedObject);
    EXPECT_EQ(nullptr, object);
    EXPECT_TRUE(IsFree());
}

// Temporary files

TEST_F(ObjectsOnClipboard, put_leaves_no_temporary_file) {
    Node node(5);
    EXPECT_TRUE(clipboard.put(&node));
    EXPECT_THAT(files.Names(), IsEmpty());
}

TEST_F(ObjectsOnClipboard, get_leaves_its_temporary_file) {
    Node node(5);
    clipboard.put(&node);
    EXPECT_EQ("lvx_test::Node", Got());
    EXPECT_THAT(files.Names(), ElementsAre(AllOf(StartsWith("SWK"), EndsWith(".tmp"))));
    EXPECT_EQ(Stored(), files.OnlyContent());
    EXPECT_EQ("lvx_test::Node", Got());
    EXPECT_EQ(2u, files.Names().size());
}

TEST_F(ObjectsOnClipboard, files_that_are_there_stay_as_they_are) {
    const lvx_test::TemporaryFiles others;
    for (int i = 0; i < 3; ++i) {
        lvx_test::write_file(others.Path() + "\\SWK" + std::to_string(i) + ".tmp", "other");
    }
    Node node(5);
    EXPECT_TRUE(clipboard.put(&node));
    EXPECT_EQ(3u, others.Names().size());
    EXPECT_EQ("lvx_test::Node", Got());
    EXPECT_EQ(4u, others.Names().size());
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ("other", lvx_test::read_file(others.Path() + "\\SWK" + std::to_string(i) + ".tmp"));
    }
}

TEST_F(ObjectsOnClipboard, without_a_folder_for_temporary_files_is_false) {
    Node node(5);
    clipboard.put(&node);
    const lvx_test::TemporaryFiles missing(files.Path() + "\\missing");
    EXPECT_FALSE(clipboard.put(&node));
    EXPECT_EQ("false", Got());
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, a_folder_of_a_name_of_more_than_199_characters_is_none) {
    Node node(5);
    for (const auto& [length, works] : {std::pair{199, true}, std::pair{200, false}, std::pair{230, false}}) {
        // The system counts the backslash at its end.
        const std::string name(static_cast<std::size_t>(length) - files.Path().size() - 2, 'x');
        const lvx_test::TemporaryFiles folder(files.Path() + '\\' + name);
        std::filesystem::create_directory(folder.Path());
        EXPECT_EQ(works, clipboard.put(&node)) << length;
        EXPECT_THAT(folder.Names(), IsEmpty());
    }
    EXPECT_TRUE(IsFree());
}

// When something is in the way

TEST_F(ObjectsOnClipboard, put_that_the_object_refuses_throws_and_leaves_all_as_it_was) {
    Node node(5);
    clipboard.put(&node);
    Unwilling unwilling;
    EXPECT_THROW_TEXT(clipboard.put(&unwilling), std::logic_error, "not to be stored");
    EXPECT_THAT(files.Names(), IsEmpty());
    EXPECT_TRUE(IsFree());
    EXPECT_EQ("lvx_test::Node", Got());
}

TEST_F(ObjectsOnClipboard, get_that_the_object_refuses_throws_and_closes) {
    ObjectFactory::Register("Unwilling", ObjectFactory::CreateStorable<Unwilling>);
    PutStored(bytes("'BcUnwilling' 0D 0A 'o' 01 00 00 00"));
    Storable* object = &untouched;
    EXPECT_THROW_TEXT(clipboard.get(object, true), std::logic_error, "not to be read");
    EXPECT_EQ(&untouched, object);
    EXPECT_TRUE(IsFree());
    // Nobody has the file open any more.
    files.Clear();
    EXPECT_THAT(files.Names(), IsEmpty());
    Unwilling target;
    object = &target;
    EXPECT_THROW_TEXT(clipboard.get(object, false), std::logic_error, "not to be read");
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, objects_are_stored_while_the_clipboard_is_free_and_read_while_it_is_open) {
    ObjectFactory::Register("Watcher", ObjectFactory::CreateStorable<Watcher>);
    Watcher::s_files = &files;
    Watcher watcher;
    EXPECT_TRUE(clipboard.put(&watcher));
    EXPECT_EQ("Watcher", Got());
    EXPECT_THAT(Watcher::s_seen, ElementsAre("free, 1 files", "open, 1 files"));
}

TEST_F(ObjectsOnClipboard, put_while_another_thread_has_the_clipboard_open_is_false) {
    Node node(5);
    clipboard.put(&node);
    const HANDLE taken = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    const HANDLE done = ::CreateEventA(nullptr, TRUE, FALSE, nullptr);
    std::thread other([&] {
        const owl::TClipboard held(nullptr);
        ::SetEvent(taken);
        ::WaitForSingleObject(done, lvx_test::long_time);
    });
    ::WaitForSingleObject(taken, lvx_test::long_time);
    EXPECT_FALSE(clipboard.put(&node));
    EXPECT_THAT(files.Names(), IsEmpty());
    EXPECT_EQ("false", Got());
    EXPECT_THAT(files.Names(), IsEmpty());
    EXPECT_FALSE(IsFree()) << "the other thread has it still";
    ::SetEvent(done);
    other.join();
    ::CloseHandle(taken);
    ::CloseHandle(done);
    EXPECT_EQ("lvx_test::Node", Got());
}

// The clipboard that a host had opened by itself stays closed behind a put that failed for that very reason.
TEST_F(ObjectsOnClipboard, put_closes_the_clipboard_whoever_of_the_thread_has_opened_it) {
    Node node(5);
    const owl_test::MessageWindow other;
    ASSERT_TRUE(::OpenClipboard(other));
    EXPECT_FALSE(clipboard.put(&node));
    EXPECT_FALSE(::CloseClipboard()) << "it is closed";
    EXPECT_TRUE(clipboard.put(&node));
}

// Blocks of others

TEST_F(ObjectsOnClipboard, torn_block_is_false_and_makes_no_file) {
    const std::string store = bytes("'Bclvx_test::Node' 0D 0A 'o' 07 00 00 00 00 00 00 00");
    for (const char* block :
         {"00", "04", "04 00", "04 00 00", "00 00 00 00", "01 00 00 00", "02 00 00 00", "03 00 00 00 'B'",
          "05 00 00 00", "00 01 00 00 'Bc'", "00 00 00 80 'B'", "FF FF FF FF 'B'"}) {
        Put(Format(), bytes(block));
        EXPECT_EQ("false", Got()) << block;
    }
    Put(Format(), bytes_of(store.size() + 5) + store);
    EXPECT_EQ("false", Got());
    EXPECT_THAT(files.Names(), IsEmpty());
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, block_of_nothing_but_its_length_is_the_end_of_the_store) {
    PutStored("");
    EXPECT_EQ(lvx_test::unexpected_eof, Got());
    EXPECT_EQ("", files.OnlyContent());
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, block_may_be_longer_than_it_says) {
    const std::string store = bytes("'Bclvx_test::Node' 0D 0A 'o' 07 00 00 00 00 00 00 00");
    Put(Format(), bytes_of(store.size() + 4) + store + "and what lies behind");
    EXPECT_EQ("lvx_test::Node", Got());
    EXPECT_EQ(store, files.OnlyContent());
}

TEST_F(ObjectsOnClipboard, object_of_a_class_that_nobody_knows_is_thrown) {
    PutStored(bytes("'Bcnobody::Knows' 0D 0A 'o'"));
    Storable* object = &untouched;
    EXPECT_THROW(clipboard.get(object, true), ObjectFactory::UnknownClass);
    EXPECT_EQ(&untouched, object);
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, what_is_no_object_is_null) {
    PutStored("0");
    EXPECT_EQ("null", Got());
    PutStored("B0");
    EXPECT_EQ("null", Got());
}

TEST_F(ObjectsOnClipboard, object_of_which_the_end_is_missing_ends_in_the_store_or_in_zeros) {
    Leaf leaf;
    leaf.m_name = "birch";
    clipboard.put(&leaf);
    const std::string whole = Stored();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        PutStored(whole.substr(0, size));
        const std::string found = Got();
        // A stream's numbers are zeros behind its end, which only the next tag notices.
        EXPECT_THAT(found,
                    testing::AnyOf(lvx_test::unexpected_eof, "lvx_test::inner::Leaf",
                                   StartsWith("Class lvx_test::inner::Lea"), testing::HasSubstr("expected")))
            << size;
        EXPECT_TRUE(IsFree()) << size;
    }
    EXPECT_EQ(0, Leaf::alive - 1) << "all but the one of this test";
}

// Many, and large ones

TEST_F(ObjectsOnClipboard, thousand_objects_of_any_shape_come_back_equal) {
    for (std::uint32_t number = 0; number < 1000; ++number) {
        const lvx_test::RandomShapes shapes(number);
        ASSERT_TRUE(clipboard.put(shapes.Top())) << number;
        Storable* object = nullptr;
        ASSERT_TRUE(clipboard.get(object, true)) << number;
        const lvx_test::ShapesOwner owner(object);
        EXPECT_TRUE(lvx_test::same_shapes(shapes.Top(), object)) << number;
        EXPECT_EQ(lvx_test::stored(*shapes.Top()), lvx_test::stored(*object)) << number;
        EXPECT_EQ(lvx_test::stored(*shapes.Top()), files.OnlyContent()) << number;
        files.Clear();
    }
    EXPECT_TRUE(IsFree());
}

TEST_F(ObjectsOnClipboard, sizes_around_the_pieces_of_the_file_come_back) {
    Leaf leaf;
    const std::size_t rest = lvx_test::stored(leaf).size();
    for (const std::size_t size : {0x7FFF, 0x8000, 0x8001, 0xFFFF, 0x10000, 0x10001, 0x1000000}) {
        leaf.m_name.assign(size - rest, 'x');
        EXPECT_TRUE(clipboard.put(&leaf));
        EXPECT_EQ(size, Stored().size());
        EXPECT_EQ("lvx_test::inner::Leaf", Got()) << size;
        EXPECT_EQ(lvx_test::stored(leaf), files.OnlyContent()) << size;
        files.Clear();
    }
}
