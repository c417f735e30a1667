// The example host's documents: how they are written and read, what is refused.
#include <gtest/gtest.h>
#include <windows.h>

#include <cmath>
#include <fstream>
#include <sstream>

#include "lvx/store/object_store_storage.h"
#include "lvx/store/object_store_stream.h"
#include "sketch/model/box.h"
#include "sketch/model/document.h"
#include "sketch/model/document_file.h"
#include "sketch/model/drawing.h"
#include "sketch/model/error.h"
#include "sketch/model/picture.h"
#include "sketch/model/polygon.h"
#include "sketch/model/reading.h"
#include "sketch/model/storage_error.h"
#include "sketch/model/stream_names.h"
#include "sketch/model/text.h"
#include "support/bytes.h"
#include "support/sketch_figures.h"
#include "support/temp_folder.h"

namespace {

using namespace sketch_test;
using LVXUtilities::DIBitmap;
using owl::TPoint;
using owl::TRect;
using owl::TSize;

std::string Cause(const std::string& file) {
    try {
        sketch::LoadDocument(file);
    } catch (const sketch::DocumentError& error) {
        return error.what();
    }
    return "none";
}

// A document's stream, written by hand.
template <class Write>
std::string Damaged(const lvx_test::TempFolder& folder, const Write& write) {
    const std::string file = folder.File("damaged.lvx");
    LVXUtilities::ObjectStoreStorage store;
    std::string error;
    EXPECT_TRUE(store.OpenStorage(file, ObjectStore::ForWrite, error)) << error;
    EXPECT_TRUE(store.OpenStream("Sketch", error)) << error;
    write(store);
    store.CloseStream();
    return file;
}

void WriteBytes(ObjectStore& store, const std::string& bytes) {
    store.Write(bytes.data(), static_cast<unsigned>(bytes.size()));
}

// The beginning of a drawing that holds one figure of a class.
void BeginFigure(ObjectStore& store, const std::string& name) {
    store << 1L;
    WriteBytes(store, "Bcsketch::Drawing\r\no");
    store << 1;
    WriteBytes(store, "Bc" + name + "\r\no");
}

// What a document with a figure of each kind holds.
std::string StreamOfAllKinds() {
    auto picture = std::make_shared<sketch::Picture>(PlainBitmap(2, 2), "small", TPoint(5, 6));
    picture->Turn(0.5);
    std::ostringstream bytes;
    ObjectStoreStream store;
    store.OpenStream(&bytes);
    store << 1L
          << sketch::Drawing(
                 {std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook()),
                  std::make_shared<sketch::Ellipse>(TRect(1, 2, 3, 4), SomeLook()),
                  std::make_shared<sketch::Polygon>(std::vector<TPoint>{{1, 2}, {3, 4}, {5, 0}}, SomeLook()),
                  picture, picture->Clone(),
                  std::make_shared<sketch::Text>("a\nb", SomeFont(), SomeLook(), TPoint(7, 8))});
    store.CloseStream();
    return bytes.str();
}

}  // namespace

TEST(SketchDocument, comes_back_from_its_file_as_it_was) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("all.lvx");
    auto picture = std::make_shared<sketch::Picture>(PlainPicture());
    picture->Turn(0.5);
    picture->SkewBy(sketch::LowerRight, {20, 30});
    const auto copy = picture->Clone();
    copy->MoveBy({3, 4});
    sketch::SaveDocument(
        file,
        {std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook()),
         std::make_shared<sketch::Ellipse>(TRect(-5, -6, 7, 8), sketch::Look{}),
         std::make_shared<sketch::Polygon>(std::vector<TPoint>{{1, 2}, {3, 4}, {5, 0}}, SomeLook()), picture,
         copy, std::make_shared<sketch::Text>("two\r\nlines", SomeFont(), SomeLook(), TPoint(40, 50))});

    const sketch::LoadedDocument loaded = sketch::LoadDocument(file);
    EXPECT_TRUE(loaded.isOwn);
    ASSERT_EQ(6U, loaded.figures.size());
    EXPECT_EQ("Rectangle, 2 x 2", loaded.figures[0]->Describe());
    EXPECT_EQ(SomeLook(), *loaded.figures[0]->LookOf());
    EXPECT_EQ(TRect(-5, -6, 7, 8), loaded.figures[1]->Bounds());
    EXPECT_EQ("Ellipse, 12 x 14", loaded.figures[1]->Describe());
    EXPECT_EQ((std::vector<TPoint>{{1, 2}, {3, 4}, {5, 0}}), loaded.figures[2]->Outline());
    EXPECT_EQ(picture->Describe(), loaded.figures[3]->Describe());
    EXPECT_EQ(PlacesOf(*picture), PlacesOf(*loaded.figures[3]));
    EXPECT_EQ(PlacesOf(*copy), PlacesOf(*loaded.figures[4]));
    const auto& text = dynamic_cast<const sketch::Text&>(*loaded.figures[5]);
    EXPECT_EQ("two\nlines", text.Words());
    EXPECT_TRUE(SomeFont() == text.Font());
    EXPECT_EQ(SomeLook(), *text.LookOf());
    EXPECT_EQ(TPoint(40, 50), text.Bounds().TopLeft());
}

TEST(SketchDocument, holds_the_pixels_of_copies_once) {
    const lvx_test::TempFolder folder;
    const auto picture = std::make_shared<sketch::Picture>(PlainBitmap(200, 200), "large", TPoint());
    sketch::SaveDocument(folder.File("one.lvx"), {picture});
    sketch::SaveDocument(folder.File("two.lvx"), {picture, picture->Clone()});
    EXPECT_GT(1000U, lvx_test::read_file(folder.File("two.lvx")).size() -
                         lvx_test::read_file(folder.File("one.lvx")).size());
    EXPECT_EQ(2U, sketch::LoadDocument(folder.File("two.lvx")).figures.size());
}

TEST(SketchDocument, of_nothing_is_a_document_too) {
    const lvx_test::TempFolder folder;
    sketch::SaveDocument(folder.File("empty.lvx"), {});
    EXPECT_TRUE(sketch::LoadDocument(folder.File("empty.lvx")).figures.empty());
    EXPECT_EQ(std::vector<std::string>{"Sketch"}, sketch::StreamNames(folder.File("empty.lvx")));
}

TEST(SketchDocument, shows_the_pictures_of_one_that_was_packed) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("packed.lvx");
    LVXUtilities::ObjectStoreStorage store;
    std::string error;
    ASSERT_TRUE(store.OpenStorage(file, ObjectStore::ForWrite, error) && store.OpenStream("rose", error));
    store << 1L << *PlainBitmap(30, 40);
    store.CloseStream();

    const sketch::LoadedDocument loaded = sketch::LoadDocument(file);
    EXPECT_FALSE(loaded.isOwn);
    ASSERT_EQ(1U, loaded.figures.size());
    EXPECT_EQ("Picture \"rose\", 30 x 40", loaded.figures[0]->Describe());
    EXPECT_EQ(TRect(24, 24, 54, 64), loaded.figures[0]->Bounds());
}

TEST(SketchDocument, that_is_none_is_told_as_such) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is no such file. (HRESULT = 80030002)", Cause(folder.File("nothing.lvx")));
    std::ofstream(folder.File("text.lvx")) << "This is a text.";
    EXPECT_NE(std::string::npos, Cause(folder.File("text.lvx")).find("HRESULT = "));
}

TEST(SketchDocument, cut_off_anywhere_ends_in_an_error) {
    const lvx_test::TempFolder folder;
    const std::string whole = StreamOfAllKinds();
    for (std::size_t length = 0; length < whole.size(); ++length) {
        const std::string cut =
            Damaged(folder, [&](ObjectStore& store) { WriteBytes(store, whole.substr(0, length)); });
        EXPECT_NE("none", Cause(cut)) << length;
    }
}

// Whatever it is then: it opens, or is refused by name.
TEST(SketchDocument, with_any_byte_changed_opens_or_ends_in_an_error) {
    const lvx_test::TempFolder folder;
    const std::string whole = StreamOfAllKinds();
    int refused = 0;
    for (std::size_t place = 0; place < whole.size(); ++place) {
        std::string changed = whole;
        changed[place] = static_cast<char>(~changed[place]);
        const std::string file = Damaged(folder, [&](ObjectStore& store) { WriteBytes(store, changed); });
        refused += Cause(file) == "none" ? 0 : 1;
    }
    EXPECT_LT(100, refused);
}

TEST(SketchDocument, of_another_version_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("It was written by another version of this program (2).",
              Cause(Damaged(folder, [](ObjectStore& store) { store << 2L; })));
}

TEST(SketchDocument, with_an_unknown_class_tells_its_name) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ(
        "Class 'sketch::Spiral' is not registered with the object factory - cannot create an instance of "
        "one.",
        Cause(Damaged(folder, [](ObjectStore& store) { BeginFigure(store, "sketch::Spiral"); })));
}

TEST(SketchDocument, with_a_bitmap_for_a_figure_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is an object of the class LVXUtilities::DIBitmap where it does not belong.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  store << 1L;
                  WriteBytes(store, "Bcsketch::Drawing\r\no");
                  store << 1 << *PlainBitmap(1, 1);
              })));
}

TEST(SketchDocument, with_a_figure_for_a_bitmap_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is an object of the class sketch::Picture where it does not belong.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Picture");
                  WriteBytes(store, "BO");
                  store << 1;  // the picture itself
              })));
}

TEST(SketchDocument, with_the_drawing_in_itself_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("There is an object of the class sketch::Drawing where it does not belong.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  store << 1L;
                  WriteBytes(store, "Bcsketch::Drawing\r\no");
                  store << 1;
                  WriteBytes(store, "BO");
                  store << 0;
              })));
}

TEST(SketchReading, is_what_figures_are_read_in_and_nothing_else) {
    std::stringstream bytes;
    ObjectStoreStream store;
    store.OpenStream(static_cast<std::ostream*>(&bytes));
    store << sketch::Rectangle(TRect(1, 2, 3, 4), SomeLook());
    store.OpenStream(static_cast<std::istream*>(&bytes));
    Storable* figure = nullptr;
    EXPECT_THROW(store >> figure, sketch::DocumentError);
}

TEST(SketchDocument, with_a_figure_twice_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("A figure is there twice.", Cause(Damaged(folder, [](ObjectStore& store) {
                  const auto figure = std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook());
                  store << 1L << sketch::Drawing({figure, figure});
              })));
}

TEST(SketchDocument, with_numbers_beyond_reason_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("The number of figures is 2000000000, not from 0 to 1000000.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  store << 1L;
                  WriteBytes(store, "Bcsketch::Drawing\r\no");
                  store << 2000000000;
              })));
    EXPECT_EQ("The number of a polygon's corners is 1, not from 2 to 10000.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Polygon");
                  store << 1;
              })));
    EXPECT_EQ("The place of a figure is 1000001, not from -1000000 to 1000000.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Rectangle");
                  store << 1000001;
              })));
    EXPECT_EQ("A picture lies where none can be.", Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Picture");
                  store << *PlainBitmap(1, 1) << std::string() << std::nan("");
              })));
}

TEST(SketchDocument, with_letters_or_words_beyond_reason_is_refused) {
    const lvx_test::TempFolder folder;
    const auto cause = [&](const std::string& words, double size) {
        return Cause(Damaged(folder, [&](ObjectStore& store) {
            BeginFigure(store, "sketch::Text");
            store << 1 << 2 << words << std::string("Arial") << size << false << false << false << false;
            SomeLook().PutTo(store);
        }));
    };
    EXPECT_EQ("none", cause("fine", 1000));
    EXPECT_EQ("The letters of a text are of a size that cannot be.", cause("too large", 1000.5));
    EXPECT_EQ("The letters of a text are of a size that cannot be.", cause("none", 0));
    EXPECT_EQ("The letters of a text are of a size that cannot be.", cause("no number", std::nan("")));
    EXPECT_EQ("A text is longer than any can be.", cause(std::string(10001, 'x'), 12));
}

TEST(SketchDocument, with_a_picture_shorter_than_it_says_is_refused) {
    const lvx_test::TempFolder folder;
    EXPECT_EQ("A picture claims to be larger than what there is of it.",
              Cause(Damaged(folder, [](ObjectStore& store) {
                  BeginFigure(store, "sketch::Picture");
                  store << *BitmapOf(Header(1000, 1000, 24) + "few") << std::string() << 0.0 << 0.0 << 0.0
                        << 0 << 0 << 0;
              })));
}

TEST(SketchDocument, that_cannot_be_saved_leaves_the_file_as_it_was) {
    const lvx_test::TempFolder folder;
    const std::string file = folder.File("no-such-folder\\garden.lvx");
    EXPECT_THROW(sketch::SaveDocument(file, {}), sketch::DocumentError);

    const std::string held = folder.File("held.lvx");
    sketch::SaveDocument(held, {});
    const std::string before = lvx_test::read_file(held);
    const HANDLE open = ::CreateFileA(held.c_str(), GENERIC_READ, 0, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(INVALID_HANDLE_VALUE, open);
    EXPECT_THROW(
        sketch::SaveDocument(held, {std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook())}),
        sketch::DocumentError);
    ::CloseHandle(open);
    EXPECT_EQ(before, lvx_test::read_file(held));
    EXPECT_EQ(INVALID_FILE_ATTRIBUTES, ::GetFileAttributesA((held + ".new").c_str()));
}

TEST(SketchDocument, goes_back_and_forth_through_its_edits) {
    sketch::Document document;
    const auto figure = std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook());
    EXPECT_FALSE(document.IsChanged() || document.CanUndo() || document.CanRedo());
    document.Edit({figure});
    document.Edit({figure, figure->Clone()});
    document.Undo();
    EXPECT_EQ(1U, document.Contents().size());
    document.Undo();
    EXPECT_FALSE(document.IsChanged());
    EXPECT_FALSE(document.CanUndo());
    document.Redo();
    EXPECT_EQ(sketch::Figures{figure}, document.Contents());
    document.Edit({});
    EXPECT_FALSE(document.CanRedo());
    EXPECT_TRUE(document.IsChanged());
}

TEST(SketchDocument, is_unchanged_where_it_was_saved) {
    const lvx_test::TempFolder folder;
    sketch::Document document;
    document.Edit({std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook())});
    document.Save(folder.File("garden.lvx"));
    EXPECT_FALSE(document.IsChanged());
    EXPECT_EQ("garden.lvx", document.Title());
    document.Undo();
    EXPECT_TRUE(document.IsChanged());
    document.Redo();
    EXPECT_FALSE(document.IsChanged());
}

TEST(SketchDocument, stays_as_it_was_when_another_does_not_open) {
    const lvx_test::TempFolder folder;
    sketch::Document document;
    document.Edit({std::make_shared<sketch::Rectangle>(TRect(1, 2, 3, 4), SomeLook())});
    EXPECT_THROW(document.Open(folder.File("nothing.lvx")), sketch::DocumentError);
    EXPECT_EQ(1U, document.Contents().size());
    EXPECT_TRUE(document.CanUndo());
}
