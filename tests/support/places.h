// Where test data lies. One unit knows the paths of this build, so that every other unit of every test
// compiles to the same object wherever the tree stands, and a compiler cache serves all work trees.
#pragma once

#include <string>

namespace lvx_test {

/// tests/data of this tree.
std::string own_data();

/// Where the shared files lie when the environment does not name the place: beside the tree.
std::string usual_shared_data();

}  // namespace lvx_test
