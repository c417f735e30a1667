// owl/printer_blocks.h
//
// The blocks of global memory in which the system's print dialog takes and gives the names and the settings
// of a printer. Private to the framework.
#pragma once

#include <windows.h>

#include <cstddef>
#include <string>
#include <vector>

namespace owl {

/// A printer as DEVNAMES holds it.
struct PrinterNames {
    std::string driver;
    std::string device;
    std::string output;
};

/// The bytes of a DEVNAMES. Throws TXOwl if the names are too long for one.
std::vector<std::byte> DevNamesBytes(const PrinterNames& names);

/// The names in the bytes of a DEVNAMES; empty ones for what does not lie inside.
PrinterNames NamesInDevNames(const std::vector<std::byte>& bytes);

/// The bytes of `mode` with what the driver keeps behind it; none of null.
std::vector<std::byte> DevModeBytes(const DEVMODEA* mode);

/// `bytes` of a DEVMODE without what is not its; none if they are too few for what they claim to be.
std::vector<std::byte> WholeDevMode(std::vector<std::byte> bytes);

/// Copies `bytes` to a block of global memory; null for none. Throws std::bad_alloc.
HGLOBAL MakeBlock(const std::vector<std::byte>& bytes);

/// The bytes of a block; none of null.
std::vector<std::byte> BlockBytes(HGLOBAL block);

}  // namespace owl
