// bench/statistics.h
//
// What is told of a series of samples.
#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace lvx_bench {

/// The middle sample, or the mean of the two in the middle. Requires: at least one sample.
inline double median(std::vector<double> samples) {
    std::sort(samples.begin(), samples.end());
    const std::size_t middle = samples.size() / 2;
    return samples.size() % 2 != 0 ? samples[middle] : (samples[middle - 1] + samples[middle]) / 2;
}

/// The quotients of the samples of the same round. Requires: as many of one as of the other.
inline std::vector<double> ratios(const std::vector<double>& ours, const std::vector<double>& theirs) {
    std::vector<double> result(ours.size());
    std::transform(ours.begin(), ours.end(), theirs.begin(), result.begin(),
                   [](double our, double their) { return our / their; });
    return result;
}

}  // namespace lvx_bench
