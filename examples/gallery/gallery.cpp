#include "gallery.h"

#include <exception>
#include <iostream>
#include <stdexcept>
#include <thread>

#include "support/user.h"

namespace gallery {

namespace {

bool was_looked_at = false;

// Where no scene is: what lies below the pointer may be drawn differently.
void PutPointerAway() {
    ::SetCursorPos(::GetSystemMetrics(SM_CXSCREEN) - 1, ::GetSystemMetrics(SM_CYSCREEN) - 1);
}

void List(std::initializer_list<Scene> scenes) {
    for (const Scene& scene : scenes)
        std::cout << scene.name << '\t' << scene.caption << '\n';
}

void TellFailure(const std::string& reason) {
    std::cerr << "the scene does not stand: " << reason << std::endl;
}

int Show(const Scene& scene) {
    PutPointerAway();
    try {
        scene.show();
        if (was_looked_at)
            return 0;
        TellFailure("it ended before it was looked at");
    } catch (const std::exception& error) {
        TellFailure(error.what());
    }
    return 1;
}

int PoseInFront(const std::string& title) {
    const HWND window = user::WaitForShown(nullptr, title.c_str());
    if (window == nullptr || !user::WaitUntilInFront(window)) {
        TellFailure("no window '" + title + "' in front");
        return 1;
    }
    Pose(PlaceOf(window));
    return 0;
}

}  // namespace

int Run(int argc, char** argv, std::initializer_list<Scene> scenes) {
    if (argc == 1) {
        List(scenes);
        return 0;
    }
    for (const Scene& scene : scenes) {
        if (argc == 2 && scene.name == std::string(argv[1]))
            return Show(scene);
    }
    std::cerr << "usage: " << argv[0] << " [SCENE]\n";
    return 2;
}

void Pose(const owl::TRect& place) {
    std::cout << "ready " << place.left << ' ' << place.top << ' ' << place.right << ' ' << place.bottom
              << std::endl;
    std::string line;
    std::getline(std::cin, line);
    was_looked_at = true;
}

void PoseWhenInFront(const char* title) {
    std::thread([title = std::string(title)] {
        const int status = PoseInFront(title);
        // The windows are still up, and the thread that handles them waits for messages.
        ::TerminateProcess(::GetCurrentProcess(), static_cast<UINT>(status));
    }).detach();
}

owl::TRect PlaceOf(HWND window) {
    owl::TRect place;
    ::GetWindowRect(window, &place);
    return place;
}

}  // namespace gallery
