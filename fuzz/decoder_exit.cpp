#include "decoder_exit.h"

#include <dlfcn.h>

namespace {

bool exit_throws = false;

}  // namespace

namespace lvx_fuzz {

ExitThrows::ExitThrows() {
    exit_throws = true;
}

ExitThrows::~ExitThrows() {
    exit_throws = false;
}

}  // namespace lvx_fuzz

// Under another name here, because the C library declares its own as one that never throws. The decoder's
// frames can be unwound: on this processor C code has the tables too.
extern "C" [[noreturn, gnu::visibility("default")]] void throwing_exit(int status) __asm__("exit");

void throwing_exit(int status) {
    if (exit_throws) {
        throw lvx_fuzz::DecoderExit{status};
    }
    reinterpret_cast<void (*)(int)>(dlsym(RTLD_NEXT, "exit"))(status);
    __builtin_unreachable();
}
