// A token table, a stream over a text, and operations on both: the fuzzer chooses all of it. A second coding
// of the rules plays the same and has to tell the same: kinds, texts, places, states, answers.
//
//     byte 0      length of the program, then the program, see tests/text/token_program.h
//     the rest    the text
#include <cstddef>
#include <cstdint>
#include <string>

#include "check.h"
#include "input.h"
#include "text/token_program.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    lvx_fuzz::Input input(data, size);
    const std::string_view program = input.Short(255);
    const std::string text(input.Rest());
    lvx_fuzz::require(
        lvx_test::LibraryPlayer::Play(program, text) == lvx_test::OraclePlayer::Play(program, text),
        "both codings tell the same");
    return 0;
}
