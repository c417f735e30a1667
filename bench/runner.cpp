#include "bench/runner.h"

#include <algorithm>
#include <cstdlib>
#include <stdexcept>

#include "bench/machine.h"
#include "bench/statistics.h"

namespace lvx_bench {
namespace {

void call(const std::function<void()>& step) {
    if (step) {
        step();
    }
}

struct Sample {
    double elapsed;
    // Whether something else had the core, or the disk, for a part of the time.
    bool disturbed;
};

// Joins what the run before has freed, as freeing a large block does: no run is to find the gaps of its
// forerunner.
void settle_heap() {
    constexpr std::size_t large = 128 * 1024;
    void* volatile block = std::malloc(large);
    std::free(block);
}

Sample take_sample(const Contender& contender) {
    call(contender.prepare);
    settle_heap();
    const double cpu_start = processor_time();
    const double start = elapsed_time();
    contender.run();
    const double elapsed = elapsed_time() - start;
    const double cpu = processor_time() - cpu_start;
    call(contender.release);
    constexpr double tolerated = 1.05;
    return {elapsed, elapsed > cpu * tolerated};
}

// On a machine with other work a disturbed sample is taken again, as far as that is of use.
double take_quiet_sample(const Contender& contender) {
    constexpr int attempts = 5;
    Sample best = take_sample(contender);
    for (int attempt = 1; best.disturbed && attempt < attempts; ++attempt) {
        const Sample next = take_sample(contender);
        if (!next.disturbed || next.elapsed < best.elapsed) {
            best = next;
        }
    }
    return best.elapsed;
}

// The round that is not counted: it warms the caches and shows that all contenders do the same work.
void compare_fingerprints(const Benchmark& benchmark) {
    std::uint64_t expected = 0;
    for (const Contender& contender : benchmark.contenders) {
        call(contender.prepare);
        contender.run();
        const std::uint64_t found = contender.fingerprint();
        call(contender.release);
        if (&contender == &benchmark.contenders.front()) {
            expected = found;
        } else if (found != expected) {
            throw std::runtime_error(benchmark.name + ": " + contender.name + " has another result than " +
                                     benchmark.contenders.front().name);
        }
    }
}

Result compare(const Benchmark& benchmark, const std::string& peer, const std::vector<double>& ours,
               const std::vector<double>& theirs) {
    Result result{benchmark.name, benchmark.unit, peer, 0, 0, 0, 0, 0};
    const std::vector<double> by_round = ratios(ours, theirs);
    result.ns = median(ours) / benchmark.units;
    result.peer_ns = median(theirs) / benchmark.units;
    result.ratio = median(by_round);
    result.least = *std::min_element(by_round.begin(), by_round.end());
    result.greatest = *std::max_element(by_round.begin(), by_round.end());
    return result;
}

}  // namespace

std::vector<Result> measure(const Benchmark& benchmark, int rounds) {
    keep_heap();
    compare_fingerprints(benchmark);
    std::vector<std::vector<double>> samples(benchmark.contenders.size());
    for (int round = 0; round < rounds; ++round) {
        for (std::size_t i = 0; i < samples.size(); ++i) {
            samples[i].push_back(take_quiet_sample(benchmark.contenders[i]));
        }
    }
    std::vector<Result> results;
    for (std::size_t i = 1; i < samples.size(); ++i) {
        results.push_back(compare(benchmark, benchmark.contenders[i].name, samples[0], samples[i]));
    }
    return results;
}

}  // namespace lvx_bench
