// A program that finds its window where the user left it.
//
// usage: window_place NAME [FOLDER]
//
// NAME names the settings, as a program's name would. FOLDER is where they lie, on systems that have no place
// of their own for them.
#include <iostream>
#include <string>

#include "lvx/files/settings.h"
#include "lvx/platform/profile_directory.h"

int main(int argc, char** argv) {
    if (argc < 2 || argc > 3) {
        std::cerr << "usage: window_place NAME [FOLDER]\n";
        return 2;
    }
    if (argc == 3) {
        lvx::set_profile_directory(argv[2]);
    }
    LVXUtilities::Settings settings(argv[1], false);

    const int left = settings.GetInt("Window", "Left", 100);
    const int top = settings.GetInt("Window", "Top", 80);
    const std::string title = settings.GetStr("Window", "Title", "(no title)");
    std::cout << "window at " << left << ", " << top << ": [" << title << "]\n";

    // What the user does meanwhile: the window moves to the left and gets a drawing.
    settings.WriteInt("Window", "Left", left - 150);
    settings.WriteStr("Window", "Title", "\" house \"");  // the quotes keep the blanks
    return 0;
}
