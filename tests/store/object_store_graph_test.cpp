#include <gtest/gtest.h>

#include <memory>
#include <vector>

#include "lvx/drawing/my_font.h"
#include "lvx/store/object_factory.h"
#include "lvx/store/object_store.h"
#include "support/bytes.h"
#include "support/expect_throw.h"
#include "support/recording_store.h"
#include "support/shapes.h"

using lvx_test::bytes;
using lvx_test::hex;
using lvx_test::Node;
using lvx_test::RecordingStore;
using lvx_test::inner::Leaf;

namespace {

constexpr const char* worked_example =
    "03 00 00 00"
    "42 63 6D 79 46 6F 6E 74 0D 0A 6F"
    "73 05 00 00 00 41 72 69 61 6C  00 00 00 00 00 00 24 40"
    "01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
    "42 4F 00 00 00 00"
    "42 43 00 00 00 00 6F"
    "73 04 00 00 00 53 61 6E 73  00 00 00 00 00 00 20 40"
    "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";

class ObjectGraph : public ::testing::Test {
protected:
    void SetUp() override {
        lvx_test::register_shapes();
        ObjectFactory::Register("myFont", ObjectFactory::CreateStorable<myFont>);
        Node::alive = 0;
        Leaf::alive = 0;
    }
    void TearDown() override {
        EXPECT_EQ(0, Node::alive);
        EXPECT_EQ(0, Leaf::alive);
    }
};

// Reads one object that the test then owns.
std::unique_ptr<Storable> read_object(ObjectStore& store) {
    Storable* object = nullptr;
    store >> object;
    return std::unique_ptr<Storable>(object);
}

constexpr const char* node_5 = "'Bclvx_test::Node' 0D 0A 'o' 05 00 00 00 00 00 00 00";

}  // namespace

TEST_F(ObjectGraph, the_worked_example_is_written_byte_for_byte) {
    const myFont arial("Arial", 10.0, true, false, false, false);
    const myFont sans("Sans", 8.0, false, false, false, false);
    RecordingStore store;
    store << 3L << arial << arial << sans;
    EXPECT_EQ(hex(bytes(worked_example)), hex(store.Data()));
    EXPECT_EQ(95u, store.Data().size());
}

TEST_F(ObjectGraph, ascii_changes_the_three_markers_and_nothing_else) {
    const myFont arial("Arial", 10.0, true, false, false, false);
    const myFont sans("Sans", 8.0, false, false, false, false);
    RecordingStore store;
    store.SetAscii(true);
    store << 3L << arial << arial << sans;
    std::string expected = bytes(worked_example);
    expected[4] = expected[49] = expected[55] = 'A';
    EXPECT_EQ(hex(expected), hex(store.Data()));
}

TEST_F(ObjectGraph, the_worked_example_is_read_back) {
    RecordingStore store(bytes(worked_example));
    store.ReadVersion();
    EXPECT_EQ(3, store.GetVersion());
    const std::unique_ptr<Storable> first = read_object(store);
    Storable* again = nullptr;
    store >> again;
    const std::unique_ptr<Storable> second = read_object(store);
    EXPECT_EQ(first.get(), again);
    const auto& arial = dynamic_cast<const myFont&>(*first);
    const auto& sans = dynamic_cast<const myFont&>(*second);
    EXPECT_EQ("Arial", arial.Face());
    EXPECT_EQ(10.0, arial.Size());
    EXPECT_TRUE(arial.Bold());
    EXPECT_EQ("Sans", sans.Face());
    EXPECT_EQ(8.0, sans.Size());
    EXPECT_FALSE(sans.Bold());
    EXPECT_EQ("myFont", store.ClassName());
    EXPECT_THROW(store.GetChar(), ObjectStore::UnexpectedEOF);
}

TEST_F(ObjectGraph, two_classes_are_named_once_and_numbered_from_then_on) {
    const Node node(1);
    const Leaf leaf;
    const Node other_node(2);
    const Leaf other_leaf;
    RecordingStore store;
    store << node << leaf << other_node << other_leaf;
    const std::string node_body = "'o' 01 00 00 00 00 00 00 00";
    const std::string leaf_body = "'o' 00 00 00 00 00 00 00 00 00 00 00 00 73 00 00 00 00 20";
    EXPECT_EQ(
        hex(bytes("'Bclvx_test::Node' 0D 0A" + node_body + "'Bclvx_test::inner::Leaf' 0D 0A" + leaf_body +
                  "'BC' 00 00 00 00 'o' 02 00 00 00 00 00 00 00 'BC' 01 00 00 00" + leaf_body)),
        hex(store.Data()));
}

TEST_F(ObjectGraph, the_calls_that_a_host_sees_for_an_object_and_its_reference) {
    const Node node(1);
    RecordingStore store;
    store << node;
    EXPECT_EQ("W1 W1 W14 W2 W1 W4 W4", store.Calls());
    store.calls.clear();
    store << node;
    EXPECT_EQ("W1 W1 W4", store.Calls());
    store.Rewind();
    const std::unique_ptr<Storable> read = read_object(store);
    Storable* again = nullptr;
    store >> again;
    EXPECT_EQ("G G T50 G R4 R4 G G R4", store.Calls());
}

TEST_F(ObjectGraph, a_cycle_is_written_once_and_closes_again) {
    Node first(1);
    Node second(2);
    first.m_edges = {&second, &first};
    second.m_edges = {&first};
    RecordingStore store;
    store << first;
    store.Rewind();
    const std::unique_ptr<Storable> read = read_object(store);
    auto& read_first = dynamic_cast<Node&>(*read);
    ASSERT_EQ(2u, read_first.m_edges.size());
    EXPECT_EQ(&read_first, read_first.m_edges[1]);
    const std::unique_ptr<Storable> read_second(read_first.m_edges[0]);
    EXPECT_EQ(&read_first, dynamic_cast<Node&>(*read_second).m_edges[0]);
}

TEST_F(ObjectGraph, a_member_gets_its_id_behind_its_owner) {
    Node owner(1);
    Node member(2);
    owner.m_edges = {&member};
    RecordingStore store;
    store << owner << member << owner;
    const std::string data = store.Data();
    EXPECT_EQ(hex(bytes("'BO' 01 00 00 00 'BO' 00 00 00 00")), hex(data.substr(data.size() - 12)));
}

TEST_F(ObjectGraph, null_is_read_with_and_without_a_marker) {
    RecordingStore store("0A0");
    Storable* object = reinterpret_cast<Storable*>(&store);
    store >> object;
    EXPECT_EQ(nullptr, object);
    object = reinterpret_cast<Storable*>(&store);
    store >> object;
    EXPECT_EQ(nullptr, object);
}

TEST_F(ObjectGraph, an_unknown_byte_gives_null_and_is_gone) {
    RecordingStore store("z!");
    Storable* object = reinterpret_cast<Storable*>(&store);
    store >> object;
    EXPECT_EQ(nullptr, object);
    EXPECT_EQ('!', store.GetChar());
}

TEST_F(ObjectGraph, several_markers_in_a_row_are_passed_over) {
    RecordingStore store("A" + bytes(node_5));
    const std::unique_ptr<Storable> object = read_object(store);
    EXPECT_EQ(5, dynamic_cast<Node&>(*object).m_number);
}

TEST_F(ObjectGraph, the_reader_takes_the_marker_over_as_its_own) {
    // Seen in what the store writes when it is turned round afterwards.
    class Turnable : public RecordingStore {
    public:
        using RecordingStore::RecordingStore;
        void Turn() { m_mode = m_mode == ForRead ? ForWrite : ForRead; }
    };
    Turnable store("A0B0");
    const Node node(1);
    for (const char marker : {'A', 'B'}) {
        Storable* object = nullptr;
        store >> object;
        store.Turn();
        const std::size_t before = store.Data().size();
        store << node;
        EXPECT_EQ(marker, store.Data()[before]);
        store.Turn();
    }
}

TEST_F(ObjectGraph, a_missing_body_is_told) {
    RecordingStore store(bytes("'Bclvx_test::Node' 0D 0A 'x'"));
    Storable* object = nullptr;
    EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a storable, found x");
}

TEST_F(ObjectGraph, a_reference_before_any_object_is_told) {
    RecordingStore store(bytes("'BO' 00 00 00 00"));
    Storable* object = nullptr;
    EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected an object pointer, found an object");
    EXPECT_EQ(2u, store.Position()) << "the id is not read";
}

TEST_F(ObjectGraph, a_reference_outside_the_list_is_told) {
    for (const char* id : {"01 00 00 00", "FF FF FF FF", "00 00 00 80", "FF FF FF 7F"}) {
        RecordingStore store(bytes(std::string(node_5) + "'BO'" + id));
        const std::unique_ptr<Storable> object = read_object(store);
        Storable* reference = nullptr;
        EXPECT_THROW_TEXT(
            store >> reference, ObjectStore::UnexpectedObject,
            "Unexpected object in the store: expected , found Reference to nonexistant object.");
    }
}

TEST_F(ObjectGraph, a_class_number_outside_the_table_is_told) {
    for (const char* number : {"00 00 00 00", "FF FF FF FF", "00 00 00 80", "FF FF FF 7F"}) {
        RecordingStore store(bytes(std::string("'BC'") + number + "'o'"));
        Storable* object = nullptr;
        EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject,
                          "Unexpected object in the store: expected , found Reference to nonexistant class.");
    }
}

TEST_F(ObjectGraph, an_unregistered_class_is_told_with_its_qualifier) {
    RecordingStore store(bytes("'Bclvx_test::Ghost' 0D 0A 'o'"));
    Storable* object = nullptr;
    EXPECT_THROW_TEXT(store >> object, ObjectFactory::UnknownClass,
                      "Class 'lvx_test::Ghost' is not registered with the object factory - cannot create an "
                      "instance of one.");
}

TEST_F(ObjectGraph, TempObject_writes_a_known_object_in_full_again) {
    const Node node(5);
    RecordingStore store;
    store << node << ObjectStore::TempObject << node << node;
    EXPECT_EQ(
        hex(bytes(std::string(node_5) + "'BC' 00 00 00 00 'o' 05 00 00 00 00 00 00 00 'BO' 00 00 00 00")),
        hex(store.Data()));
}

TEST_F(ObjectGraph, TempObject_of_an_unknown_object_numbers_it_as_usual) {
    const Node node(5);
    RecordingStore store;
    store << ObjectStore::TempObject << node << node;
    EXPECT_EQ(hex(bytes(std::string(node_5) + "'BO' 00 00 00 00")), hex(store.Data()));
}

TEST_F(ObjectGraph, TempObject_of_a_known_object_shifts_the_readers_ids) {
    const Node known(5);
    const Node fresh(6);
    RecordingStore store;
    store << known << ObjectStore::TempObject << known << fresh << fresh;
    store.Rewind();
    const std::unique_ptr<Storable> first = read_object(store);
    const std::unique_ptr<Storable> copy = read_object(store);
    const std::unique_ptr<Storable> third = read_object(store);
    Storable* reference = nullptr;
    store >> reference;
    EXPECT_EQ(copy.get(), reference) << "the writer's id 1 is the reader's entry 1, the copy";
}

TEST_F(ObjectGraph, TempObject_reaches_the_first_member_and_no_further) {
    Node first_member(2);
    Node second_member(3);
    Node owner(1);
    owner.m_edges = {&first_member, &second_member};
    RecordingStore store;
    store << first_member << second_member << ObjectStore::TempObject << owner;
    const std::string data = store.Data();
    // The owner, its first member in full, its second as a reference.
    EXPECT_EQ(hex(bytes("'BC' 00 00 00 00 'o' 01 00 00 00 02 00 00 00"
                        "'BC' 00 00 00 00 'o' 02 00 00 00 00 00 00 00"
                        "'BO' 01 00 00 00")),
              hex(data.substr(data.size() - 15 - 15 - 6)));
    store << owner;
    EXPECT_EQ(hex(bytes("'BO' 02 00 00 00")), hex(store.Data().substr(data.size())));
}

TEST_F(ObjectGraph, TempObject_stays_set_when_PutTo_throws) {
    const Node node(5);
    RecordingStore store;
    store << node;
    store.writes_until_failure = 4;
    EXPECT_THROW(store << ObjectStore::TempObject << node, ObjectStore::WriteFailure);
    const std::size_t before = store.Data().size();
    store << node;
    EXPECT_EQ(hex(bytes("'BC' 00 00 00 00 'o' 05 00 00 00 00 00 00 00")), hex(store.Data().substr(before)));
}

TEST_F(ObjectGraph, an_object_whose_writing_failed_keeps_its_id) {
    const Node node(5);
    RecordingStore store;
    store.writes_until_failure = 5;
    EXPECT_THROW(store << node, ObjectStore::WriteFailure);
    const std::size_t before = store.Data().size();
    store << node;
    EXPECT_EQ(hex(bytes("'BO' 00 00 00 00")), hex(store.Data().substr(before)));
}

TEST_F(ObjectGraph, NoCreate_reads_into_the_object_given) {
    RecordingStore store(bytes(std::string(node_5) + "'BO' 00 00 00 00"));
    Node target(1);
    Storable* object = &target;
    store >> ObjectStore::NoCreate >> object;
    EXPECT_EQ(&target, object);
    EXPECT_EQ(5, target.m_number);
    Storable* reference = nullptr;
    store >> reference;
    EXPECT_EQ(&target, reference) << "the object given has the id";
}

TEST_F(ObjectGraph, NoCreate_lasts_for_one_object) {
    RecordingStore store(bytes(std::string(node_5) + "'BC' 00 00 00 00 'o' 06 00 00 00 00 00 00 00"));
    Node target(1);
    Storable* object = &target;
    store >> ObjectStore::NoCreate >> object;
    store >> object;
    const std::unique_ptr<Storable> owner(object);
    EXPECT_NE(&target, object);
    EXPECT_EQ(6, dynamic_cast<Node&>(*object).m_number);
}

TEST_F(ObjectGraph, NoCreate_creates_the_members) {
    Node member(2);
    Node owner(1);
    owner.m_edges = {&member};
    RecordingStore store;
    store << owner;
    store.Rewind();
    Node target;
    Storable* object = &target;
    store >> ObjectStore::NoCreate >> object;
    ASSERT_EQ(1u, target.m_edges.size());
    const std::unique_ptr<Storable> read_member(target.m_edges[0]);
    EXPECT_EQ(2, dynamic_cast<Node&>(*read_member).m_number);
}

TEST_F(ObjectGraph, NoCreate_against_another_class_is_told_and_over) {
    RecordingStore store(bytes("'BcLVXUtilities::DIBitmap' 0D 0A 'o'" + std::string(node_5)));
    myFont font;
    Storable* object = &font;
    EXPECT_THROW_TEXT(store >> ObjectStore::NoCreate >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected myFont, found LVXUtilities::DIBitmap");
    const std::unique_ptr<Storable> next = read_object(store);
    EXPECT_EQ(5, dynamic_cast<Node&>(*next).m_number);
}

TEST_F(ObjectGraph, NoCreate_against_null_is_told_and_stays_set) {
    RecordingStore store(bytes("'B0x'"));
    myFont font;
    Storable* object = &font;
    EXPECT_THROW_TEXT(store >> ObjectStore::NoCreate >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected myFont, found 0");
    EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected an object or class, found x");
}

TEST_F(ObjectGraph, NoCreate_without_a_body_stays_set) {
    RecordingStore store(bytes("'Bclvx_test::Node' 0D 0A 'xy'"));
    Node target;
    Storable* object = &target;
    EXPECT_THROW_TEXT(store >> ObjectStore::NoCreate >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected a storable, found x");
    EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected an object or class, found y");
}

TEST_F(ObjectGraph, NoCreate_against_a_reference_is_told_by_both_types) {
    RecordingStore store(bytes(std::string(node_5) + "'BO' 00 00 00 00"));
    const std::unique_ptr<Storable> node = read_object(store);
    myFont font;
    Storable* object = &font;
    EXPECT_THROW_TEXT(store >> ObjectStore::NoCreate >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected myFont, found lvx_test::Node");
}

TEST_F(ObjectGraph, NoCreate_against_a_reference_outside_the_list_is_told) {
    for (const char* id : {"01 00 00 00", "FF FF FF FF"}) {
        RecordingStore store(bytes(std::string(node_5) + "'BO'" + id));
        const std::unique_ptr<Storable> node = read_object(store);
        myFont font;
        Storable* object = &font;
        EXPECT_THROW_TEXT(
            store >> ObjectStore::NoCreate >> object, ObjectStore::UnexpectedObject,
            "Unexpected object in the store: expected , found Reference to nonexistant object.");
    }
}

TEST_F(ObjectGraph, NoCreate_into_no_object_is_told) {
    RecordingStore store(bytes(node_5));
    Storable* object = nullptr;
    EXPECT_THROW_TEXT(store >> ObjectStore::NoCreate >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected an object, found lvx_test::Node");
}

TEST_F(ObjectGraph, an_object_whose_reading_failed_is_deleted_and_leaves_null_in_its_place) {
    // A node that announces one edge, whose class is unknown; then a reference to the node.
    RecordingStore store(
        bytes("'Bclvx_test::Node' 0D 0A 'o' 05 00 00 00 01 00 00 00 'BcGhost' 0D 0A 'o'"
              "'BC' 00 00 00 00 'o' 06 00 00 00 00 00 00 00"
              "'BO' 00 00 00 00 'BO' 01 00 00 00"));
    Storable* object = nullptr;
    EXPECT_THROW(store >> object, ObjectFactory::UnknownClass);
    EXPECT_EQ(0, Node::alive);
    const std::unique_ptr<Storable> next = read_object(store);
    Node marker;
    object = &marker;
    store >> object;
    EXPECT_EQ(nullptr, object);
    store >> object;
    EXPECT_EQ(next.get(), object) << "later ids stay right";
}

TEST_F(ObjectGraph, what_a_failed_object_had_read_is_not_handed_out) {
    // A node with two edges: a leaf that is read whole, and one that fails. The leaf is the failed node's.
    class Owner : public Node {
    public:
        ~Owner() override {
            for (Storable* edge : m_edges) {
                delete edge;
            }
        }
    };
    ObjectFactory::Register("Owner", ObjectFactory::CreateStorable<Owner>);
    RecordingStore store(
        bytes("'BcOwner' 0D 0A 'o' 05 00 00 00 02 00 00 00"
              "'Bclvx_test::Node' 0D 0A 'o' 07 00 00 00 00 00 00 00 'BC' 63 00 00 00"
              "'BO' 00 00 00 00 'BO' 01 00 00 00"));
    Storable* object = nullptr;
    EXPECT_THROW(store >> object, ObjectStore::UnexpectedObject);
    EXPECT_EQ(0, Node::alive);
    for (int i = 0; i < 2; ++i) {
        Node marker;
        object = &marker;
        store >> object;
        EXPECT_EQ(nullptr, object);
    }
}

TEST_F(ObjectGraph, CloseStream_forgets_objects_and_keeps_classes) {
    const Node node(5);
    RecordingStore writer;
    writer << node;
    writer.ObjectStore::CloseStream();
    writer << node;
    EXPECT_EQ(hex(bytes(std::string(node_5) + "'BC' 00 00 00 00 'o' 05 00 00 00 00 00 00 00")),
              hex(writer.Data()));
}

TEST_F(ObjectGraph, CloseStream_on_the_reading_side_forgets_the_list) {
    RecordingStore store(bytes(std::string(node_5) + "'BO' 00 00 00 00"));
    const std::unique_ptr<Storable> node = read_object(store);
    store.ObjectStore::CloseStream();
    Storable* object = nullptr;
    EXPECT_THROW_TEXT(store >> object, ObjectStore::UnexpectedObject,
                      "Unexpected object in the store: expected an object pointer, found an object");
}

TEST_F(ObjectGraph, two_stores_number_apart) {
    const Node node(5);
    RecordingStore first;
    RecordingStore second;
    first << node;
    second << node;
    EXPECT_EQ(hex(first.Data()), hex(second.Data()));
}

TEST_F(ObjectGraph, a_class_name_given_by_its_object_goes_into_the_store) {
    class Renamed : public Node {
    public:
        const char* ClassName() const override { return "Older Name"; }
    };
    const Renamed object;
    RecordingStore store;
    store << object;
    EXPECT_EQ(hex(bytes("'BcOlder Name' 0D 0A")), hex(store.Data().substr(0, 14)));
}

TEST_F(ObjectGraph, class_names_out_of_one_changing_buffer_are_told_apart) {
    struct Chameleon : Node {
        const char* ClassName() const override {
            static char buffer[8];
            std::snprintf(buffer, sizeof buffer, "C%d", m_number);
            return buffer;
        }
    };
    Chameleon first;
    Chameleon second;
    Chameleon third;
    second.m_number = 1;
    RecordingStore store;
    store << first << second << third;
    const std::string body = "'o' 00 00 00 00 00 00 00 00";
    EXPECT_EQ(hex(bytes("'BcC0' 0D 0A" + body + "'BcC1' 0D 0A 'o' 01 00 00 00 00 00 00 00 'BC' 00 00 00 00" +
                        body)),
              hex(store.Data()));
}

TEST_F(ObjectGraph, a_hundred_classes_keep_their_numbers) {
    struct Numbered : Node {
        const char* ClassName() const override { return m_name.c_str(); }
        std::string m_name;
    };
    std::vector<Numbered> objects(200);
    for (std::size_t i = 0; i < objects.size(); ++i) {
        objects[i].m_name = "Class" + std::to_string(i % 100);
    }
    RecordingStore store;
    for (const Numbered& object : objects) {
        const std::size_t before = store.Data().size();
        store << object;
        const auto index = static_cast<std::size_t>(&object - objects.data());
        if (index >= 100) {
            const std::string number(1, static_cast<char>(index - 100));
            EXPECT_EQ(hex("BC" + number + bytes("00 00 00 'o'")), hex(store.Data().substr(before, 7)));
        }
    }
}
