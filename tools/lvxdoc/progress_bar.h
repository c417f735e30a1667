// tools/lvxdoc/progress_bar.h
//
// A bar for a person who waits: it comes after half a second, moves at most ten times a second, and is wiped
// away at the end.
#pragma once

#include <chrono>
#include <cstdint>
#include <functional>

#include "tools/lvxdoc/byte_source.h"
#include "tools/lvxdoc/output.h"

namespace lvxdoc {

class ProgressBar {
public:
    using Clock = std::function<std::chrono::milliseconds()>;

    /// For work of `total` steps. Nothing is ever shown unless `shown`. `terminal` outlives the bar.
    ProgressBar(Output& terminal, bool shown, std::uint64_t total, Clock clock = SteadyClock());
    ProgressBar(const ProgressBar&) = delete;
    ProgressBar& operator=(const ProgressBar&) = delete;
    ~ProgressBar();

    /// Steps that were done since the last call.
    void Advance(std::uint64_t steps);

private:
    static Clock SteadyClock();
    void Draw();

    Output& m_terminal;
    bool m_shown;
    bool m_drawn = false;
    std::uint64_t m_total;
    std::uint64_t m_done = 0;
    Clock m_clock;
    std::chrono::milliseconds m_next;
};

/// Bytes that move a bar when they are read.
class WatchedSource : public ByteSource {
public:
    /// Both outlive the source.
    WatchedSource(ByteSource& source, ProgressBar& bar) : m_source(source), m_bar(bar) {}
    std::uint64_t Size() const override { return m_source.Size(); }
    void ReadAt(std::uint64_t offset, void* data, std::size_t size) override;

private:
    ByteSource& m_source;
    ProgressBar& m_bar;
};

}  // namespace lvxdoc
