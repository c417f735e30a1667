// Documents that were written once and are kept: they open on every system, from every kind of store, come
// out with the values written down here, and are written again as the same bytes.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <fstream>
#include <functional>
#include <limits>
#include <memory>
#include <sstream>

#include "lvx/drawing/my_font.h"
#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_file.h"
#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"
#include "store/golden.h"
#include "support/bytes.h"
#include "support/recording_store.h"
#include "support/shapes.h"
#include "support/temp_folder.h"

using lvx_test::bytes;
using lvx_test::hex;
using lvx_test::Node;
using lvx_test::inner::Leaf;
using LVXUtilities::DIBitmap;
using LVXUtilities::ObjectStoreStorage;

namespace {

// The documents as they are told in docs/store-format.md, written by hand.
const char* const values_bytes =
    "03 00 00 00"                                       // the version
    "01 00 00 00  00 00 00 00"                          // bools
    "FE FF FF FF  FF FF FF 7F"                          // ints
    "00 00 00 80"                                       // a long
    "00 00 00 00 00 00 F8 3F  00 00 00 A0 99 99 B9 3F"  // floats
    "9A 99 99 99 99 99 B9 3F  00 00 00 00 00 00 F0 FF"  // doubles
    "01 00 00 00 00 00 00 00"                           // the smallest one
    "'x' FF"                                            // chars
    "02 00 00 00 'ab' 00  00 00 00 00"                  // C strings
    "'s' 02 00 00 00 'ab'"                              // strings
    "'s' 00 00 00 00"                                   //
    "'s' 06 00 00 00 0D 0A 09 E9 's' 7F";
const char* const graph_bytes =
    "01 00 00 00"
    "'Bclvx_test::Node' 0D 0A 'o'  01 00 00 00 03 00 00 00"                         // object 0, three edges:
    "  'Bclvx_test::inner::Leaf' 0D 0A 'o'  01 00 00 00 00 00 00 00 00 00 E0 3F"    // object 1
    "      's' 03 00 00 00 'sky' 'k'"                                               //
    "  'BC' 00 00 00 00 'o'  02 00 00 00 03 00 00 00"                               // object 2, three edges:
    "      'BO' 00 00 00 00  'BO' 01 00 00 00  '0'"                                 // up, across, null
    "  'BO' 00 00 00 00"                                                            // to itself
    "'AC' 01 00 00 00 'o'  00 00 00 00 00 00 00 00 00 00 00 C0 's' 00 00 00 00 20"  // object 3, in ascii
    "'AO' 00 00 00 00"                                                              // a reference, in ascii
    "'0'"
    "'BO' 03 00 00 00";
const char* const older_strings_bytes =
    "'BcVString' 0D 0A 'o' 02 00 00 00 'ab' 00"                                         // object 0, class 0
    "'Bclvx_test::inner::Leaf' 0D 0A 'o' 00 00 00 00 00 00 00 00 00 00 20 40"           // object 1, class 1
    "    'BC' 00 00 00 00 'o' 01 00 00 00 'c' 00"                                       // object 2, its name
    "    'L'"                                                                           //
    "'s' 03 00 00 00 'new'"                                                             //
    "'AC' 00 00 00 00 'o' 00 00 00 00"                                                  // object 3, empty
    "'AO' 01 00 00 00"                                                                  // the leaf
    "'BC' 01 00 00 00 'o' 01 00 00 00 00 00 00 00 00 00 10 40 's' 01 00 00 00 'd' 'M'"  // object 4
    "'BO' 04 00 00 00";
// Red, green, blue and white in four quarters; a bar code top down; a row under a short header.
const char* const colours_block =
    "28 00 00 00  02 00 00 00  02 00 00 00  01 00 18 00  00 00 00 00  10 00 00 00"
    "13 0B 00 00  12 0B 00 00  00 00 00 00  00 00 00 00"
    "FF 00 00 00 FF 00 00 00  00 00 FF FF FF FF 00 00";
const char* const bars_block =
    "28 00 00 00  08 00 00 00  FE FF FF FF  01 00 01 00  00 00 00 00  00 00 00 00"
    "00 00 00 00  00 00 00 00  02 00 00 00  00 00 00 00"
    "00 00 80 00  FF FF FF 00"
    "A5 00 00 00  5A 00 00 00";
const char* const row_block = "0C 00 00 00 03 00 01 00 01 00 18 00  01 02 03 04 05 06 07 08 09 00 00 00";

// The worked example of the page.
const char* const fonts_bytes =
    "03 00 00 00"
    "'BcmyFont' 0D 0A 'o' 's' 05 00 00 00 'Arial'  00 00 00 00 00 00 24 40"
    "    01 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00"
    "'BO' 00 00 00 00"
    "'BC' 00 00 00 00 'o' 's' 04 00 00 00 'Sans'  00 00 00 00 00 00 20 40"
    "    00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";

std::string bitmap_bytes() {
    return bytes("02 00 00 00 'BcLVXUtilities::DIBitmap' 0D 0A 'o' 38 00 00 00") + bytes(colours_block) +
           bytes("'BC' 00 00 00 00 'o' 38 00 00 00") + bytes(bars_block) +
           bytes("'BC' 00 00 00 00 'o' 18 00 00 00") + bytes(row_block) + bytes("'BO' 00 00 00 00");
}

template <class T>
T next(ObjectStore& store) {
    T value{};
    store >> value;
    return value;
}

// An object of the document; belongs to the caller at its first sight.
template <class Class>
Class& next_object(ObjectStore& store) {
    Storable* object = nullptr;
    store >> object;
    auto* const found = dynamic_cast<Class*>(object);
    if (found == nullptr) {
        throw std::runtime_error("an object of another class, or none");
    }
    return *found;
}

std::string next_characters(ObjectStore& store) {
    char* text = nullptr;
    store >> text;
    return lvx::auto_array<char>(text).get();
}

void expect_end(ObjectStore& store) {
    EXPECT_THROW(store.GetChar(), ObjectStore::UnexpectedEOF);
}

void expect_values(ObjectStore& store) {
    store.ReadVersion();
    EXPECT_EQ(3, store.GetVersion());
    EXPECT_TRUE(next<bool>(store));
    EXPECT_FALSE(next<bool>(store));
    EXPECT_EQ(-2, next<int>(store));
    EXPECT_EQ(2147483647, next<int>(store));
    EXPECT_EQ(std::numeric_limits<std::int32_t>::min(), next<long>(store));
    EXPECT_EQ(1.5F, next<float>(store));
    EXPECT_EQ(0.1F, next<float>(store));
    EXPECT_EQ(0.1, next<double>(store));
    EXPECT_EQ(-std::numeric_limits<double>::infinity(), next<double>(store));
    EXPECT_EQ(std::numeric_limits<double>::denorm_min(), next<double>(store));
    EXPECT_EQ('x', next<char>(store));
    EXPECT_EQ('\xFF', next<char>(store));
    EXPECT_EQ("ab", next_characters(store));
    EXPECT_EQ("", next_characters(store));
    EXPECT_EQ("ab", next<std::string>(store));
    EXPECT_EQ("", next<std::string>(store));
    EXPECT_EQ("\r\n\t\xE9s\x7F", next<std::string>(store));
    expect_end(store);
}

void expect_leaf(const Leaf& leaf, bool flag, double ratio, const char* name, char letter) {
    EXPECT_EQ(flag, leaf.m_flag);
    EXPECT_EQ(ratio, leaf.m_ratio);
    EXPECT_EQ(name, leaf.m_name);
    EXPECT_EQ(letter, leaf.m_letter);
}

void expect_graph(ObjectStore& store) {
    store.ReadVersion();
    EXPECT_EQ(1, store.GetVersion());
    auto& root = next_object<Node>(store);
    const std::unique_ptr<Storable> root_owner(&root);
    EXPECT_EQ(1, root.m_number);
    ASSERT_EQ(3u, root.m_edges.size());
    const std::unique_ptr<Storable> sky_owner(root.m_edges[0]);
    const std::unique_ptr<Storable> inner_owner(root.m_edges[1]);
    expect_leaf(dynamic_cast<Leaf&>(*root.m_edges[0]), true, 0.5, "sky", 'k');
    const auto& inner = dynamic_cast<Node&>(*root.m_edges[1]);
    EXPECT_EQ(2, inner.m_number);
    EXPECT_EQ((std::vector<Storable*>{&root, sky_owner.get(), nullptr}), inner.m_edges);
    EXPECT_EQ(&root, root.m_edges[2]);
    auto& last = next_object<Leaf>(store);
    const std::unique_ptr<Storable> last_owner(&last);
    expect_leaf(last, false, -2.0, "", ' ');
    EXPECT_EQ(&root, &next_object<Node>(store));
    EXPECT_EQ(nullptr, next<Storable*>(store));
    EXPECT_EQ(&last, &next_object<Leaf>(store));
    expect_end(store);
}

void expect_older_strings(ObjectStore& store) {
    EXPECT_EQ("ab", next<std::string>(store));
    auto& first = next_object<Leaf>(store);
    const std::unique_ptr<Storable> first_owner(&first);
    expect_leaf(first, false, 8.0, "c", 'L');
    EXPECT_EQ("new", next<std::string>(store));
    EXPECT_EQ("", next<std::string>(store));
    EXPECT_EQ(&first, &next_object<Leaf>(store));
    auto& second = next_object<Leaf>(store);
    const std::unique_ptr<Storable> second_owner(&second);
    expect_leaf(second, true, 4.0, "d", 'M');
    EXPECT_EQ(&second, &next_object<Leaf>(store));
    expect_end(store);
}

std::string pixels_of(const DIBitmap& bitmap, std::size_t size) {
    return hex({reinterpret_cast<const char*>(bitmap.GetBitsAddress().get()), size});
}

void expect_bitmaps(ObjectStore& store) {
    store.ReadVersion();
    EXPECT_EQ(2, store.GetVersion());
    const auto& colours = next_object<DIBitmap>(store);
    const std::unique_ptr<const Storable> colours_owner(&colours);
    EXPECT_EQ(owl::TSize(2, 2), colours.GetSize());
    EXPECT_EQ(24, colours.GetBitsPerPixel());
    EXPECT_EQ(2835, colours.GetPixelsPerMetreX());
    EXPECT_EQ(2834, colours.GetPixelsPerMetreY());
    EXPECT_EQ("FF 00 00 00 FF 00 00 00 00 00 FF FF FF FF 00 00 ", pixels_of(colours, 16));
    const auto& bars = next_object<DIBitmap>(store);
    const std::unique_ptr<const Storable> bars_owner(&bars);
    EXPECT_EQ(owl::TSize(8, -2), bars.GetSize());
    EXPECT_EQ(1, bars.GetBitsPerPixel());
    EXPECT_EQ(0x80, bars.GetClrTabAddress()->rgbRed);
    EXPECT_EQ(0xFF, bars.GetClrTabAddress().get()[1].rgbBlue);
    EXPECT_EQ("A5 00 00 00 5A 00 00 00 ", pixels_of(bars, 8));
    const auto& row = next_object<DIBitmap>(store);
    const std::unique_ptr<const Storable> row_owner(&row);
    EXPECT_EQ(owl::TSize(3, 1), row.GetSize());
    EXPECT_EQ(24, row.GetBitsPerPixel());
    EXPECT_EQ(0, row.GetPixelsPerMetreX());
    EXPECT_EQ("01 02 03 04 05 06 07 08 09 00 00 00 ", pixels_of(row, 12));
    EXPECT_EQ(&colours, &next_object<DIBitmap>(store));
    expect_end(store);
}

void expect_fonts(ObjectStore& store) {
    store.ReadVersion();
    EXPECT_EQ(3, store.GetVersion());
    const auto& title = next_object<myFont>(store);
    const std::unique_ptr<const Storable> title_owner(&title);
    EXPECT_TRUE(title == myFont("Arial", 10, true, false, false, false));
    EXPECT_EQ(&title, &next_object<myFont>(store));
    const auto& text = next_object<myFont>(store);
    const std::unique_ptr<const Storable> text_owner(&text);
    EXPECT_TRUE(text == myFont("Sans", 8, false, false, false, false));
    expect_end(store);
}

void write_values(ObjectStore& store) {
    store << 3L << true << false << -2 << 2147483647 << long{std::numeric_limits<std::int32_t>::min()};
    store << 1.5F << 0.1F << 0.1 << -std::numeric_limits<double>::infinity();
    store << std::numeric_limits<double>::denorm_min() << 'x' << '\xFF' << "ab"
          << "";
    store << std::string("ab") << std::string() << std::string("\r\n\t\xE9s\x7F");
}

void set_leaf(Leaf& leaf, bool flag, double ratio, const char* name, char letter) {
    leaf.m_flag = flag;
    leaf.m_ratio = ratio;
    leaf.m_name = name;
    leaf.m_letter = letter;
}

void write_graph(ObjectStore& store) {
    Node root(1);
    Node inner(2);
    Leaf sky;
    Leaf last;
    set_leaf(sky, true, 0.5, "sky", 'k');
    set_leaf(last, false, -2.0, "", ' ');
    root.m_edges = {&sky, &inner, &root};
    inner.m_edges = {&root, &sky, nullptr};
    store << 1L << root << ObjectStore::Ascii(true) << last << root << '0' << ObjectStore::Ascii(false)
          << last;
}

// As a bitmap out of a store has it, whose memory has as many bytes as were stored.
DIBitmap bitmap_of(const char* block) {
    const std::string content = bytes(block);
    lvx_test::RecordingStore store;
    store << static_cast<int>(content.size());
    store.Write(content.data(), static_cast<unsigned int>(content.size()));
    store.Rewind();
    DIBitmap bitmap(nullptr, DIBitmap::Copy);
    bitmap.GetFrom(store);
    return bitmap;
}

void write_bitmaps(ObjectStore& store) {
    const DIBitmap colours = bitmap_of(colours_block);
    const DIBitmap bars = bitmap_of(bars_block);
    const DIBitmap row = bitmap_of(row_block);
    store << 2L << colours << bars << row << colours;
}

void write_fonts(ObjectStore& store) {
    const myFont title("Arial", 10, true, false, false, false);
    const myFont text("Sans", 8, false, false, false, false);
    store << 3L << title << title << text;
}

using Check = std::function<void(ObjectStore&)>;

void read_plain_file(const char* name, const Check& check) {
    ObjectStoreFile store;
    ASSERT_TRUE(
        store.OpenStream(lvx_test::golden::path(std::string(name) + ".store").c_str(), ObjectStore::ForRead));
    check(store);
}

void read_plain_stream(const char* name, const Check& check) {
    std::ifstream stream(lvx_test::golden::path(std::string(name) + ".store"), std::ios::binary);
    ASSERT_TRUE(stream);
    ObjectStoreStream store;
    store.OpenStream(&stream);
    check(store);
}

void read_compound(const char* document, const char* name, const Check& check) {
    std::string error;
    ObjectStoreStorage store;
    ASSERT_TRUE(store.OpenStorage(lvx_test::golden::path(document), ObjectStore::ForRead, error)) << error;
    ASSERT_TRUE(store.OpenStream(name, error)) << error;
    check(store);
}

void read_everywhere(const char* name, const Check& check) {
    lvx_test::register_shapes();
    ObjectFactory::Register("myFont", ObjectFactory::CreateStorable<myFont>);
    {
        SCOPED_TRACE("plain file");
        read_plain_file(name, check);
    }
    {
        SCOPED_TRACE("standard stream");
        read_plain_stream(name, check);
    }
    int compounds = 0;
    for (const auto& [file, streams] : lvx_test::golden::compound_documents) {
        SCOPED_TRACE(file);
        if (std::find(streams.begin(), streams.end(), std::string(name)) != streams.end()) {
            read_compound(file, name, check);
            ++compounds;
        }
    }
    EXPECT_EQ(2, compounds);
}

std::string golden_hex(const char* name) {
    return hex(lvx_test::read_file(lvx_test::golden::path(std::string(name) + ".store")));
}

// What `write` writes into a file, a standard stream and a host's store, if that is the same.
std::string written_hex(const Check& write) {
    const lvx_test::TempFolder folder;
    ObjectStoreFile file;
    file.OpenStream(folder.File("store").c_str(), ObjectStore::ForWrite);
    write(file);
    file.CloseStream();
    std::ostringstream stream;
    ObjectStoreStream stream_store;
    stream_store.OpenStream(&stream);
    write(stream_store);
    lvx_test::RecordingStore recording;
    write(recording);
    EXPECT_EQ(hex(recording.Data()), hex(stream.str()));
    EXPECT_EQ(hex(recording.Data()), hex(lvx_test::read_file(folder.File("store"))));
    return hex(recording.Data());
}

}  // namespace

TEST(GoldenDocuments, values_come_out_of_every_kind_of_store) {
    read_everywhere("values", expect_values);
}

TEST(GoldenDocuments, a_graph_comes_out_of_every_kind_of_store) {
    const int nodes = Node::alive;
    const int leaves = Leaf::alive;
    read_everywhere("graph", expect_graph);
    EXPECT_EQ(nodes, Node::alive);
    EXPECT_EQ(leaves, Leaf::alive);
}

TEST(GoldenDocuments, older_strings_come_out_of_every_kind_of_store) {
    read_everywhere("older-strings", expect_older_strings);
}

TEST(GoldenDocuments, bitmaps_come_out_of_every_kind_of_store) {
    read_everywhere("bitmap", expect_bitmaps);
}

TEST(GoldenDocuments, fonts_come_out_of_every_kind_of_store) {
    read_everywhere("fonts", expect_fonts);
}

TEST(GoldenDocuments, have_the_bytes_that_the_format_tells) {
    EXPECT_EQ(hex(bytes(values_bytes)), golden_hex("values"));
    EXPECT_EQ(hex(bytes(graph_bytes)), golden_hex("graph"));
    EXPECT_EQ(hex(bytes(older_strings_bytes)), golden_hex("older-strings"));
    EXPECT_EQ(hex(bitmap_bytes()), golden_hex("bitmap"));
    EXPECT_EQ(hex(bytes(fonts_bytes)), golden_hex("fonts"));
}

TEST(GoldenDocuments, values_are_written_again_as_the_same_bytes) {
    EXPECT_EQ(golden_hex("values"), written_hex(write_values));
}

TEST(GoldenDocuments, a_graph_is_written_again_as_the_same_bytes) {
    EXPECT_EQ(golden_hex("graph"), written_hex(write_graph));
}

TEST(GoldenDocuments, bitmaps_are_written_again_as_the_same_bytes) {
    EXPECT_EQ(golden_hex("bitmap"), written_hex(write_bitmaps));
}

TEST(GoldenDocuments, fonts_are_written_again_as_the_same_bytes) {
    EXPECT_EQ(golden_hex("fonts"), written_hex(write_fonts));
}

TEST(GoldenDocuments, compound_documents_hold_the_plain_ones) {
    for (const auto& [file, streams] : lvx_test::golden::compound_documents) {
        for (const char* const name : streams) {
            SCOPED_TRACE(std::string(file) + " " + name);
            read_compound(file, name, [name](ObjectStore& store) {
                std::string content;
                try {
                    for (;;) {
                        content += store.GetChar();
                    }
                } catch (const ObjectStore::UnexpectedEOF&) {
                    EXPECT_EQ(golden_hex(name), hex(content));
                }
            });
        }
    }
}
