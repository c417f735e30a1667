#include "owl/condemned.h"

#include <windows.h>

#include <algorithm>
#include <vector>

#include "owl/window.h"

namespace owl {

namespace {

constexpr UINT milliseconds_of_patience = 50;

thread_local std::vector<TWindow*> condemned;
thread_local int loops = 0;
thread_local int functions = 0;
thread_local UINT_PTR timer = 0;

void StopTimer() {
    if (timer != 0)
        ::KillTimer(nullptr, timer);
    timer = 0;
}

// A destructor may condemn others or delete them.
void DeleteAll() {
    while (!condemned.empty())
        delete condemned.back();
    StopTimer();
}

void CALLBACK OnTimer(HWND, UINT, UINT_PTR, DWORD) {
    if (loops > 0)
        StopTimer();
    else if (functions == 0)
        DeleteAll();
}

// A loop of ours sees to it itself.
void StartTimerWithoutLoop() {
    if (loops == 0 && timer == 0 && !condemned.empty())
        timer = ::SetTimer(nullptr, 0, milliseconds_of_patience, &OnTimer);
}

}  // namespace

void Condemn(TWindow* window) {
    if (std::find(condemned.begin(), condemned.end(), window) == condemned.end())
        condemned.push_back(window);
    StartTimerWithoutLoop();
}

void Absolve(const TWindow* window) {
    std::erase(condemned, window);
}

FunctionScope::FunctionScope() {
    ++functions;
}

FunctionScope::~FunctionScope() {
    --functions;
}

LoopScope::LoopScope() {
    ++loops;
}

LoopScope::~LoopScope() {
    DeleteCondemned();
    --loops;
    StartTimerWithoutLoop();
}

void LoopScope::DeleteCondemned() const {
    if (loops == 1 && functions == 0)
        DeleteAll();
}

}  // namespace owl
