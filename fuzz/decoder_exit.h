// The JPEG decoder ends the process on damage, by exit. In a program with this file its exit throws instead,
// so that the fuzzer can see what was left behind.
#pragma once

namespace lvx_fuzz {

/// Thrown where the decoder would have ended the process.
struct DecoderExit {
    int status;
};

/// While one of these lives, exit throws DecoderExit.
class ExitThrows {
public:
    ExitThrows();
    ExitThrows(const ExitThrows&) = delete;
    ExitThrows& operator=(const ExitThrows&) = delete;
    ~ExitThrows();
};

}  // namespace lvx_fuzz
