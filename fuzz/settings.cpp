// A settings file, read and written: in memory against a second reader, and through the calls on a file.
//
//     byte 0      bit 0: through a file too   bits 1 to 7: the size of the buffer there
//     then        section, key, default and value, each with its length in a byte in front
//     the rest    the file
#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "check.h"
#include "input.h"
#include "lvx/platform/posix/profile_encoding.h"
#include "lvx/platform/posix/profile_text.h"
#include "lvx/platform/profile.h"
#include "platform/slow_profile.h"
#include "scratch_file.h"

namespace {

using namespace lvx_fuzz;
using namespace lvx::platform;
using lvx_test::SlowProfile;

// Texts reach the calls up to their NUL.
std::string c_text(std::string_view text) {
    return std::string(text.substr(0, text.find('\0')));
}

struct Request {
    std::string section;
    std::string key;
    std::string default_value;
    std::string value;
};

std::string without_quotes(const std::string& text) {
    const bool is_quoted = text.size() > 1 && text.front() == text.back() &&
                           std::string_view("\"'").find(text.front()) != std::string_view::npos;
    return is_quoted ? text.substr(1, text.size() - 2) : text;
}

// What reading gives, by the second reader.
std::string expected_text(const SlowProfile& slow, const Request& request) {
    if (const auto value = slow.Value(request.section, request.key)) {
        return without_quotes(*value);
    }
    const std::size_t end = request.default_value.find_last_not_of(' ');
    const std::size_t least = request.default_value.empty() ? 0 : 1;
    return without_quotes(
        request.default_value.substr(0, std::max(least, end == std::string::npos ? 0 : end + 1)));
}

void check_reading(std::string_view text, const SlowProfile& slow, const Request& request) {
    const auto value = find_profile_value(text, request.section, request.key);
    const auto expected = slow.Value(request.section, request.key);
    require(value.has_value() == expected.has_value(), "both readers find a value, or none");
    require(!value || *value == *expected, "both readers find the same value");
}

bool begins_with_mark(std::string_view text) {
    return text.starts_with("\xEF\xBB\xBF") || text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF");
}

bool is_ascii(std::string_view text) {
    return std::all_of(text.begin(), text.end(),
                       [](char character) { return static_cast<unsigned char>(character) < 0x80; });
}

bool is_ascii(const Request& request) {
    return is_ascii(request.section) && is_ascii(request.key) && is_ascii(request.value);
}

// Whether a file of that encoding can hold `text`, a file's text with the request written into it.
bool check_bytes(ProfileEncoding encoding, std::string_view text, const Request& request) {
    const std::string bytes = profile_bytes(encoding, text);
    const ProfileText again(bytes);
    const bool is_kept = again.Encoding() == encoding && again.Text() == text;
    switch (encoding) {
        case ProfileEncoding::Bytes:
            require(is_kept != begins_with_mark(text), "bytes stay unless they begin with a mark");
            break;
        case ProfileEncoding::Utf8:
            require(is_kept, "UTF-8 keeps all bytes");
            break;
        default:
            require(again.Encoding() == encoding, "the encoding stays");
            require(is_kept || !is_ascii(request), "UTF-16 keeps what was in it, and ASCII");
            require(profile_bytes(encoding, again.Text()) == bytes, "bytes come back from their text");
    }
    return is_kept;
}

// What the text becomes.
std::optional<std::string> check_writing(std::string_view text, const Request& request) {
    const auto after = set_profile_value(text, request.section, request.key, request.value);
    if (!after) {
        require(!lvx_test::is_writable(request.section, request.key, request.value),
                "what can be read back is written");
        return after;
    }
    require(lvx_test::what_is_wrong(text, *after, request.section, request.key, request.value).empty(),
            "what was written is read back, and every other line stays");
    require(set_profile_value(*after, request.section, request.key, request.value) == after,
            "a second write changes nothing");
    return after;
}

void check_file_reading(const std::string& file, const Request& request, const std::string& expected,
                        DWORD size) {
    std::vector<char> buffer(size + 1, '#');
    const DWORD count =
        GetPrivateProfileStringA(request.section.c_str(), request.key.c_str(), request.default_value.c_str(),
                                 buffer.data(), size, file.c_str());
    require(buffer[size] == '#', "nothing behind the buffer is touched");
    if (size == 0) {
        require(count == 0, "nothing fits no buffer");
        return;
    }
    require(std::string_view(buffer.data(), count) == std::string_view(expected).substr(0, size - 1),
            "a file gives its text, cut to the buffer");
    require(buffer[count] == '\0', "a text has its NUL");
}

void check_file(std::string_view bytes, const SlowProfile& slow, const Request& request,
                const std::optional<std::string>& after, ProfileEncoding encoding, DWORD size) {
    const ScratchFile file(bytes);
    check_file_reading(file.Name(), request, expected_text(slow, request), size);
    const std::string* const text = after ? &*after : nullptr;
    const UINT number =
        GetPrivateProfileIntA(request.section.c_str(), request.key.c_str(), 7, file.Name().c_str());
    const auto value = slow.Value(request.section, request.key);
    if (!value || without_quotes(*value).empty()) {
        require(number == 7, "a missing number is the default");
    } else {
        require(number == profile_number(std::string_view(without_quotes(*value)).substr(0, 29)),
                "a number is that of its text");
    }
    const BOOL written = WritePrivateProfileStringA(request.section.c_str(), request.key.c_str(),
                                                    request.value.c_str(), file.Name().c_str());
    require((written != 0) == (text != nullptr), "a write tells whether it was done");
    const bool is_changed = text != nullptr && *text != ProfileText(bytes).Text();
    require(file.Content() == (is_changed ? profile_bytes(encoding, *text) : std::string(bytes)),
            "a file has the bytes of its text");
    const std::string content = file.Content();
    require(text == nullptr || ProfileText(content).Text() == *text, "what was written is in the file");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    Input input(data, size);
    const unsigned options = input.Byte();
    Request request;
    for (std::string* const text : {&request.section, &request.key, &request.default_value, &request.value}) {
        *text = c_text(input.Short(24));
    }
    const std::string_view bytes = input.Rest();
    const ProfileText text(bytes);
    const SlowProfile slow(text.Text());
    check_reading(text.Text(), slow, request);
    require(check_bytes(text.Encoding(), text.Text(), {}), "a file can hold its own text");
    auto after = check_writing(text.Text(), request);
    if (after && !check_bytes(text.Encoding(), *after, request)) {
        after.reset();
    }
    if ((options & 1) != 0) {
        check_file(bytes, slow, request, after, text.Encoding(), options >> 1);
    }
    return 0;
}
