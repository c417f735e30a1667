// lvx/exchange/hand_over.h
//
// Giving a block to the clipboard, which owns it from then on. Private to the clipboard; Windows only.
#pragma once

#include <windows.h>

#include "lvx/exchange/owned_block.h"

namespace lvx::exchange {

/// Requires: the clipboard is open. False if there is no block or the clipboard refuses it; it is freed then.
inline bool hand_over(unsigned format, OwnedBlock block) {
    if (block.Get() == nullptr || ::SetClipboardData(format, block.Get()) == nullptr) {
        return false;
    }
    block.Release();
    return true;
}

}  // namespace lvx::exchange
