// What the example host's dialogs can set of figures, without the dialogs.
#include <gtest/gtest.h>

#include "sketch/model/box.h"
#include "sketch/model/polygon.h"
#include "sketch/model/properties.h"
#include "sketch/model/text.h"
#include "support/sketch_figures.h"

namespace {

using namespace sketch_test;
using owl::TPoint;
using owl::TRect;
using sketch::Properties;

}  // namespace

TEST(SketchPropertiesOfFigures, are_place_size_and_look_of_a_box) {
    const sketch::Rectangle box(TRect(10, 20, 40, 60), SomeLook());
    const Properties properties = sketch::PropertiesOf(box);
    EXPECT_TRUE(properties.hasPlace && properties.canResize && properties.hasLook);
    EXPECT_FALSE(properties.hasFont || properties.isPicture);
    EXPECT_EQ(TRect(10, 20, 40, 60), properties.place);
    EXPECT_EQ(SomeLook(), properties.look);
}

TEST(SketchPropertiesOfFigures, move_and_size_a_box) {
    sketch::Ellipse box(TRect(10, 20, 40, 60), sketch::Look{});
    Properties properties = sketch::PropertiesOf(box);
    properties.place = TRect(100, 200, 107, 209);
    properties.look = SomeLook();
    EXPECT_TRUE(sketch::Apply(properties, box));
    EXPECT_EQ(TRect(100, 200, 107, 209), box.Bounds());
    EXPECT_EQ(SomeLook(), static_cast<sketch::Figure&>(box).LookOf()[0]);
}

TEST(SketchPropertiesOfFigures, tell_when_a_place_cannot_be) {
    sketch::Rectangle box(TRect(10, 20, 40, 60), sketch::Look{});
    Properties properties = sketch::PropertiesOf(box);
    properties.place = TRect(TPoint(999990, 20), owl::TSize(30, 40));
    EXPECT_FALSE(sketch::Apply(properties, box));
    EXPECT_EQ(TPoint(10, 20), box.Bounds().TopLeft());
}

TEST(SketchPropertiesOfFigures, change_the_font_of_a_text_where_it_is) {
    sketch::Text text("words", SomeFont(), sketch::Look{}, TPoint(7, 8));
    Properties properties = sketch::PropertiesOf(text);
    EXPECT_TRUE(properties.hasFont && properties.hasLook);
    EXPECT_FALSE(properties.canResize);
    properties.font.Size(20);
    EXPECT_TRUE(sketch::Apply(properties, text));
    EXPECT_EQ(20, text.Font().Size());
    EXPECT_EQ(TPoint(7, 8), text.Bounds().TopLeft());
    EXPECT_EQ("words", text.Words());
}

TEST(SketchPropertiesOfFigures, turn_rename_and_move_a_picture) {
    sketch::Picture picture = PlainPicture();
    Properties properties = sketch::PropertiesOf(picture);
    EXPECT_TRUE(properties.isPicture && properties.hasPlace);
    EXPECT_FALSE(properties.hasLook || properties.canResize);
    EXPECT_EQ("plain", properties.name);
    EXPECT_EQ(owl::TSize(100, 50), properties.size);
    properties.name = "other";
    properties.degrees = 90;
    properties.place.Offset(3, 4);
    EXPECT_TRUE(sketch::Apply(properties, picture));
    EXPECT_EQ("other", picture.Name());
    EXPECT_DOUBLE_EQ(90, sketch::PropertiesOf(picture).degrees);
    // Its middle was at (60, 45).
    EXPECT_DOUBLE_EQ(63, picture.Frame().middle.x);
    EXPECT_DOUBLE_EQ(49, picture.Frame().middle.y);
}

TEST(SketchPropertiesOfFigures, leave_an_angle_alone_that_was_not_changed) {
    sketch::Picture picture = PlainPicture();
    picture.Turn(0.123456789);
    const Properties properties = sketch::PropertiesOf(picture);
    EXPECT_EQ(7.07, properties.degrees);
    EXPECT_TRUE(sketch::Apply(properties, picture));
    EXPECT_DOUBLE_EQ(0.123456789, picture.Frame().angle);
}

TEST(SketchPropertiesOfFigures, move_a_polygon_as_it_is) {
    sketch::Polygon polygon({{0, 0}, {10, 0}, {5, 8}}, sketch::Look{});
    Properties properties = sketch::PropertiesOf(polygon);
    EXPECT_FALSE(properties.canResize);
    properties.place.Offset(-5, 6);
    EXPECT_TRUE(sketch::Apply(properties, polygon));
    EXPECT_EQ((std::vector<TPoint>{{-5, 6}, {5, 6}, {0, 14}}), polygon.Outline());
}
