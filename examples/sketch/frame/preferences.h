// What the user likes to begin with, kept from run to run in the settings file of the program.
#pragma once

#include "lvx/drawing/my_font.h"
#include "sketch/model/look.h"

namespace LVXUtilities {
class Settings;
}

namespace sketch {

struct Preferences {
    static constexpr int widest_step = 100;

    /// Of the shapes and texts to come.
    Look look;
    myFont font{"Arial", 18, false, false, false, false};
    /// How far an arrow key moves a figure, in pixels.
    int step = 8;
};

/// What stands in the file; what is missing there, or cannot be, is as above.
Preferences LoadPreferences(LVXUtilities::Settings& settings);
void SavePreferences(LVXUtilities::Settings& settings, const Preferences& preferences);

}  // namespace sketch
