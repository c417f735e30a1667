// What the programs behind docs/gallery share. Each has named scenes, of which ./dev gallery takes pictures:
//
//     program           lists its scenes, a line each: the name, a tab, what the picture shows
//     program SCENE     shows it; when it stands, prints "ready LEFT TOP RIGHT BOTTOM", which part of the
//                       screen to look at, and ends as soon as a line or the end comes in
//
// A scene is a function that shows windows as any program would, and has one of them posed. One whose windows
// are this program's asks for that beforehand, by PoseWhenInFront, and handles messages until the program
// ends; one that drives another program calls Pose and cleans up behind it.
#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>

#include "owl/geometry.h"

namespace gallery {

struct Scene {
    /// Of the scene, and of its picture's file.
    const char* name;
    /// What the gallery's page says of the picture.
    const char* caption;
    void (*show)();
};

/// What `main` of such a program does. 0 if the scene was looked at, 1 if it did not come to stand, 2 for a
/// wrong call.
int Run(int argc, char** argv, std::initializer_list<Scene> scenes);

/// Prints which part of the screen to look at, and waits until that was done.
void Pose(const owl::TRect& place);

/// Poses the window of that title as soon as it is in front, then ends the program: what shows it, such as a
/// message box, need not know how. Returns at once.
void PoseWhenInFront(const char* title);

/// The place of a window on the screen.
owl::TRect PlaceOf(HWND window);

}  // namespace gallery
