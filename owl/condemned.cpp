#include "owl/condemned.h"

#include <algorithm>
#include <vector>

#include "owl/window.h"

namespace owl {

namespace {

thread_local std::vector<TWindow*> condemned;
thread_local int loops = 0;

}  // namespace

void Condemn(TWindow* window) {
    if (std::find(condemned.begin(), condemned.end(), window) == condemned.end())
        condemned.push_back(window);
}

void Absolve(const TWindow* window) {
    std::erase(condemned, window);
}

LoopScope::LoopScope() {
    ++loops;
}

LoopScope::~LoopScope() {
    --loops;
}

// A destructor may condemn others or delete them.
void LoopScope::DeleteCondemned() const {
    while (loops == 1 && !condemned.empty())
        delete condemned.back();
}

}  // namespace owl
