// What can be set of a figure in a dialog: values taken out of it and put back.
#pragma once

#include <string>

#include "lvx/drawing/my_font.h"
#include "owl/geometry.h"
#include "sketch/model/figure.h"
#include "sketch/model/look.h"

namespace sketch {

struct Properties {
    /// False for the shapes to come, which lie nowhere yet.
    bool hasPlace = false;
    owl::TRect place;
    /// Whether it may be made larger or smaller by numbers.
    bool canResize = false;

    bool hasLook = false;
    Look look;

    bool hasFont = false;
    myFont font;

    bool isPicture = false;
    std::string name;
    owl::TSize size;
    /// To the left, with two places behind the point.
    double degrees = 0;
};

Properties PropertiesOf(const Figure& figure);

/// Requires: `properties` come from a figure of that kind. False if a part was not possible, such as a place
/// where no figure may be; the rest is done.
bool Apply(const Properties& properties, Figure& figure);

}  // namespace sketch
