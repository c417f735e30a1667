// The text of a call. A second coding of the rules has to take it apart in the same way.
#include <cstddef>
#include <cstdint>
#include <string>

#include "check.h"
#include "text/function_oracle.h"

namespace {

using lvx_fuzz::require;

void check_call(const FunctionParser& call, const std::string& text) {
    require(!call.FunctionName().empty(), "a call has a name");
    require(call.ArgCount() >= 0, "arguments can be counted");
    const auto count = static_cast<unsigned int>(call.ArgCount());
    const FunctionParser copy(call);
    FunctionParser assigned("other(1)");
    assigned = copy;
    require(assigned.FunctionName() == call.FunctionName() && assigned.ArgCount() == call.ArgCount(),
            "a copy is equal");
    for (unsigned int i = 0; i < count; ++i) {
        require(text.find(call.Argument(i)) != std::string::npos, "an argument is what stands in the text");
        require(assigned.Argument(i) == call.Argument(i), "a copy has the arguments");
    }
    require(call.Argument(count).empty(), "behind the last argument there is none");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    require(lvx_test::parsed(text) == lvx_test::oracle_parsed(text), "both codings take it apart alike");
    try {
        check_call(FunctionParser(text), text);
    } catch (const FunctionParser::Error&) {
        // Refused texts leave nothing.
    }
    return 0;
}
