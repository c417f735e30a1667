// bench/runner.h
//
// Measures a piece of work beside the same work done by others, in alternation: each round runs ours, then
// each peer once, so that what the machine does meanwhile meets all of them alike. What is told is the ratio
// within a round, and the median of those.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace lvx_bench {

/// One way to do the work. Only `run` is timed.
struct Contender {
    /// "lvx", or the peer's fixed name.
    std::string name;
    /// Before each run: fresh files, streams set to their start. May be empty.
    std::function<void()> prepare;
    std::function<void()> run;
    /// After the first run: a number made from all that the work has produced, equal for all contenders.
    std::function<std::uint64_t()> fingerprint;
    /// After each run: deletes what the run made. May be empty.
    std::function<void()> release;
};

struct Benchmark {
    std::string name;
    /// What the nanoseconds are told for: "object", "byte", "pixel".
    std::string unit;
    double units = 1;
    /// Ours first.
    std::vector<Contender> contenders;
};

/// A benchmark that makes its inputs only when it is asked for.
struct Entry {
    std::string name;
    std::function<Benchmark()> make;
};

/// Ours beside one peer.
struct Result {
    std::string name;
    std::string unit;
    std::string peer;
    /// Median nanoseconds per unit.
    double ns = 0;
    double peer_ns = 0;
    /// Median over the rounds of ours divided by the peer's, and the least and the greatest of them.
    double ratio = 0;
    double least = 0;
    double greatest = 0;
};

/// Runs `rounds` rounds behind one that is not counted. Throws std::runtime_error if a contender's first run
/// gives another fingerprint than ours.
std::vector<Result> measure(const Benchmark& benchmark, int rounds);

}  // namespace lvx_bench
