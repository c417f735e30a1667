#include "sketch/model/storage_error.h"

namespace sketch {
namespace {

struct Cause {
    const char* code;
    const char* text;
};

constexpr Cause causes[] = {
    {"80030002", "There is no such file."},
    {"80030003", "There is no such folder."},
    {"80030005", "The file is not to be had: it is protected."},
    {"80030020", "Another program has it open."},
    {"80030021", "Another program has it open."},
    {"80030050", "This is no document."},
    {"80030070", "The disk is full."},
    {"800300fb", "This is no document, or a damaged one."},
    {"80030109", "This is a damaged document."},
};

}  // namespace

std::string StorageErrorText(const std::string& error) {
    for (const Cause& cause : causes) {
        if (error.ends_with(cause.code)) {
            return std::string(cause.text) + " (" + error + ")";
        }
    }
    return "The system refuses it. (" + error + ")";
}

}  // namespace sketch
