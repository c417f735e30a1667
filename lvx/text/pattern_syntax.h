// lvx/text/pattern_syntax.h
//
// A pattern as a tree, for those that need no more than bytes, sequences, alternatives and repetitions; with
// the meaning that TRegexp gives them. Whether repetitions are greedy is not kept: it makes no difference to
// the longest match.
#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

#include "lvx/text/byte_set.h"

namespace lvx::text {

struct PatternNode {
    enum Kind { Bytes, Sequence, Choice, Repeat };
    static constexpr unsigned int unlimited = std::numeric_limits<unsigned int>::max();

    Kind kind = Sequence;
    /// Of Bytes: one of these.
    ByteSet bytes;
    /// Places of the parts in the tree: any number in a Sequence (none matches the empty text), one or more
    /// in a Choice, one in a Repeat.
    std::vector<std::size_t> parts;
    /// Of Repeat.
    unsigned int least = 0;
    unsigned int most = 0;
};

struct PatternTree {
    std::vector<PatternNode> nodes;
    std::size_t root = 0;
};

/// The tree of a pattern without the anchors in front of it, or nothing if the pattern has anything else in
/// it: word boundaries, further anchors, flags, Unicode groups, nests of more than 100 levels. Such a pattern
/// may be a good one, and one that has a tree may be bad: TRegexp alone decides.
std::optional<PatternTree> parse_pattern(std::string_view pattern);

}  // namespace lvx::text
