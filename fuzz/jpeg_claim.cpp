#include "jpeg_claim.h"

#include <cstdio>
#include <memory>

#include <jpeglib.h>

#include "check.h"
#include "decoder_exit.h"

namespace lvx_fuzz {
namespace {

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

class Decoder {
public:
    Decoder() {
        m_state.err = jpeg_std_error(&m_errors);
        jpeg_create_decompress(&m_state);
    }
    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;
    ~Decoder() { jpeg_destroy_decompress(&m_state); }

    JpegClaim ReadClaim(std::FILE* file) {
        jpeg_stdio_src(&m_state, file);
        jpeg_read_header(&m_state, TRUE);
        constexpr std::uint64_t more_than_any_block = 0x80000000;
        const std::uint64_t pixels = std::uint64_t{m_state.image_width} * m_state.image_height;
        return {pixels, pixels * 3 >= more_than_any_block};
    }

private:
    jpeg_error_mgr m_errors{};
    jpeg_decompress_struct m_state{};
};

}  // namespace

std::optional<JpegClaim> claim_of_jpeg(const std::string& name) {
    const std::unique_ptr<std::FILE, Closer> file(std::fopen(name.c_str(), "rb"));
    require(file != nullptr, "the file is there");
    try {
        const ExitThrows exit_throws;
        return Decoder().ReadClaim(file.get());
    } catch (const DecoderExit&) {
        return std::nullopt;
    }
}

}  // namespace lvx_fuzz
