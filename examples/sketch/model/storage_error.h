// The cause behind a failure of a compound file, for the user.
#pragma once

#include <string>

namespace sketch {

/// `error` is what LVXUtilities::ObjectStoreStorage tells: "HRESULT = " and the code. The result ends with
/// it, in brackets.
std::string StorageErrorText(const std::string& error);

}  // namespace sketch
