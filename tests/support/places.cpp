#include "support/places.h"

namespace lvx_test {

std::string own_data() {
    return LVX_TEST_DATA;
}

std::string usual_shared_data() {
    return LVX_TEST_SHARED_DATA;
}

}  // namespace lvx_test
