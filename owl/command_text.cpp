#include "owl/command_text.h"

#include "owl/module.h"

namespace owl {

namespace {

std::string WholeText(const TModule* module, UINT command) {
    return module != nullptr ? module->LoadString(command) : std::string();
}

}  // namespace

std::string HintText(const TModule* module, UINT command) {
    const std::string text = WholeText(module, command);
    return text.substr(0, text.find('\n'));
}

std::string TipText(const TModule* module, UINT command) {
    const std::string text = WholeText(module, command);
    const std::size_t end = text.find('\n');
    return end == std::string::npos ? std::string() : text.substr(end + 1);
}

}  // namespace owl
