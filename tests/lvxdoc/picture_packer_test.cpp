#include "tools/lvxdoc/picture_packer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lvx/images/dibitmap.h"
#include "lvx/store/object_store_storage.h"
#include "tests/lvxdoc/support.h"
#include "tests/support/shared_data.h"
#include "tools/lvxdoc/document.h"
#include "tools/lvxdoc/errors.h"

using namespace lvxdoc;
using LVXUtilities::DIBitmap;
using testing::ElementsAre;

namespace {

const std::string bitmap_file = bytes_of("'BM' 46000000 0000 0000 36000000") + small_block;

std::string stream_bytes(const Document& document, const std::string& name) {
    const auto stream = document.Open(document.Find(name));
    std::string bytes(static_cast<std::size_t>(stream->Size()), '\0');
    stream->ReadAt(0, bytes.data(), bytes.size());
    return bytes;
}

std::string failure_of(const std::string& name, const std::vector<std::string>& pictures,
                       bool force = false) {
    try {
        pack_pictures(name, pictures, force);
    } catch (const Failure& failure) {
        return failure.what();
    }
    return "packed";
}

}  // namespace

TEST(PackPictures, writes_a_version_and_the_picture_into_each_stream_with_numbers_of_its_own) {
    const Folder folder;
    const std::string sky = folder.Write("sky.bmp", bitmap_file);
    const std::string sea = folder.Write("sea.bmp", bitmap_file);
    const auto packed = pack_pictures(folder.File("d.lvx"), {sky, sea}, false);
    ASSERT_EQ(2u, packed.size());
    EXPECT_EQ(sky, packed[0].file);
    EXPECT_EQ("sky", packed[0].stream);
    EXPECT_EQ(2, packed[0].width);
    EXPECT_EQ(2, packed[0].height);
    EXPECT_EQ(24, packed[0].bits_per_pixel);
    const Document document(folder.File("d.lvx"));
    for (const char* name : {"sky", "sea"}) {
        const std::string bytes = stream_bytes(document, name);
        // The memory of a block, and what is stored of it, may be longer than what was asked for.
        EXPECT_EQ(small_picture.substr(0, 31), bytes.substr(0, 31)) << name;
        EXPECT_EQ(small_block, bytes.substr(35, 56)) << name;
    }
    EXPECT_THAT(folder.Names(), ElementsAre("d.lvx", "sea.bmp", "sky.bmp"));
}

TEST(PackPictures, makes_streams_that_the_library_reads_in_any_order) {
    const Folder folder;
    pack_pictures(folder.File("d.lvx"),
                  {folder.Write("sky.bmp", bitmap_file), folder.Write("sea.bmp", bitmap_file)}, false);
    for (const char* name : {"sea", "sky"}) {
        LVXUtilities::ObjectStoreStorage store;
        std::string error;
        ASSERT_TRUE(store.OpenStorage(folder.File("d.lvx"), ObjectStore::ForRead, error)) << error;
        ASSERT_TRUE(store.OpenStream(name, error)) << error;
        store.ReadVersion();
        EXPECT_EQ(1, store.GetVersion());
        Storable* object = nullptr;
        store >> object;
        const std::unique_ptr<Storable> owner(object);
        const auto* const picture = dynamic_cast<DIBitmap*>(object);
        ASSERT_NE(nullptr, picture);
        EXPECT_EQ(2, picture->GetWidth());
        EXPECT_EQ(0xff, picture->GetBitsAddress().get()[2]);
    }
}

TEST(PackPictures, gives_pictures_of_the_same_name_streams_of_their_own) {
    const Folder folder;
    std::filesystem::create_directory(folder.Path() / "other");
    const auto packed = pack_pictures(
        folder.File("d.lvx"),
        {folder.Write("sky.bmp", bitmap_file), folder.Write("other/SKY.dib", bitmap_file)}, false);
    EXPECT_EQ("sky", packed[0].stream);
    EXPECT_EQ("SKY-2", packed[1].stream);
}

TEST(PackPictures, cuts_long_names_to_what_a_compound_file_takes) {
    const Folder folder;
    const auto packed = pack_pictures(folder.File("d.lvx"),
                                      {folder.Write(std::string(40, 'n') + ".bmp", bitmap_file)}, false);
    EXPECT_EQ(std::string(31, 'n'), packed[0].stream);
}

TEST(PackPictures, replaces_a_document_but_no_other_file_unless_forced) {
    const Folder folder;
    const std::string sky = folder.Write("sky.bmp", bitmap_file);
    const std::string document = folder.File("d.lvx");
    EXPECT_EQ("packed", failure_of(document, {sky}));
    EXPECT_EQ("packed", failure_of(document, {sky, sky}));
    EXPECT_EQ(2u, Document(document).Parts().size());
    const std::string notes = folder.Write("notes", "precious");
    EXPECT_EQ("'" + notes + "' exists and is no document; --force replaces it", failure_of(notes, {sky}));
    EXPECT_EQ("precious", read_file(notes));
    EXPECT_EQ("packed", failure_of(notes, {sky}, true));
    EXPECT_EQ("cannot write '" + folder.File("") + "': it exists and is not a file",
              failure_of(folder.File(""), {sky}, true));
}

TEST(PackPictures, tells_the_picture_and_the_cause_and_leaves_nothing) {
    const Folder folder;
    const std::string sky = folder.Write("sky.bmp", bitmap_file);
    const std::string text = folder.Write("text.txt", "hello");
    const std::string empty = folder.Write("empty.bmp", "");
    // A header that claims far more than any file of that length holds.
    const std::string absurd = folder.Write(
        "absurd.bmp", bytes_of("'BM' 46000000 0000 0000 36000000 28000000 ffffff7f ffffff7f 0100 2000") +
                          std::string(24, '\0'));
    const std::string document = folder.File("d.lvx");
    EXPECT_EQ(0u, failure_of(document, {sky, folder.File("none.bmp")})
                      .find("cannot open '" + folder.File("none.bmp") + "': "));
    EXPECT_EQ("cannot read the picture '" + text + "': it is neither a bitmap nor a JPEG file",
              failure_of(document, {sky, text}));
    EXPECT_EQ("cannot read the picture '" + empty + "': it is neither a bitmap nor a JPEG file",
              failure_of(document, {sky, empty}));
    EXPECT_EQ("cannot read the picture '" + absurd + "': Error", failure_of(document, {sky, absurd}));
    EXPECT_THAT(folder.Names(), ElementsAre("absurd.bmp", "empty.bmp", "sky.bmp", "text.txt"));
    EXPECT_EQ(0u, failure_of(folder.File("no/folder/d.lvx"), {sky})
                      .find("cannot write '" + folder.File("no/folder/d.lvx") + "': "));
}

TEST(PackPictures, moves_the_bar_for_what_is_written_and_for_what_is_read_back) {
    const Folder folder;
    const std::string sky = folder.Write("sky.bmp", bitmap_file);
    const std::string sea = folder.Write("sea.bmp", bitmap_file);
    EXPECT_EQ(4 * bitmap_file.size(), packing_steps({sky, sea}));
    EXPECT_EQ(0u, packing_steps({folder.File("none")}));
    // Every look at the clock finds a second more, so that each step is drawn.
    std::chrono::milliseconds now{0};
    StringOutput terminal;
    {
        ProgressBar bar(terminal, true, packing_steps({sky, sea}),
                        [&now] { return now += std::chrono::seconds(1); });
        pack_pictures(folder.File("d.lvx"), {sky, sea}, false, &bar);
    }
    const std::string text = terminal.Text();
    std::size_t place = 0;
    for (const char* share : {" 25%", " 50%", " 75%", "100%"}) {
        place = text.find(share, place);
        EXPECT_NE(std::string::npos, place) << share;
    }
}

TEST(PackPictures, takes_real_photographs) {
    const Folder folder;
    const std::filesystem::path shared = lvx_test::shared_data();
    if (!lvx_test::has_shared_data("jpeg") || !lvx_test::has_shared_data("bmp")) {
        return;
    }
    const std::string jpegs = (shared / "jpeg").string();
    const std::string bitmaps = (shared / "bmp").string();
    for (const std::string& file : {jpegs + "/testorig.jpg", jpegs + "/nature2.jpg",
                                    bitmaps + "/vgl_6434_0018a.bmp", bitmaps + "/pal8v5.bmp"}) {
        const auto packed = pack_pictures(folder.File("d.lvx"), {file}, false);
        const DIBitmap picture(file, DIBitmap::AnyFormat);
        EXPECT_EQ(picture.GetWidth(), packed[0].width) << file;
        EXPECT_EQ(0, run({"check", folder.File("d.lvx")}).status) << run({"check", folder.File("d.lvx")}).out;
    }
}

TEST(CheckPicture, looks_at_the_first_bytes_only) {
    const Folder folder;
    EXPECT_NO_THROW(check_picture(folder.Write("a", "BM")));
    EXPECT_NO_THROW(check_picture(folder.Write("b", "\xff\xd8\xff\xe0")));
    EXPECT_THROW(check_picture(folder.Write("c", "\xff\xd8")), Failure);
    EXPECT_THROW(check_picture(folder.File("")), Failure);
}
