// Why a document cannot be read or written, in words for the user.
#pragma once

#include "lvx/text/error.h"

namespace sketch {

class DocumentError : public lvx::runtime_error {
public:
    using lvx::runtime_error::runtime_error;
};

}  // namespace sketch
