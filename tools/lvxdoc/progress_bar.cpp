#include "tools/lvxdoc/progress_bar.h"

#include <algorithm>
#include <string>

#include "lvx/text/error.h"

namespace lvxdoc {
namespace {

constexpr std::chrono::milliseconds first_wait(500);
constexpr std::chrono::milliseconds wait(100);
constexpr std::size_t width = 40;
// The brackets, a blank and "100%".
constexpr std::size_t line_width = width + 7;

}  // namespace

ProgressBar::Clock ProgressBar::SteadyClock() {
    return [] {
        return std::chrono::duration_cast<std::chrono::milliseconds>(
            std::chrono::steady_clock::now().time_since_epoch());
    };
}

ProgressBar::ProgressBar(Output& terminal, bool shown, std::uint64_t total, Clock clock)
    : m_terminal(terminal),
      m_shown(shown && total != 0),
      m_total(total),
      m_clock(std::move(clock)),
      m_next(m_clock() + first_wait) {}

ProgressBar::~ProgressBar() {
    if (!m_drawn) {
        return;
    }
    try {
        m_terminal.Write('\r' + std::string(line_width, ' ') + '\r');
    } catch (const lvx::runtime_error&) {
        // A terminal that is gone needs no wiping.
    }
}

void ProgressBar::Advance(std::uint64_t steps) {
    m_done += std::min(steps, m_total - m_done);
    if (m_shown && m_clock() >= m_next) {
        Draw();
        m_next = m_clock() + wait;
    }
}

void ProgressBar::Draw() {
    const double share = static_cast<double>(m_done) / static_cast<double>(m_total);
    const auto filled = static_cast<std::size_t>(share * static_cast<double>(width));
    const std::string percent = std::to_string(static_cast<int>(share * 100));
    m_terminal.Write("\r[" + std::string(filled, '#') + std::string(width - filled, ' ') + "] " +
                     std::string(3 - percent.size(), ' ') + percent + '%');
    m_drawn = true;
}

void WatchedSource::ReadAt(std::uint64_t offset, void* data, std::size_t size) {
    m_source.ReadAt(offset, data, size);
    m_bar.Advance(size);
}

}  // namespace lvxdoc
